#include "app/desktop_company_choice.h"

#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
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
constexpr int folders_looked_at = 300;  ///< in a folder above

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
    text_reader(files.read_whole(company_path(number, "int")).value_or("")).line(heading);
    return heading;
}

QString path_shown(const fs::path& path) {
    return QString::fromStdString(path.string());
}

QString why_none(const fs::path& named, const drive_found& found) {
    std::error_code unknown;
    if (!fs::is_directory(named, unknown)) {
        return QString("La cartella %1 non esiste.").arg(path_shown(named));
    }
    if (found.drives.size() < 2) {
        return "In questa cartella non ci sono ditte della suite. Scelga con Cartella quella che "
               "contiene mirwin, o cominci con una ditta di prova.";
    }
    QStringList several;
    for (const fs::path& one : found.drives) several << path_shown(one);
    return QString("Qui sotto ci sono più dischi della suite: %1").arg(several.join(", "));
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

drive_found drive_around(const fs::path& named) {
    std::error_code unknown;
    fs::path folder = fs::absolute(named, unknown).lexically_normal();
    if (!fs::is_directory(folder, unknown)) return {};
    if (!folder.has_filename()) folder = folder.parent_path();  // a slash at its end
    for (fs::path around = folder;; around = around.parent_path()) {
        if (!companies_on(around).empty()) return {{around}};
        if (around == around.parent_path()) break;
    }
    drive_found below;
    int looked_at = 0;
    for (fs::directory_iterator entry(folder, unknown), end; !unknown && entry != end;
         entry.increment(unknown)) {
        std::error_code no_folder;
        if (!entry->is_directory(no_folder)) continue;
        if (++looked_at > folders_looked_at) break;
        if (!companies_on(entry->path()).empty()) below.drives.push_back(entry->path());
    }
    std::ranges::sort(below.drives);
    return below;
}

QString title_of_company(file_port& files, std::string_view argument) {
    const int company = company_number_in(argument);
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
    place_->installEventFilter(this);
    connect(place_, &QLineEdit::textEdited, this, [this] {
        companies_->clear();
        open_->setEnabled(false);
    });
    connect(place_, &QLineEdit::editingFinished, this, [this] { look_at_typed(); });
    auto* place_label = new QLabel("&Disco della suite", this);
    place_label->setBuddy(place_);
    auto* other = new QPushButton("&Cartella...", this);
    other->setAutoDefault(false);
    connect(other, &QPushButton::clicked, this, [this] { choose_folder(); });
    auto* companies_label = new QLabel("Di&tta", this);
    companies_label->setBuddy(companies_);
    connect(companies_, &QListWidget::itemActivated, this, [this] { keep_and_accept(); });
    none_->setWordWrap(true);
    none_->setTextFormat(Qt::PlainText);

    auto* choices = new QDialogButtonBox(this);
    open_ = choices->addButton(words::open, QDialogButtonBox::AcceptRole);
    choices->addButton(words::cancel, QDialogButtonBox::RejectRole);
    if (QFileInfo(maker).isExecutable()) {
        auto* trial = choices->addButton("Ditta di &prova", QDialogButtonBox::ActionRole);
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

bool company_choice::answered() {
    QEventLoop loop;
    waits_ = &loop;
    show();
    loop.exec();
    waits_ = nullptr;
    return result() == Accepted;
}

void company_choice::done(int how) {
    if (how == Accepted && waits_) {
        setResult(how);
        waits_->quit();
        return;
    }
    QDialog::done(how);
    if (waits_) waits_->quit();
}

std::string company_choice::argument() const {
    const int number = companies_->currentItem()->data(Qt::UserRole).toInt();
    const std::string folder = folder_of_company(number);
    return "ordini" + folder.substr(folder.size() - 3);
}

void company_choice::show_companies(const fs::path& named) {
    const drive_found found = drive_around(named);
    none_->setText(why_none(named, found));
    drive_ = found.drives.size() == 1 ? found.drives.front() : named;
    place_->setText(path_shown(drive_));
    place_->setModified(false);
    companies_->clear();
    const int last = QSettings().value(company_key, -1).toInt();
    for (const auto& [number, heading] : companies_on(drive_)) {
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

/// What the field names is looked at once it is all typed.
void company_choice::look_at_typed() {
    if (place_->isModified()) show_companies(place_->text().trimmed().toStdString());
}

bool company_choice::eventFilter(QObject* watched, QEvent* event) {
    // Enter behind a path shows its companies; it opens none of them unseen.
    const bool enter = event->type() == QEvent::KeyPress &&
                       (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return ||
                        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter);
    if (watched != place_ || !enter || !place_->isModified()) {
        return QDialog::eventFilter(watched, event);
    }
    look_at_typed();
    return true;
}

void company_choice::choose_folder() {
    const QString chosen = QFileDialog::getExistingDirectory(
        this, "Disco della suite: la cartella che contiene mirwin", place_->text(),
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
            none_->setText(
                QString("La ditta di prova non si può creare in %1.").arg(path_shown(trial)));
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
