#include <iostream>
#include <map>

#include "archive/commands.h"
#include "archive/show.h"

namespace vantora::archive {

namespace {

using kind = show_request::kind;

const std::map<std::string, kind> kinds = {
    {"orders", kind::orders},      {"order", kind::orders},        {"quotes", kind::quotes},
    {"quote", kind::quotes},       {"customers", kind::customers}, {"customer", kind::customers},
    {"articles", kind::articles},  {"article", kind::articles},    {"movements", kind::movements},
    {"movement", kind::movements}, {"documents", kind::documents}, {"document", kind::documents},
    {"counters", kind::counters}};

}  // namespace

command show_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("show", "mostra quello che c'è, a parole");
    const auto request = std::make_shared<show_request>();
    line->add_option("CHE_COSA", request->what,
                     "orders, quotes, customers, articles, movements, documents, counters; o uno, "
                     "order 12")
        ->required()
        ->transform(CLI::CheckedTransformer(kinds).description(""))
        ->type_name("");
    line->add_option("NUMERO", request->number, "uno solo")
        ->check(CLI::Range(1, 32767).description(""));
    line->add_flag("--json", request->json, "ogni campo con il suo nome");
    return {line, [request](const which_company& which) {
                const auto company = opened(which);
                if (company && show(*company, *request, std::cout)) return exit_code::done;
                if (company) std::cerr << "There is no such record.\n";
                return exit_code::unreadable;
            }};
}

}  // namespace vantora::archive
