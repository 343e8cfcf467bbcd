#include "scripted/small_company.h"

#include <algorithm>
#include <fstream>

#include "archive/check.h"
#include "store/drive.h"

namespace vantora::test {

small_company::small_company() {
    std::filesystem::create_directories(folder_.path() / "mirwin/mirwin/miraz0.001");
    vantora::drive port(folder_.path());
    apri_archivi(files, port, 1);
    rec_gnr general{};
    general.formato_gnr = "9";
    general.aggiorna_elenco = "1";
    general.codice_iva_base = "04";
    general.righe_alternate = "1";
    general.colore_riga_pari = 16579315;
    general.colore_riga_dispari = 16777215;
    gnr = channel<rec_gnr>(port.open_records("\\mirwin\\mirwin\\miraz0.001\\vantora.gnr"));
    gnr.write(1, general);
}

std::filesystem::path small_company::file(const std::string& extension) const {
    return folder_.path() / "mirwin/mirwin/miraz0.001" / ("vantora." + extension);
}

void small_company::customers(const std::vector<rec_cli>& all) {
    std::vector<rec_src> index;
    for (std::size_t i = 0; i < all.size(); ++i) {
        files.cli.write(static_cast<int>(i) + 1, all[i]);
        index.push_back({all[i].intestazione1, static_cast<std::int16_t>(i + 1)});
    }
    std::ranges::stable_sort(index, {},
                             [](const rec_src& entry) { return upper(entry.chiave.full()); });
    files.src.write_block(1, index);
    counter(contatori::clienti, static_cast<int>(all.size()));
}

void small_company::articles(const std::vector<rec_art>& all) {
    files.art.write_block(1, all);
    std::vector<rec_srb> index;
    for (std::size_t i = 0; i < all.size(); ++i) {
        index.push_back({all[i].codice_barre, static_cast<std::int16_t>(i + 1)});
    }
    std::ranges::stable_sort(index, {},
                             [](const rec_srb& entry) { return upper(entry.chiave.full()); });
    files.srb.write_block(1, index);
    counter(contatori::articoli, static_cast<int>(all.size()));
}

void small_company::long_text(int article, const std::vector<std::string>& lines) {
    rec_prx text{};
    text.marca_testo = rec_prx::ha_testo;
    for (std::size_t i = 0; i < lines.size(); ++i) text.righe[i] = lines[i];
    files.prx.write(article, text);
}

void small_company::counter(int record, int in_use, int last_number) {
    rec_tot count{};
    count.quanti = static_cast<std::int16_t>(in_use);
    count.ultimo_numero = static_cast<std::int16_t>(last_number);
    files.tot.write(record, count);
}

void small_company::text(const std::string& extension, const std::vector<std::string>& lines) {
    std::ofstream out(file(extension), std::ios::binary);
    for (const auto& line : lines) out << line << "\r\n";
}

void small_company::table_file() {
    std::vector<std::string> lines(8 * 4 + 8 * 3 + 9 * 2 + 9 * 2);
    lines[0] = "4";
    lines[4 * 3] = "22";
    lines[8 * 4 + 8 * 3 + 4] = "Esente art. 10";
    for (int i = 1; i <= 30; ++i) {
        lines.push_back("Pagamento " + std::to_string(i));
        lines.emplace_back();
    }
    lines.resize(lines.size() + 9 * 2 + 40 + 40 + 30 * 5);
    for (int i = 1; i <= 40; ++i) {
        for (const char* line : {"Causale ", "Aspetto ", "Vettore ", "Via ", "*", ""}) {
            lines.push_back(*line == '*' ? "*" : line + std::to_string(i));
        }
    }
    lines.resize(lines.size() + 8 * 4 + 8 * 3 + 8 * 2 + 8 * 2 + 30 * 2);
    text("tab", lines);
}

rec_cli customer_named(const std::string& name) {
    rec_cli customer{};
    customer.intestazione1 = name;
    customer.intestazione2 = "seconda riga";
    customer.indirizzo = "indirizzo";
    customer.citta = "citta";
    customer.cap = "06100";
    customer.amm_intestazione1 = "amm 1";
    customer.amm_intestazione2 = "amm 2";
    customer.amm_indirizzo = "amm indirizzo";
    customer.amm_citta = "amm citta";
    customer.amm_cap = "06012";
    customer.telefono1 = "tel 1";
    customer.telefono2 = "tel 2";
    customer.telefono3 = "tel 3";
    customer.partita_iva = "00000000001";
    customer.codice_fiscale = "CF";
    customer.vettore1 = "corriere 1";
    customer.vettore2 = "corriere 2";
    customer.vettore3 = "corriere 3";
    customer.prefisso_iva = "IT";
    customer.listino = "0";
    customer.invio_email = "0";
    customer.note1 = "nota 1";
    customer.note2 = "nota 2";
    customer.email = "a@example.it";
    customer.pagamento = 2;
    return customer;
}

rec_art article(const std::string& code, const std::string& description, double price) {
    rec_art one{};
    one.codice = code;
    one.descrizione = description;
    one.codice_barre = "";
    one.um = "PZ";
    one.iva = 4;
    one.prezzo1 = price;
    one.prezzo2 = price / 2;
    return one;
}

std::string problems(const small_company& company) {
    archive::company_files files(company.drive(), 1);
    archive::survey found = archive::survey_company(files);
    archive::check_stock(found, found.all);
    std::string text;
    for (const auto& alike : found.all.groups()) {
        for (const auto& one : alike.kept) {
            if (one.how_bad == archive::gravity::note || one.kind == "committed-too-high") continue;
            text += one.where + ": " + one.what + "\n";
        }
    }
    return text;
}

}  // namespace vantora::test
