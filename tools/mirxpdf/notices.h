#pragma once

#include <QString>

namespace vantora::mirxpdf {

/// Tells the user how it went: on standard error, and in a message box where there is a screen.
class notices {
 public:
    /// `in_windows`: REQUIRES a QApplication.
    explicit notices(bool in_windows) : in_windows_(in_windows) {}

    void failure(const QString& what) const;
    /// The PDF is there but didn't leave.
    void not_sent(const QString& what, const QString& pdf) const;
    /// All went well; only in windows.
    void done(const QString& what, const QString& pdf) const;

 private:
    bool in_windows_;
};

}  // namespace vantora::mirxpdf
