#include "archive/repair.h"

#include <ostream>

#include "archive/open_quantities.h"
#include "store/company.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

namespace fs = std::filesystem;

/// A name that no earlier copy has.
fs::path place_for_copy(const fs::path& of) {
    for (int number = 1;; ++number) {
        fs::path place = of;
        place += ".copy" + std::to_string(number);
        if (!fs::exists(place)) return place;
    }
}

bool set_right(channel<rec_art>& articles, const wrong_ordered_quantity& one) {
    rec_art article;
    if (!articles.read(one.articolo, article)) return false;
    article.ordinato_clienti = one.open;
    return articles.write(one.articolo, article);
}

}  // namespace

int repair_ordered_quantities(const fs::path& root, int numero_azienda,
                              const std::function<bool()>& confirmed, std::ostream& out) {
    company_files company(root, numero_azienda);
    open_quantities open(company.count(contatori::articoli));
    open.add_orders(company, [](auto...) {});
    if (!open.complete()) {
        out << "Not all orders of the company can be read; nothing was changed.\n";
        return 3;
    }
    const auto wrong = open.compare(company.records().art);
    if (wrong.empty()) {
        out << "All ordered quantities are right; nothing was changed.\n";
        return 0;
    }
    for (const wrong_ordered_quantity& one : wrong) {
        out << "article " << one.articolo << " (" << one.codice << "): ordinato_clienti "
            << plain_text(one.stored) << " becomes " << plain_text(one.open) << '\n';
    }
    if (!confirmed()) {
        out << "Nothing was changed.\n";
        return 1;
    }
    const fs::path file = company.path_of("art");
    const fs::path copy = place_for_copy(file);
    std::error_code failed;
    fs::copy_file(file, copy, failed);
    if (failed) {
        out << "The copy " << copy.string() << " can't be made: " << failed.message()
            << ". Nothing was changed.\n";
        return 3;
    }
    drive writable(root);
    channel<rec_art> articles(writable.open_records(file_azienda(numero_azienda, "art")));
    std::size_t done = 0;
    for (const wrong_ordered_quantity& one : wrong) done += set_right(articles, one) ? 1 : 0;
    articles.flush();
    out << done << " of " << wrong.size() << " articles set right; the file as it was is "
        << copy.string() << '\n';
    return done == wrong.size() ? 0 : 3;
}

}  // namespace vantora::archive
