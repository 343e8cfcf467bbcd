#pragma once

#include <QDialog>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

class QEventLoop;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace vantora {

class file_port;

/// A company's number and the first line of its heading, in the code page.
struct company_on_drive {
    int number;
    std::string heading;
};

/// The companies whose folders lie on a drive, by number; none if it isn't one of the suite.
std::vector<company_on_drive> companies_on(const std::filesystem::path& drive);

/// The drive of the suite that a folder is, lies in, or holds; several if it holds several.
struct drive_found {
    std::vector<std::filesystem::path> drives;
};
drive_found drive_around(const std::filesystem::path& folder);

/// "Rossi S.r.l. (ditta 007)", as a company calls itself, for title bars; the number alone where it
/// has no heading.
QString title_of_company(file_port& files, std::string_view argument);

/// Asks for the company, in place of the suite's menu program, when the program is started without
/// it, as from the system's menu. Remembers the drive; can make a demonstration company to begin
/// with.
class company_choice final : public QDialog {
 public:
    /// `drive`: where to look first; `maker`: the program that makes demonstration companies.
    company_choice(std::filesystem::path drive, const QString& maker);

    /// Shows it and waits for the answer; a company that is taken leaves it on the screen. False if
    /// none is.
    bool answered();

    [[nodiscard]] const std::filesystem::path& drive() const { return drive_; }
    /// As the menu program would have passed it on. REQUIRES: a company was taken.
    [[nodiscard]] std::string argument() const;

    /// The drive of the last choice, the root folder if there was none.
    static std::filesystem::path last_drive();

 private:
    void show_companies(const std::filesystem::path& named);
    void look_at_typed();
    bool eventFilter(QObject* watched, QEvent* event) override;
    void choose_folder();
    void make_demonstration(const QString& maker);
    void keep_and_accept();
    void done(int how) override;

    std::filesystem::path drive_;
    QLineEdit* place_;
    QListWidget* companies_;
    QLabel* none_;
    QPushButton* open_;
    QEventLoop* waits_ = nullptr;
};

}  // namespace vantora
