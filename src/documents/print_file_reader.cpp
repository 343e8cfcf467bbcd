#include "documents/print_file_reader.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "text/code_page.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// Beyond this there is no place on any paper, and no size of a letter.
constexpr double largest = 100'000;
constexpr std::size_t carattere_piu_lungo = 200;
constexpr double unlimited = std::numeric_limits<double>::max();

std::string_view line_end_of(std::string_view content) {
    const std::string_view first = content.substr(0, content.find('\n'));
    return first.size() < content.size() && !first.ends_with('\r') ? "\n" : "\r\n";
}

class reader {
 public:
    explicit reader(std::string_view content) : rest_(content), line_end_(line_end_of(content)) {}

    [[nodiscard]] bool at_end() const { return rest_.empty(); }
    /// What makes it no print file.
    [[nodiscard]] const std::optional<errore_di_stampa>& error() const { return error_; }

    /// True for a landscape page.
    bool mark() {
        const std::string_view text = trimmed(line());
        const bool landscape = text == marca_orizzontale;
        // Whatever else is wrong with a file without its mark: it is another kind of file.
        if (!landscape && text != marca_verticale) {
            error_ = errore_di_stampa{difetto_di_stampa::senza_marca, 1};
        }
        return landscape;
    }

    /// The next record as far as it can be read, and what is odd about it.
    struct read_record {
        std::optional<record_di_stampa> record;
        std::optional<errore_di_stampa> odd;
    };
    read_record record() {
        odd_.reset();
        record_di_stampa made;
        const auto kind = kind_of(trimmed(line()));
        if (!kind || *kind == tipo_record::pagina) {
            for (int i = 1; i < righe_per_record; ++i) line();
            return {kind ? std::optional(made) : std::nullopt, odd_};
        }
        made.tipo = *kind;
        made.x1 = number(largest);
        made.y1 = number(largest);
        made.x2 = number(largest);
        made.y2 = number(largest);
        made.corpo = number(largest);
        made.colore = number(unlimited);
        made.testo = line().substr(0, testo_piu_lungo);
        made.carattere = line().substr(0, carattere_piu_lungo);
        made.grassetto = number(largest);
        made.corsivo = number(largest);
        if (odd_ && odd_->difetto == difetto_di_stampa::numero_illeggibile) return {{}, odd_};
        return {std::move(made), odd_};
    }

 private:
    /// The fault that loses the record is told before one that only changes it.
    void note(difetto_di_stampa fault) {
        if (!odd_ || odd_->difetto == difetto_di_stampa::numero_fuori_campo) {
            odd_ = errore_di_stampa{fault, line_number_};
        }
    }

    std::string_view line() {
        ++line_number_;
        const std::size_t end = rest_.find(line_end_);
        if (end == std::string_view::npos) {
            if (!error_) error_ = errore_di_stampa{difetto_di_stampa::troncato, line_number_};
            return std::exchange(rest_, {});
        }
        const std::string_view text = rest_.substr(0, end);
        rest_.remove_prefix(end + line_end_.size());
        return text;
    }

    std::optional<double> number_in(std::string_view text) {
        std::string pointed(text);
        std::ranges::replace(pointed, ',', '.');
        const auto value = whole_number_text(pointed);
        if (!value) note(difetto_di_stampa::numero_illeggibile);
        return value;
    }

    double number(double limit) {
        const std::string_view text = trimmed(line());
        if (text.empty()) return 0;
        const double value = number_in(text).value_or(0);
        if (std::abs(value) > limit) note(difetto_di_stampa::numero_fuori_campo);
        return std::clamp(value, -limit, limit);
    }

    std::optional<tipo_record> kind_of(std::string_view text) {
        const double value = whole_number_text(text).value_or(-1);
        for (const tipo_record one :
             {tipo_record::figura, tipo_record::linea, tipo_record::riquadro, tipo_record::testo,
              tipo_record::pagina}) {
            if (value == static_cast<double>(one)) return one;
        }
        note(difetto_di_stampa::tipo_sconosciuto);
        return {};
    }

    std::string_view rest_;
    std::string_view line_end_;
    std::size_t line_number_ = 0;
    std::optional<errore_di_stampa> error_;
    std::optional<errore_di_stampa> odd_;  ///< of the record at hand
};

}  // namespace

std::variant<documento_di_stampa, errore_di_stampa> read_print_file(std::string_view content) {
    reader in(content);
    documento_di_stampa document;
    document.orizzontale = in.mark();

    std::vector<record_di_stampa> page;
    std::size_t records = 0;
    while (!in.error() && !in.at_end()) {
        auto [one, odd] = in.record();
        ++records;
        if (odd && document.anomalie++ == 0) document.prima_anomalia = *odd;
        if (!one) continue;
        if (one->tipo == tipo_record::pagina) {
            document.pagine.push_back(std::move(page));
            page.clear();
        } else {
            page.push_back(std::move(*one));
        }
    }
    if (in.error()) return *in.error();
    if (document.anomalie > records / 2) return document.prima_anomalia;
    // What follows the last page record is a page of its own.
    if (!page.empty()) document.pagine.push_back(std::move(page));
    return document;
}

}  // namespace vantora
