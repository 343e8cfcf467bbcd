#include "entry/draft.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <type_traits>
#include <utility>

namespace vantora {

namespace {

// One "name=value" a line between a first line that tells the format and a last one that tells that
// nothing is missing. What is empty or zero isn't written.

constexpr std::string_view first_line = "Vantora Ordini, bozza 1";
constexpr std::string_view last_line = "fine";

constexpr std::pair<char, char> escapes[] = {{'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}};

std::string escaped(std::string_view text) {
    std::string all;
    for (const char one : text) {
        const auto* code = std::ranges::find(escapes, one, &std::pair<char, char>::first);
        if (code == std::end(escapes)) {
            all += one;
        } else {
            all.append("\\") += code->second;
        }
    }
    return all;
}

std::string unescaped(std::string_view text) {
    std::string all;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char one = text[i];
        if (one == '\\' && i + 1 < text.size()) {
            one = text[++i];
            const auto* code = std::ranges::find(escapes, one, &std::pair<char, char>::second);
            if (code != std::end(escapes)) one = code->first;
        }
        all += one;
    }
    return all;
}

class writer {
 public:
    void operator()(const std::string& name, const std::string& value) {
        if (!value.empty()) written_.append(name).append("=").append(escaped(value)).append("\n");
    }
    template <std::size_t N>
    void operator()(const std::string& name, const text<N>& value) {
        std::string shown(value.trimmed());
        std::erase(shown, '\0');
        (*this)(name, shown);
    }
    template <class Number, class Bits>
    void operator()(const std::string& name, const little_endian<Number, Bits>& value) {
        (*this)(name, static_cast<Number>(value));
    }
    void operator()(const std::string& name, bool value) {
        if (value) (*this)(name, std::string("1"));
    }
    template <class Number>
    requires std::is_arithmetic_v<Number>
    void operator()(const std::string& name, Number value) {
        if (value == Number{}) return;
        char digits[32];
        (*this)(name, {digits, std::to_chars(digits, digits + sizeof digits, value).ptr});
    }
    [[nodiscard]] const std::string& written() const { return written_; }

 private:
    std::string written_;
};

class reader {
 public:
    explicit reader(std::map<std::string, std::string> values) : values_(std::move(values)) {}

    template <class Text>
    requires std::is_assignable_v<Text&, std::string>
    void operator()(const std::string& name, Text& value) { value = values_[name]; }
    template <class Number, class Bits>
    void operator()(const std::string& name, little_endian<Number, Bits>& value) {
        Number number{};
        (*this)(name, number);
        value = number;
    }
    void operator()(const std::string& name, bool& value) { value = values_[name] == "1"; }
    template <class Number>
    requires std::is_arithmetic_v<Number>
    void operator()(const std::string& name, Number& value) {
        const std::string& digits = values_[name];
        const char* end = digits.data() + digits.size();
        Number read{};
        const auto [stop, fault] = std::from_chars(digits.data(), end, read);
        const bool whole = fault == std::errc() && stop == end;
        value = whole && std::isfinite(static_cast<double>(read)) ? read : Number{};
    }

 private:
    std::map<std::string, std::string> values_;
};

template <class Io, class Line>
void go_over_line(Io& io, const std::string& name, Line& line) {
    io(name + "articolo", line.articolo);
    io(name + "codice", line.codice);
    io(name + "descrizione", line.descrizione);
    io(name + "um", line.um);
    io(name + "iva", line.iva);
    io(name + "quantita", line.quantita);
    io(name + "prezzo", line.prezzo);
    io(name + "sc1", line.sc1);
    io(name + "sc2", line.sc2);
    io(name + "evaso", line.evaso);
    io(name + "peso", line.peso);
}

/// Writes or reads all of a draft but the codes that aren't taken yet.
template <class Io, class Draft>
void go_over(Io& io, Draft& draft) {
    io("archivio", draft.archivio);
    io("salvata", draft.salvata);
    io("tenuta", draft.tenuta);
    io("nuova", draft.nuova);
    io("registrazione", draft.visto.registrazione);
    io("numero", draft.visto.numero);
    io("data", draft.visto.data);
    io("intestato", draft.visto.cliente);
    io("data_reg", draft.visto.data_reg);
    io("impronta", draft.impronta);
    io("cliente", draft.cliente);
    const auto go_over_all = [&io](const std::string& name, auto& values) {
        for (std::size_t i = 0; i < values.size(); ++i) io(name + std::to_string(i), values[i]);
    };
    go_over_all("text2.", draft.testata.text2);
    go_over_all("text3.", draft.testata.text3);
    go_over_all("combo1.", draft.testata.combo1);
    auto& content = draft.contenuto;
    go_over_all("scelta.", content.choices);
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        go_over_line(io, "riga" + std::to_string(number) + ".", content.lines[number]);
    }
}

std::string typed_name(int line) {
    return "digitato" + std::to_string(line);
}

/// The lines between the first and the last one; empty if one of these is missing.
std::optional<std::map<std::string, std::string>> values_of(std::string_view text) {
    std::map<std::string, std::string> values;
    bool first = true;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text = text.substr(std::min(end + 1, text.size()));
        if (std::exchange(first, false)) {
            if (line != first_line) return {};
        } else if (line == last_line) {
            return values;
        } else if (const std::size_t mark = line.find('='); mark != std::string_view::npos) {
            values[std::string(line.substr(0, mark))] = unescaped(line.substr(mark + 1));
        }
    }
    return {};
}

}  // namespace

std::string write_draft(const bozza& draft) {
    writer io;
    go_over(io, draft);
    // An emptied cell differs from its line's code too.
    for (const auto& [line, code] : draft.contenuto.typed_codes) io(typed_name(line), "=" + code);
    return std::string(first_line) + "\n" + io.written() + std::string(last_line) + "\n";
}

std::optional<bozza> read_draft(std::string_view text) {
    const auto values = values_of(text);
    if (!values) return {};
    bozza draft;
    reader io(*values);
    go_over(io, draft);
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        std::string code;
        io(typed_name(number), code);
        if (!code.empty()) draft.contenuto.typed_codes[number] = code.substr(1);
    }
    return draft;
}

std::uint64_t fingerprint_of(std::span<const rec_orc> rows) {
    std::uint64_t print = 0xcbf29ce484222325;
    for (const std::byte one : std::as_bytes(rows)) {
        print = (print ^ static_cast<std::uint64_t>(one)) * 0x100000001b3;
    }
    return print;
}

}  // namespace vantora
