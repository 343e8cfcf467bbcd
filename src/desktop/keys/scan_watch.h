#pragma once

#include <QKeyEvent>
#include <optional>
#include <string>
#include <utility>

namespace vantora::ui::desktop {

/// Tells a bar code, which a reader types faster than hands do, from what hands type.
class scan_watch {
 public:
    /// A key goes down in a field in which `text` stands. The code, if the key is the Enter behind
    /// one.
    std::optional<std::string> ended_by(const QKeyEvent& key, const std::string& text) {
        const quint64 gap = key.timestamp() - std::exchange(last_, key.timestamp());
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            std::string code = std::exchange(code_, {});
            const bool scanned = code.size() >= shortest_code && gap <= longest_wait;
            return scanned ? std::optional(code) : std::nullopt;
        }
        const QString typed = key.text();
        const bool digit = typed.size() == 1 && typed[0] >= '0' && typed[0] <= '9';
        if (!digit || key.isAutoRepeat() || gap > longest_gap) code_.clear();
        if (!digit || key.isAutoRepeat()) return {};
        if (code_.empty()) before_ = text;
        code_ += static_cast<char>(typed[0].unicode());
        return {};
    }
    /// What stood in the field before the code came.
    [[nodiscard]] const std::string& before() const { return before_; }

 private:
    static constexpr std::size_t shortest_code = 6;
    static constexpr quint64 longest_gap = 20;    ///< milliseconds: six digits within a tenth
    static constexpr quint64 longest_wait = 100;  ///< milliseconds, for the Enter

    std::string code_;
    std::string before_;
    quint64 last_ = 0;
};

}  // namespace vantora::ui::desktop
