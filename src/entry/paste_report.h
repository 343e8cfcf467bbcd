#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "entry/pasted_lines.h"
#include "text/code_page.h"
#include "ui/desk.h"
#include "ui/guards.h"

namespace vantora {

/// What becomes of lines pasted into an order, for the one who pasted them: those that were not
/// inserted and why, those that may have been meant otherwise.
class paste_report {
 public:
    void refuse(const pasted_line& line, std::string_view why) {
        const std::string one = told(line) + " - " + std::string(why);
        if (refused_++ < told_whole) text_ += one;
        all_ += one.substr(1) + "\n";
    }
    void doubt(const pasted_line& line) {
        if (!line.doubtful.empty() && doubtful_++ < told_whole) doubts_ += told(line);
    }
    /// Tells what wasn't inserted and what is doubtful, if anything is. `lines`: how many there
    /// were.
    void tell(ui::desk& on, std::size_t lines) const {
        ui::message_box box{message(lines), ui::attention, ui::icon::warning};
        if (box.text.empty()) return;
        if (refused_ > 0 && on.guards().on()) {
            box.buttons = ui::buttons::choice;
            box.choices = {"Salva l'elenco", "Chiudi"};
            box.proposed = ui::answer::choice_2;
        }
        if (on.show_box(std::move(box)) == ui::answer::choice_1) {
            on.offer_to_save("Righe non inserite", all_);
        }
    }

 private:
    static constexpr std::size_t told_whole = 20;  ///< refused lines that the box tells

    [[nodiscard]] std::string message(std::size_t lines) const {
        std::string all;
        if (refused_ > 0) {
            all = "Righe inserite: " + std::to_string(lines - refused_) + " di " +
                  std::to_string(lines) + "\nNon inserite:" + text_ + further(refused_);
        }
        if (doubtful_ > 0) {
            all += (all.empty() ? "" : "\n\n") +
                   "Da controllare, il punto è stato preso per la virgola dei decimali:"_cp +
                   doubts_ + further(doubtful_);
        }
        return all;
    }
    static std::string told(const pasted_line& line) {
        std::string source = line.source.substr(0, 60);
        std::ranges::replace(source, '\t', ' ');
        return "\nriga " + std::to_string(line.number) + ": " + source;
    }
    static std::string further(std::size_t count) {
        if (count <= told_whole) return {};
        return "\ne altre " + std::to_string(count - told_whole);
    }

    std::size_t refused_ = 0;
    std::size_t doubtful_ = 0;
    std::string text_;
    std::string all_;  ///< what was refused, whole
    std::string doubts_;
};

}  // namespace vantora
