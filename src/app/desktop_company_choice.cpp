#include "app/desktop_company_choice.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>

#include "desktop/look/words.h"
#include "store/drive.h"
#include "store/suite_paths.h"
#include "store/text_reader.h"
#include "ui/paper/toolkit_values.h"

namespace vantora {

namespace {

namespace fs = std::filesystem;
namespace words = ui::desktop::words;

constexpr const char* drive_key = "ditta/disco";
constexpr const char* company_key = "ditta/numero";
constexpr const char* demonstration = "001";
constexpr std::string_view folder_stem = "miraz0.";

/// The number in a company folder's name, whatever its case.
std::optional<int> company_in(std::string name) {
    std::ranges::transform(name, name.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
    if (name.size() != folder_stem.size() + 3 || !name.starts_with(folder_stem)) return {};
    const std::string digits = name.substr(folder_stem.size());
    if (digits.find_first_not_of("0123456789") != std::string::npos) return {};
    return std::stoi(digits);
}

std::string heading_of(file_port& files, int number) {
    std::string heading;
    text_reader(files.read_whole(file_azienda(number, "int")).value_or("")).line(heading);
    return heading;
}

QString path_shown(const fs::path& path) {
    return QString::fromStdString(path.string());
}

}  // namespace

std::vector<company_on_drive> companies_on(const fs::path& root) {
    vantora::drive suite(root, drive::access::reading_only);
    std::vector<company_on_drive> found;
    std::error_code unreadable;
    for (fs::directory_iterator entry(suite.locate(cartella_generale), unreadable), end;
         !unreadable && entry != end; entry.increment(unreadable)) {
        const auto number = company_in(entry->path().filename().string());
        std::error_code unknown;
        if (!number || !entry->is_directory(unknown)) continue;
        found.push_back({*number, heading_of(suite, *number)});
    }
    std::ranges::sort(found, {}, &company_on_drive::number);
    return found;
}

QString title_of_company(file_port& files, std::string_view argument) {
    const int company = numero_azienda_in(argument);
    const QString number = QString("ditta %1").arg(company, 3, 10, QChar('0'));
    const QString heading = ui::to_qt(heading_of(files, company)).simplified();
    return heading.isEmpty() ? number : heading + " (" + number + ")";
}

fs::path company_choice::last_drive() {
    return QSettings().value(drive_key, "/").toString().toStdString();
}

company_choice::company_choice(fs::path drive, const QString& maker)
    : place_(new QLineEdit(this)), companies_(new QListWidget(this)), none_(new QLabel(this)) {
    setWindowTitle("Vantora Ordini");
    place_->setReadOnly(true);
    auto* place_label = new QLabel(words::drive_of_suite, this);
    place_label->setBuddy(place_);
    auto* other = new QPushButton(words::other_folder, this);
    other->setAutoDefault(false);
    connect(other, &QPushButton::clicked, this, [this] { choose_folder(); });
    auto* companies_label = new QLabel(words::company, this);
    companies_label->setBuddy(companies_);
    connect(companies_, &QListWidget::itemActivated, this, [this] { keep_and_accept(); });
    none_->setText(words::no_company);
    none_->setWordWrap(true);

    auto* choices = new QDialogButtonBox(this);
    open_ = choices->addButton(words::open, QDialogButtonBox::AcceptRole);
    choices->addButton(words::cancel, QDialogButtonBox::RejectRole);
    if (QFileInfo(maker).isExecutable()) {
        auto* trial = choices->addButton(words::trial_company, QDialogButtonBox::ActionRole);
        connect(trial, &QPushButton::clicked, this, [this, maker] { make_demonstration(maker); });
    }
    connect(choices, &QDialogButtonBox::accepted, this, [this] { keep_and_accept(); });
    connect(choices, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* rows = new QGridLayout(this);
    rows->setSpacing(8);
    rows->addWidget(place_label, 0, 0);
    rows->addWidget(place_, 0, 1);
    rows->addWidget(other, 0, 2);
    rows->addWidget(companies_label, 1, 0, Qt::AlignTop);
    rows->addWidget(companies_, 1, 1, 1, 2);
    rows->addWidget(none_, 2, 1, 1, 2);
    rows->addWidget(choices, 3, 0, 1, 3);
    resize(560, 320);
    show_companies(drive);
}

std::string company_choice::argument() const {
    const int number = companies_->currentItem()->data(Qt::UserRole).toInt();
    const std::string folder = cartella_azienda(number);
    return "ordini" + folder.substr(folder.size() - 3);
}

void company_choice::show_companies(const fs::path& drive) {
    drive_ = drive;
    place_->setText(path_shown(drive));
    companies_->clear();
    const int last = QSettings().value(company_key, -1).toInt();
    for (const auto& [number, heading] : companies_on(drive)) {
        auto* item = new QListWidgetItem(
            QString("%1   %2").arg(number, 3, 10, QChar('0')).arg(ui::to_qt(heading).simplified()),
            companies_);
        item->setData(Qt::UserRole, number);
        if (companies_->count() == 1 || number == last) companies_->setCurrentItem(item);
    }
    const bool any = companies_->count() > 0;
    companies_->setEnabled(any);
    none_->setVisible(!any);
    open_->setEnabled(any);
    open_->setDefault(any);
    if (any) companies_->setFocus();
}

void company_choice::choose_folder() {
    const QString chosen = QFileDialog::getExistingDirectory(
        this, words::folder_of_suite, place_->text(),
        QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!chosen.isEmpty()) show_companies(chosen.toStdString());
}

void company_choice::make_demonstration(const QString& maker) {
    const fs::path home =
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
    const fs::path trial = home / "prova";
    if (companies_on(trial).empty()) {
        setCursor(Qt::WaitCursor);
        std::error_code refused;
        fs::create_directories(trial, refused);
        const bool made =
            !refused && QProcess::execute(maker, {path_shown(trial), demonstration}) == 0;
        unsetCursor();
        if (!made) {
            none_->setText(QString::fromUtf8(words::no_trial_company).arg(path_shown(trial)));
            none_->show();
            return;
        }
    }
    show_companies(trial);
}

void company_choice::keep_and_accept() {
    if (!companies_->currentItem()) return;
    QSettings kept;
    kept.setValue(drive_key, path_shown(drive_));
    kept.setValue(company_key, companies_->currentItem()->data(Qt::UserRole));
    accept();
}

}  // namespace vantora
