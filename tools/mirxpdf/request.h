#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantora::mirxpdf {

/// What the suite's programs ask for, in the code page; the paths are those of the suite.
struct pdf_request {
    std::string print_file;
    std::string pdf;
    std::string addressee;  ///< e-mail addresses; empty if nothing is to be sent
};

/// Reads the argument text: layout file or "***", print file, PDF, e-mail address or "***", and a
/// further value, separated by commas. The first and the last say nothing here, unless the last is
/// another address; the last two may be missing. Empty if there is no print file or no name for the
/// PDF.
std::optional<pdf_request> read_request(std::string_view argument);

/// The program's file as it was started: an absolute path, no link followed.
std::filesystem::path program_file(const std::string& started_as);

/// The folder that stands for the suite's drive, by the program's place in the general folder
/// (DRIVE/mirwin/mirwin/mirxpdf). Empty if the program lies elsewhere.
std::optional<std::filesystem::path> drive_around(const std::filesystem::path& program);

}  // namespace vantora::mirxpdf
