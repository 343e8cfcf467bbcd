#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "documents/print_file.h"
#include "store/drive.h"
#include "support/scratch_folder.h"

namespace vantora::test {

std::string bytes_of(const std::filesystem::path& path);
void put(const std::filesystem::path& path, std::string_view content);

/// A program's process, without a display.
class running_program {
 public:
    running_program(const std::vector<std::string>& command, const std::filesystem::path& working,
                    const std::filesystem::path& output);
    /// Waits for its end: the exit code, -1 if it died otherwise.
    [[nodiscard]] int wait() const;

 private:
    int process_ = -1;
};

/// A drive of the suite on which print files become PDF files.
class pdf_drive {
 public:
    struct result {
        int exit_code = -1;
        std::string said;  ///< on both of its outputs
    };

    [[nodiscard]] const std::filesystem::path& root() const { return folder_.path(); }
    [[nodiscard]] std::filesystem::path at(const char* place) const { return root() / place; }

    using page = std::vector<record_di_stampa>;
    void write_print_file(const std::vector<page>& pages, std::string_view mark = marca_verticale);
    void write_settings(std::string_view content) const {
        put(at("mirwin/mirwin/mirxpdf.conf"), content);
    }

    /// Runs the program with `--drive` and these words.
    [[nodiscard]] result run(const std::vector<std::string>& words) const;
    /// Runs any command in the drive's root.
    [[nodiscard]] result run_command(const std::vector<std::string>& command) const;
    [[nodiscard]] running_program start(const std::vector<std::string>& words) const;

    /// Names of all files and folders, relative to the root, in order.
    [[nodiscard]] std::vector<std::string> names() const;

 private:
    scratch_folder folder_;
    scratch_folder outputs_;
};

/// The report's form of a call, and the one of a document with an address.
inline const std::string report_call = "***,c:\\mirdoc.rto,C:\\doc.pdf, ***";
std::string call_with_address(const std::string& address);

/// Records as the writers make them.
record_di_stampa text_at(double x, double y, const std::string& text,
                         const std::string& font = "Arial", double size = 12);
record_di_stampa box_at(double left, double top, double right, double bottom, double colour,
                        bool filled);
record_di_stampa line_at(double x1, double y1, double x2, double y2, double colour);

}  // namespace vantora::test
