#include "command_line/command_line.h"

#include <CLI/CLI.hpp>
#include <filesystem>

namespace vantora {

command_line::command_line(const char* program, const std::string& purpose)
    : parser_(std::make_unique<CLI::App>(purpose, program)) {
    parser_->option_defaults()->group("Opzioni");
    parser_->group("Comandi");
    parser_->set_help_flag("-h,--help", "mostra questo aiuto");
    parser_->set_version_flag("--version", VANTORA_VERSION)->description("mostra la versione");
    const auto words = std::make_shared<CLI::Formatter>();
    words->label("Usage", "Uso");
    words->label("Positionals", "Argomenti");
    words->label("OPTIONS", "OPZIONI");
    words->label("SUBCOMMAND", "COMANDO");
    words->label("REQUIRED", "(necessario)");
    words->label("TEXT", "TESTO");
    parser_->formatter(words);
    parser_->failure_message([this, program](const CLI::App*, const CLI::Error& problem) {
        std::string told = "Comando non compreso: " + in_italian(problem) + ".\nAiuto: ";
        told.append(program).append(" --help");
        if (has_commands()) told.append(", ").append(program).append(" COMANDO --help");
        return told + '\n';
    });
}

command_line::~command_line() = default;

void command_line::flag(const char* name, bool& into, const char* words) {
    parser_->add_flag(name, into, words);
}

void command_line::text(const char* name, std::string& into, const char* words,
                        const complaint& wrong) {
    CLI::Option* added = parser_->add_option(name, into, words);
    if (!wrong) return;
    added->check([this, wrong](const std::string& given) { return complaint_ = wrong(given); });
}

void command_line::folder(const char* name, std::string& into, const char* words) {
    text(name, into, words, [](const std::string& given) {
        std::error_code failed;
        if (std::filesystem::is_directory(given, failed)) return std::string();
        return "la cartella \"" + given + "\" non c'è";
    });
    parser_->get_option(name)->type_name("CARTELLA");
}

void command_line::number(const char* name, int& into, int most, const char* words) {
    // the library would take 010 for 8
    parser_
        ->add_option_function<std::string>(
            name, [&into](const std::string& given) { into = std::stoi(given); }, words)
        ->default_str(std::to_string(into))
        ->type_name("NUMERO")
        ->check([this, most](const std::string& given) {
            constexpr std::size_t figures_most = 9;
            const bool plain = !given.empty() && given.size() <= figures_most &&
                               given.find_first_not_of("0123456789") == std::string::npos;
            complaint_ =
                plain && std::stoi(given) <= most
                    ? std::string()
                    : "\"" + given + "\" non è un numero intero tra 0 e " + std::to_string(most);
            return complaint_;
        });
}

void command_line::require(const char* name) {
    parser_->get_option(name)->required()->default_str("");
}

void command_line::rest(std::vector<std::string>& into) {
    parser_->prefix_command();
    rest_ = &into;
}

std::optional<int> command_line::read(int count, char** arguments) {
    constexpr int wrong_options = 2;
    try {
        parser_->parse(count, arguments);
    } catch (const CLI::ParseError& problem) {
        return parser_->exit(problem) == 0 ? 0 : wrong_options;
    }
    if (rest_) *rest_ = parser_->remaining();
    return {};
}

bool command_line::has_commands() const {
    return parser_->get_require_subcommand_min() > 0;
}

std::string command_line::in_italian(const CLI::Error& problem) const {
    if (dynamic_cast<const CLI::RequiredError*>(&problem)) {
        return has_commands() ? "manca il comando o un suo argomento" : "manca un argomento";
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&problem)) {
        return "c'è qualcosa di troppo o di sconosciuto";
    }
    const std::string told = problem.what();
    return told.substr(0, told.find(':')) + ": " +
           (complaint_.empty() ? "valore non ammesso" : complaint_);
}

}  // namespace vantora
