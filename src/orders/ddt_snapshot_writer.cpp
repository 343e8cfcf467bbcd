#include "orders/ddt_snapshot.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// One value a line.
class snapshot {
 public:
    void text(std::string_view value) { content_.append(value).append("\r\n"); }
    void number(double value) { text(plain_text(value)); }
    [[nodiscard]] const std::string& content() const { return content_; }

 private:
    std::string content_;
};

void add_line(snapshot& to, const riga_ordine& line) {
    to.number(line.articolo);
    to.text(std::string(15, ' '));
    to.text(line.codice.full());
    to.text(line.descrizione.full());
    to.text(line.um.full());
    to.number(line.sc1);
    to.number(line.sc2);
    to.number(line.iva);
    to.number(line.quantita);
    to.number(line.prezzo);
}

}  // namespace

std::string snapshot_name(float progressivo) {
    return "b" + masked(progressivo, "##########0");
}

std::string write_snapshot(const istantanea_ddt& document) {
    snapshot all;
    all.number(document.cliente);
    for (const std::string& field : document.text3) all.text(field);
    all.number(document.causale);
    all.number(document.aspetto);
    all.text(std::to_string(document.porto) + std::to_string(document.trasporto));
    for (int number = 1; number <= righe_ordine::massimo; ++number)
        add_line(all, document.righe[number]);
    for (const std::size_t i : campo_cliente::del_documento) all.text(document.text2[i]);
    return all.content();
}

}  // namespace vantora
