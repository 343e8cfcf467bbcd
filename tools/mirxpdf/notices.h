#pragma once

#include <QString>
#include <functional>

namespace vantora::mirxpdf {

/// Tells the user how it went: on standard error, and in a message box where there is a screen.
class notices {
 public:
    using opener = std::function<void(const QString& file)>;

    /// On standard error alone.
    notices() = default;
    /// Also in windows; `open` shows a file that the user wants to see. REQUIRES: a QApplication.
    explicit notices(opener open) : open_(std::move(open)) {}

    void failure(const QString& what) const;
    /// The PDF is there but didn't leave.
    void not_sent(const QString& what, const QString& pdf) const;
    /// All went well; only in windows, unless something was odd.
    void done(const QString& what, const QString& odd, const QString& pdf) const;

 private:
    void show_with_open(const QString& text, const QString& pdf, bool is_warning) const;

    opener open_;  ///< null: no windows
};

}  // namespace vantora::mirxpdf
