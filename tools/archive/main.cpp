#include <CLI/CLI.hpp>
#include <iostream>
#include <map>

#include "archive/check.h"
#include "archive/export_csv.h"
#include "archive/export_sqlite.h"
#include "archive/repair.h"
#include "archive/show.h"
#include "store/company.h"

namespace {

using namespace vantora::archive;

constexpr int sound = 0;
constexpr int has_findings = 1;
constexpr int wrong_options = 2;
constexpr int unreadable = 3;

int run_check(company_files& company, bool json) {
    const findings all = check_archive(company);
    if (json) {
        auto list = nlohmann::ordered_json::array();
        for (const finding& one : all) list.push_back(as_json(one));
        std::cout << list.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    } else {
        for (const finding& one : all) std::cout << in_one_line(one) << '\n';
        if (all.empty()) std::cout << "The archive is sound.\n";
    }
    return is_sound(all) ? sound : has_findings;
}

int run_export(company_files& company, const std::filesystem::path& target, bool plain) {
    bool written = false;
    if (target.extension() == ".sqlite") {
        sqlite_file database(target);
        export_tables(company, database);
        written = database.finish();
    } else {
        csv_folder folder(target, plain);
        export_tables(company, folder);
        written = folder.good();
    }
    if (written) return sound;
    std::cerr << target.string() << " can't be written.\n";
    return unreadable;
}

bool asked_user() {
    std::cout << "Go on? (y/n) " << std::flush;
    std::string line;
    return std::getline(std::cin, line) && (line == "y" || line == "yes");
}

const std::map<std::string, show_request::kind> kinds = {
    {"orders", show_request::kind::orders},       {"order", show_request::kind::orders},
    {"quotes", show_request::kind::quotes},       {"quote", show_request::kind::quotes},
    {"customers", show_request::kind::customers}, {"customer", show_request::kind::customers},
    {"articles", show_request::kind::articles},   {"article", show_request::kind::articles},
    {"movements", show_request::kind::movements}, {"movement", show_request::kind::movements},
    {"documents", show_request::kind::documents}, {"document", show_request::kind::documents},
    {"counters", show_request::kind::counters}};

std::vector<std::string> names_of_kinds() {
    std::vector<std::string> names;
    for (const auto& [name, kind] : kinds) names.push_back(name);
    return names;
}

}  // namespace

int main(int count, char** arguments) {
    vantora::take_file_limits_as_errors();
    CLI::App app("Looks after the archive of a company: checks, shows, exports it");
    app.require_subcommand(1);
    std::string drive = "/";
    std::string argument;
    app.add_option("--drive", drive, "folder that holds the suite's tree")
        ->check(CLI::ExistingDirectory);
    app.add_option("ARGUMENT", argument, "argument of the menu program, such as ordini007")
        ->required();

    bool json = false;
    CLI::App* check = app.add_subcommand("check", "tells whether the archive is sound");
    check->add_flag("--json", json, "for programs");

    bool yes = false;
    CLI::App* repair = app.add_subcommand("repair", "sets figures right");
    repair->require_subcommand(1);
    CLI::App* quantities = repair->add_subcommand(
        "ordered-quantities", "what the articles have on order, from the open orders");
    quantities->add_flag("--yes", yes, "don't ask");

    show_request request;
    CLI::App* show_records = app.add_subcommand("show", "shows records in words");
    std::string what;
    show_records->add_option("WHAT", what, "orders, quotes, customers, articles, ...")
        ->required()
        ->check(CLI::IsMember(names_of_kinds()));
    show_records->add_option("NUMBER", request.number, "one of them")->check(CLI::Range(1, 32767));
    show_records->add_flag("--json", request.json, "every field by its name");

    std::string target;
    bool plain = false;
    CLI::App* save = app.add_subcommand("export", "writes all tables out");
    save->add_option("TARGET", target, "a folder for CSV files, or FILE.sqlite")->required();
    save->add_flag("--plain", plain, "CSV for programs instead of spreadsheets");

    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& problem) {
        return app.exit(problem) == 0 ? sound : wrong_options;
    }

    const int number = vantora::numero_azienda_in(argument);
    company_files company(drive, number);
    if (!company.folder_exists() || !company.records().tot.is_open()) {
        std::cerr << "There is no readable archive of company " << number << " in " << drive
                  << ".\n";
        return unreadable;
    }
    if (*check) return run_check(company, json);
    if (*repair) {
        return repair_ordered_quantities(
            drive, number, [yes] { return yes || asked_user(); }, std::cout);
    }
    if (*save) return run_export(company, target, plain);
    request.what = kinds.at(what);
    if (show(company, request, std::cout)) return sound;
    std::cerr << "There is no such record.\n";
    return unreadable;
}
