#include <iostream>
#include <map>

#include "archive/commands.h"
#include "archive/gaps.h"
#include "archive/show.h"

namespace vantora::archive {

namespace {

using kind = show_request::kind;

/// One and many, in English and in Italian.
const std::map<std::string, kind> kinds = {
    {"orders", kind::orders},       {"order", kind::orders},        {"ordini", kind::orders},
    {"ordine", kind::orders},       {"quotes", kind::quotes},       {"quote", kind::quotes},
    {"preventivi", kind::quotes},   {"preventivo", kind::quotes},   {"customers", kind::customers},
    {"customer", kind::customers},  {"clienti", kind::customers},   {"cliente", kind::customers},
    {"articles", kind::articles},   {"article", kind::articles},    {"articoli", kind::articles},
    {"articolo", kind::articles},   {"movements", kind::movements}, {"movement", kind::movements},
    {"movimenti", kind::movements}, {"movimento", kind::movements}, {"documents", kind::documents},
    {"document", kind::documents},  {"documenti", kind::documents}, {"documento", kind::documents},
    {"ddt", kind::documents},       {"counters", kind::counters},   {"contatori", kind::counters}};

/// What of the archive has to be whole for this to be shown.
bool needs(kind what, const std::string& file) {
    constexpr std::pair<kind, const char*> articles_and[] = {
        {kind::orders, "vantora.orc"},
        {kind::quotes, "vantora.prv"},
        {kind::movements, "vantora.mag"},
        {kind::articles, "vantora.art"},
    };
    for (const auto& [shown, its_file] : articles_and) {
        if (what == shown && (file == its_file || file == "vantora.art")) return true;
    }
    return file == "vantora.tot" || file == "vantora.cli" ||
           (what == kind::documents && file == "vantora.bol");
}

int run_show(company_files& company, const show_request& request) {
    gaps missing = gaps_of(company);
    std::erase_if(missing, [&](const gap& one) { return !needs(request.what, one.file); });
    if (!missing.empty()) {
        std::cerr << "Non si può mostrare, l'archivio non si legge per intero:\n"
                  << in_lines(missing);
        return exit_code::unreadable;
    }
    if (show(company, request, std::cout)) return exit_code::done;
    std::cerr << (request.wanted.empty() ? "Non si può leggere tutto.\n" : "Non c'è.\n");
    return exit_code::unreadable;
}

}  // namespace

command show_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("show", "mostra quello che c'è, a parole");
    const auto request = std::make_shared<show_request>();
    line->add_option("CHE_COSA", request->what,
                     "ordini, preventivi, clienti, articoli, movimenti, documenti, contatori; "
                     "anche in inglese")
        ->required()
        ->transform(CLI::CheckedTransformer(kinds).description(""))
        ->type_name("");
    line->add_option("QUALE", request->wanted,
                     "uno solo, intero: il numero di un ordine, di un preventivo o di un DDT, il "
                     "codice di un articolo, il numero di registrazione di un cliente")
        ->type_name("");
    line->add_flag("--registrazione", request->by_record, "QUALE è il numero di registrazione");
    line->add_flag("--json", request->json, "ogni campo con il suo nome");
    return {line, [request](const which_company& which) {
                const auto company = opened(which);
                return company ? run_show(*company, *request) : exit_code::unreadable;
            }};
}

}  // namespace vantora::archive
