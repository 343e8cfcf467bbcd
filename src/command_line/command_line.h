#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Error;
}  // namespace CLI

namespace vantora {

/// The command line of a program of the suite: all of them help, and refuse, in the same words.
/// Names that begin with dashes are options; others are arguments, in the order in which they are
/// declared. What is read goes where the declaration says, which outlives the reading.
class command_line {
 public:
    /// What is wrong with a text; empty if nothing is.
    using complaint = std::function<std::string(const std::string&)>;

    command_line(const char* program, const std::string& purpose);
    ~command_line();
    command_line(const command_line&) = delete;
    command_line& operator=(const command_line&) = delete;

    void flag(const char* name, bool& into, const char* words);
    void text(const char* name, std::string& into, const char* words, const complaint& wrong = {});
    /// One that is there.
    void folder(const char* name, std::string& into, const char* words);
    /// A whole number from 0 to `most`, in decimal figures.
    void number(const char* name, int& into, int most, const char* words);
    /// Declared before; without it the program doesn't run.
    void require(const char* name);
    /// From the first word on that is nobody's, all are taken as they are.
    void rest(std::vector<std::string>& into);

    /// The parser itself, for a program of several commands.
    CLI::App& parser() { return *parser_; }

    /// Empty if the program is to run, else its exit code: 0 after help, 2 for wrong options.
    std::optional<int> read(int count, char** arguments);

 private:
    [[nodiscard]] bool has_commands() const;
    [[nodiscard]] std::string in_italian(const CLI::Error& problem) const;

    std::unique_ptr<CLI::App> parser_;
    std::string complaint_;  ///< of the program's own about the text just read
    std::vector<std::string>* rest_ = nullptr;
};

}  // namespace vantora
