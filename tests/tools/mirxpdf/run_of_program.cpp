#include "run_of_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "documents/print_file_writer.h"

namespace vantora::test {

std::string bytes_of(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void put(const std::filesystem::path& path, std::string_view content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

running_program::running_program(const std::vector<std::string>& command,
                                 const std::filesystem::path& working,
                                 const std::filesystem::path& output)
    : process_(::fork()) {
    if (process_ != 0) return;
    std::vector<char*> arguments;
    for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const int into = ::open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    ::dup2(into, 1);
    ::dup2(into, 2);
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) ::unsetenv(name);
    if (::chdir(working.c_str()) == 0) ::execvp(arguments[0], arguments.data());
    ::_exit(127);
}

int running_program::wait() const {
    int status = 0;
    ::waitpid(process_, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void pdf_drive::write_print_file(const std::vector<page>& pages, std::string_view mark) {
    drive files(root());
    print_file_writer out(files, mark);
    for (const page& one : pages) {
        for (const record_di_stampa& record : one) out.write(record);
        out.end_page();
    }
}

running_program pdf_drive::start(const std::vector<std::string>& words) const {
    std::vector<std::string> command = {MIRXPDF_PROGRAM, "--drive", root().string()};
    command.insert(command.end(), words.begin(), words.end());
    return {command, root(), outputs_.path() / "said"};
}

pdf_drive::result pdf_drive::run(const std::vector<std::string>& words) const {
    const int code = start(words).wait();
    return {code, bytes_of(outputs_.path() / "said")};
}

pdf_drive::result pdf_drive::run_command(const std::vector<std::string>& command) const {
    const int code = running_program(command, root(), outputs_.path() / "said").wait();
    return {code, bytes_of(outputs_.path() / "said")};
}

std::vector<std::string> pdf_drive::names() const {
    std::vector<std::string> all;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root())) {
        all.push_back(std::filesystem::relative(entry.path(), root()).string());
    }
    std::ranges::sort(all);
    return all;
}

std::string call_with_address(const std::string& address) {
    return "\\mirwin\\mirwin\\miraz0.001\\vantora.lxo,c:\\mirdoc.rto,C:\\orc12.pdf," + address;
}

record_di_stampa text_at(double x, double y, const std::string& text, const std::string& font,
                         double size) {
    return {tipo_record::testo, x, y, 0, 0, size, 0, text, font, 0, 0};
}

record_di_stampa box_at(double left, double top, double right, double bottom, double colour,
                        bool filled) {
    const double mark = filled ? 1 : 0;
    return {tipo_record::riquadro, left, top, right, bottom, 0, colour, "", "", mark, 0};
}

record_di_stampa line_at(double x1, double y1, double x2, double y2, double colour) {
    return {tipo_record::linea, x1, y1, x2, y2, 0, colour, "", "", 1, 0};
}

}  // namespace vantora::test
