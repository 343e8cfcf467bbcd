#include "orders/ddt_snapshot.h"

#include <utility>

#include "store/text_reader.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// Adds values, one a line.
void add(std::string& to, std::string_view value) {
    to.append(value).append("\r\n");
}
void add(std::string& to, double value) {
    add(to, plain_text(value));
}

void add_line(std::string& to, const riga_ordine& line) {
    add(to, line.articolo);
    add(to, std::string(15, ' '));
    add(to, line.codice.full());
    add(to, line.descrizione.full());
    add(to, line.um.full());
    add(to, line.sc1);
    add(to, line.sc2);
    add(to, line.iva);
    add(to, line.quantita);
    add(to, line.prezzo);
}

constexpr std::size_t campo_colli = 2;

/// Reads value by value; what is missing or no number makes the whole file unusable.
class snapshot_reader {
 public:
    explicit snapshot_reader(std::string content) : lines_(std::move(content)) {}

    std::string text() {
        std::string value;
        whole_ = lines_.line(value) && whole_;
        return value;
    }
    double number() { return number_at_head(text()); }
    std::int16_t int16() {
        const auto value = to_int16(number());
        whole_ = value && whole_;
        return value.value_or(0);
    }
    [[nodiscard]] bool whole() const { return whole_ && lines_.at_end(); }

 private:
    text_reader lines_;
    bool whole_ = true;
};

/// Takes the next choice off a text of one digit each; none is "-1".
int take_choice(std::string_view& packed) {
    const std::size_t length = packed.starts_with('-') ? 2 : 1;
    const auto choice = to_int16(number_at_head(packed.substr(0, length)));
    packed.remove_prefix(std::min(length, packed.size()));
    return choice.value_or(-1);
}

void read_line(snapshot_reader& from, riga_ordine& line) {
    line.articolo = from.int16();
    from.text();
    line.codice = from.text();
    line.descrizione = from.text();
    line.um = from.text();
    line.sc1 = from.int16();
    line.sc2 = from.int16();
    line.iva = from.int16();
    line.quantita = from.number();
    line.prezzo = from.number();
}

}  // namespace

std::string snapshot_name(float progressivo) {
    return "b" + masked(progressivo, "##########0");
}

std::string write_snapshot(const istantanea_ddt& document) {
    std::string all;
    add(all, document.cliente);
    for (const std::string& field : document.text3) add(all, field);
    add(all, document.causale);
    add(all, document.aspetto);
    add(all, std::to_string(document.porto) + std::to_string(document.trasporto));
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        add_line(all, document.righe[number]);
    }
    for (const std::size_t i : campo_cliente::del_documento) add(all, document.text2[i]);
    return all;
}

std::optional<istantanea_ddt> read_snapshot(std::string content) {
    snapshot_reader from(std::move(content));
    istantanea_ddt all;
    all.cliente = from.int16();
    for (std::string& field : all.text3) field = from.text();
    all.causale = from.int16();
    all.aspetto = from.int16();
    const std::string packed = from.text();
    std::string_view choices = packed;
    all.porto = take_choice(choices);
    all.trasporto = take_choice(choices);
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        read_line(from, all.righe[number]);
    }
    for (const std::size_t i : campo_cliente::del_documento) all.text2[i] = from.text();
    if (!from.whole()) return {};
    return all;
}

std::string parcels_text(std::string beginning) {
    text_reader lines(std::move(beginning));
    std::string value;
    for (std::size_t i = 0; i <= campo_colli + 1; ++i) {
        if (!lines.line(value)) return {};
    }
    return value;
}

}  // namespace vantora
