#include "archive/repair.h"

#include <ostream>

#include "archive/open_quantities.h"
#include "store/archive_change.h"
#include "store/suite_paths.h"
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

bool set_right(archive_change& change, channel<rec_art>& articles,
               const wrong_ordered_quantity& one) {
    rec_art article;
    if (!change.read(articles, one.articolo, article)) return false;
    article.ordinato_clienti = one.open;
    return change.write(articles, one.articolo, article);
}

/// What is wrong; empty if not all orders can be read.
std::optional<std::vector<wrong_ordered_quantity>> wrong_quantities(company_files& company) {
    open_quantities open(company.count(contatori::articoli));
    open.add_orders(company, [](auto...) {});
    if (!open.complete()) return {};
    return open.compare(company.records().art);
}

}  // namespace

int repair_ordered_quantities(const fs::path& root, int numero_azienda,
                              const std::function<bool()>& confirmed, std::ostream& out) {
    company_files company(root, numero_azienda);
    const auto found = wrong_quantities(company);
    if (!found) {
        out << "Not all orders of the company can be read; nothing was changed.\n";
        return 3;
    }
    const auto& wrong = *found;
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
    archivi files;
    files.tot =
        channel<rec_tot>(writable.open_records(file_azienda(numero_azienda, "tot")), "vantora.tot");
    files.art =
        channel<rec_art>(writable.open_records(file_azienda(numero_azienda, "art")), "vantora.art");
    archive_change change(files);
    change.changes(files.art);
    // Nobody changes orders from here on; what was shown must still be what is wrong.
    if (change.may_write() && wrong_quantities(company) != wrong) {
        out << "Another station changed the archive meanwhile; nothing was changed.\n";
        return 3;
    }
    std::size_t done = 0;
    for (const wrong_ordered_quantity& one : wrong) {
        done += change.may_write() && set_right(change, files.art, one) ? 1 : 0;
    }
    if (change.may_write()) change.flush(files.art);
    const change_outcome outcome = change.finish();
    if (outcome.how == change_outcome::not_awaited) {
        out << "Another station is at work; nothing was changed.\n";
    } else if (outcome.how != change_outcome::done) {
        out << outcome.files << " can't be written.\n";
    }
    out << done << " of " << wrong.size() << " articles set right; the file as it was is "
        << copy.string() << '\n';
    return done == wrong.size() ? 0 : 3;
}

}  // namespace vantora::archive
