#include <algorithm>
#include <ostream>
#include <set>

#include "archive/exit_code.h"
#include "archive/repair.h"
#include "archive/words.h"
#include "backup/copying.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

/// Files that are there: opening one that isn't creates none.
class existing_files final : public file_port {
 public:
    explicit existing_files(file_port& all) : all_(all) {}

    std::unique_ptr<file> open_records(std::string_view path) override {
        return all_.exists(path) ? all_.open_records(path) : nullptr;
    }
    std::optional<std::string> read_whole(std::string_view path) override {
        return all_.read_whole(path);
    }
    std::optional<std::string> read_head(std::string_view path, std::size_t bytes) override {
        return all_.read_head(path, bytes);
    }
    bool exists(std::string_view path) override { return all_.exists(path); }
    std::unique_ptr<file> create(std::string_view) override { return nullptr; }
    std::unique_ptr<file> create_aside(std::string_view path) override {
        return all_.create_aside(path);
    }
    bool create_folder(std::string_view) override { return false; }
    [[nodiscard]] std::filesystem::path locate(std::string_view path) const override {
        return all_.locate(path);
    }

 private:
    file_port& all_;
};

using exit_code::done;
using exit_code::refused;
using exit_code::unreadable;

std::string path_of(const repair_request& request, const char* extension) {
    return company_path(request.numero_azienda, extension);
}

void show(const repair_plan& plan, const repair_request& request) {
    constexpr std::size_t shown_most = 100;
    for (std::size_t i = 0; i < std::min(plan.steps.size(), shown_most); ++i) {
        request.out << plan.steps[i].shown << '\n';
    }
    if (plan.steps.size() > shown_most) {
        request.out << "... e altri " << plan.steps.size() - shown_most << '\n';
    }
}

/// What stands in the company's folder while a repair writes.
std::string mark_of(const repair_request& request, const char* name) {
    return company_path(request.numero_azienda, std::string(unfinished_repair) + name);
}

void drop_mark(const repair_request& request, const char* name) {
    std::error_code ignored;
    std::filesystem::remove(request.files.locate(mark_of(request, name)), ignored);
}

/// Nothing to write: says why. Empty if there is something.
std::optional<int> ends_here(const repair_plan& plan, const repair_request& request) {
    if (!plan.refusal.empty()) {
        request.out << "Non si può riparare: " << plan.refusal << ". Niente è stato cambiato.\n";
        return refused;
    }
    if (!plan.steps.empty()) return {};
    request.out << plan.nothing << " Niente è stato cambiato.\n";
    return done;
}

int tell_not_begun(archive_change& change, const company_files& company,
                   const repair_request& request) {
    if (change.others_at_work()) {
        request.out << "Un'altra postazione" << in_brackets(company.lock_holder().value_or(""))
                    << " sta scrivendo nell'archivio: riprovare quando ha finito. Niente è stato "
                       "cambiato.\n";
        return refused;
    }
    request.out << "Non si può scrivere: " << change.finish().files
                << ". Niente è stato cambiato.\n";
    return unreadable;
}

/// What was shown and is the same still.
std::vector<repair_step> still_holding(const repair_plan& shown, const repair_plan& now) {
    std::set<std::string> words;
    for (const repair_step& one : shown.steps) words.insert(one.shown);
    std::vector<repair_step> same;
    for (const repair_step& one : now.steps) {
        if (words.contains(one.shown)) same.push_back(one);
    }
    return same;
}

/// Each file that the steps write, once; those that are there.
bool copy_files(const std::vector<repair_step>& steps, const repair_request& request) {
    std::set<std::string> paths;
    for (const repair_step& one : steps) {
        const std::string path = path_of(request, one.extension);
        if (!request.files.exists(path) || !paths.insert(path).second) continue;
        std::string why;
        const std::string copy = copied_beside(request.files, path, why);
        if (copy.empty()) {
            request.out << "La copia di " << words_of_path(request.files.locate(path))
                        << " non si può fare: " << without_controls(why)
                        << ". Niente è stato cambiato.\n";
            return false;
        }
        request.out << "Il file com'era: " << words_of_path(request.files.locate(copy)) << '\n';
    }
    return true;
}

bool put_mark(const repair_request& request, const char* name) {
    const std::string text = std::string(name) + "\n";
    if (put_whole(request.files, mark_of(request, name), std::as_bytes(std::span(text)))) {
        return true;
    }
    request.out << "Nella cartella della ditta non si può scrivere. Niente è stato cambiato.\n";
    return false;
}

int write_all(const std::vector<repair_step>& steps, std::size_t shown, const repair_tools& tools,
              std::ostream& out) {
    archive_change& change = tools.change;
    std::size_t written = 0;
    while (written < steps.size() && steps[written].write(tools)) ++written;
    if (tools.records.art.writable()) change.flush(tools.records.art);
    if (tools.records.orc.writable()) change.flush(tools.records.orc);
    if (tools.records.tot.writable()) change.flush(tools.records.tot);
    out << "Messi a posto " << written << " di " << shown << ".\n";
    if (written < steps.size() || change.finish().how != change_outcome::done) {
        out << "Il disco ha rifiutato una lettura o una scrittura: controllare il disco, poi "
               "ripetere. Quello che non è scritto è rimasto com'era.\n";
        return unreadable;
    }
    if (written == shown) return done;
    out << "Il resto intanto è stato cambiato da un'altra postazione: ripetere il controllo.\n";
    return refused;
}

}  // namespace

const named_repair repairs[] = {
    {"ordered-quantities", "l'ordinato degli articoli, dagli ordini ancora aperti",
     plan_ordered_quantities},
    {"doubled-orders", "gli ordini doppi dopo una compattazione interrotta", plan_doubled_orders},
    {"indexes", "gli indici dei nomi, dei codici e dei codici a barre", plan_indexes},
    {"counters", "i contatori che sono sbagliati di certo", plan_counters},
};

int carry_out(const named_repair& which, const repair_request& request) {
    const char* name = which.name;
    existing_files existing(request.files);
    repair_plan shown;
    {
        company_files company(existing, request.numero_azienda);
        shown = which.plan(company);
    }
    const bool unfinished = request.files.exists(mark_of(request, name));
    if (unfinished) {
        request.out << "Questa riparazione era stata interrotta; i file com'erano prima stanno "
                       "nelle copie accanto. "
                    << (shown.steps.empty() ? "Di quanto aveva mostrato non manca niente.\n"
                                            : "Mancano ancora:\n");
    }
    if (const auto end = ends_here(shown, request)) {
        if (*end == done) drop_mark(request, name);
        return *end;
    }
    show(shown, request);
    if (!request.confirmed(shown.certain)) {
        request.out << "Niente è stato cambiato.\n";
        return refused;
    }
    company_files company(existing, request.numero_azienda);
    if (request.book) request.book(company.records());
    archive_change change(company.records());
    change.recorded_as("riparazione", name);
    if (!change.may_write()) return tell_not_begun(change, company, request);
    const repair_plan now = which.plan(company);
    if (const auto end = ends_here(now, request)) return *end;
    const auto steps = still_holding(shown, now);
    if (!steps.empty() && !(copy_files(steps, request) && put_mark(request, name))) {
        return unreadable;
    }
    const int result =
        write_all(steps, shown.steps.size(),
                  {request.files, request.numero_azienda, company.records(), change}, request.out);
    if (result != unreadable) drop_mark(request, name);
    return result;
}

}  // namespace vantora::archive
