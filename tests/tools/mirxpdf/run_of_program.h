#pragma once

#include <QProcess>
#include <vector>

#include "documents/print_file_writer.h"
#include "store/drive.h"
#include "support/file_bytes.h"
#include "support/scratch_folder.h"

namespace vantora::test {

/// A program's process, without a display, and all that it says.
class running_program : public QProcess {
 public:
    running_program(const std::vector<std::string>& command, const std::filesystem::path& working) {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(name);
        }
        setProcessEnvironment(environment);
        setWorkingDirectory(QString::fromStdString(working.string()));
        setProcessChannelMode(MergedChannels);
        QStringList words;
        for (const std::string& one : command) words << QString::fromStdString(one);
        start(words.takeFirst(), words);
    }
    /// Waits for its end: the exit code, -1 if it died otherwise.
    int wait() {
        waitForFinished(-1);
        return exitStatus() == NormalExit ? exitCode() : -1;
    }
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
    void write_print_file(const std::vector<page>& pages, std::string_view mark = marca_verticale) {
        drive files(root());
        print_file_writer out(files, mark);
        for (const page& one : pages) {
            for (const record_di_stampa& record : one) out.write(record);
            out.end_page();
        }
    }
    void write_settings(std::string_view content) const {
        put(at("mirwin/mirwin/mirxpdf.conf"), content);
    }

    /// The program with `--drive` and these words.
    [[nodiscard]] std::vector<std::string> command(const std::vector<std::string>& words) const {
        std::vector<std::string> all = {MIRXPDF_PROGRAM, "--drive", root().string()};
        all.insert(all.end(), words.begin(), words.end());
        return all;
    }
    [[nodiscard]] result run(const std::vector<std::string>& words) const {
        return run_command(command(words));
    }
    /// Runs any command in the drive's root.
    [[nodiscard]] result run_command(const std::vector<std::string>& command) const {
        running_program program(command, root());
        const int code = program.wait();
        return {code, program.readAll().toStdString()};
    }
    [[nodiscard]] std::map<std::string, std::string> files() const { return files_under(root()); }

 private:
    scratch_folder folder_;
};

/// The report's form of a call, and the one of a document with an address.
inline const std::string report_call = "***,c:\\mirdoc.rto,C:\\doc.pdf, ***";
inline std::string call_with_address(const std::string& address) {
    return "\\mirwin\\mirwin\\miraz0.001\\vantora.lxo,c:\\mirdoc.rto,C:\\orc12.pdf," + address;
}

/// A text as the writers make it.
inline record_di_stampa text_at(double x, double y, const std::string& text, double size = 12) {
    return {tipo_record::testo, x, y, 0, 0, size, 0, text, "Arial", 0, 0};
}

}  // namespace vantora::test
