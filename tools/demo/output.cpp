#include "demo/output.h"

#include <fstream>

#include "text/code_page.h"

namespace vantora::demo {

folder_writer::folder_writer(file_port& files, std::string folder)
    : files_(files), folder_(std::move(folder)) {}

void folder_writer::write_lines(std::string_view name, const std::vector<std::string>& lines) {
    std::string content;
    for (const std::string& line : lines) content += from_utf8(line) + "\r\n";
    write_bytes(name, std::as_bytes(std::span(content)));
}

void folder_writer::write_bytes(std::string_view name, std::span<const std::byte> bytes) {
    check_written(create(name)->write(0, bytes), name);
}

void folder_writer::write_one_of_many(std::string_view name, std::string_view bytes) {
    std::ofstream out(files_.locate(folder_) / name, std::ios::binary);
    check_written(bool(out << bytes << std::flush), name);
}

void folder_writer::check_written(bool written, std::string_view name) {
    if (!written) throw demo_error("Impossibile scrivere " + std::string(name));
}

std::unique_ptr<file> folder_writer::create(std::string_view name) {
    auto created = files_.create(folder_ + "\\" + std::string(name));
    if (!created) throw demo_error("Impossibile creare " + std::string(name));
    return created;
}

}  // namespace vantora::demo
