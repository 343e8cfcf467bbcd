#include "entry/line_history.h"

#include <algorithm>
#include <tuple>

namespace vantora {

namespace {

auto numbers_of(const riga_ordine& line) {
    return std::tuple(line.articolo, line.iva, line.quantita, line.prezzo, line.sc1, line.sc2,
                      line.evaso, line.peso);
}

/// Showing a line trims its texts, which is no change.
bool same_line(const riga_ordine& one, const riga_ordine& other) {
    return one.codice.trimmed() == other.codice.trimmed() &&
           one.descrizione.trimmed() == other.descrizione.trimmed() &&
           one.um.trimmed() == other.um.trimmed() && numbers_of(one) == numbers_of(other);
}

}  // namespace

void line_history::begin(order_content now) {
    clear();
    begun_ = true;
    now_ = std::move(now);
}

line_history::shown_line line_history::line_of(const order_content& content, int number) {
    shown_line line{content.lines[number], {}};
    const auto typed = content.typed_codes.find(number);
    if (typed != content.typed_codes.end()) line.typed_code = typed->second;
    return line;
}

bool line_history::same(const shown_line& one, const shown_line& other) {
    return same_line(one.line, other.line) && one.typed_code == other.typed_code;
}

line_history::step line_history::difference(const order_content& before,
                                            const order_content& after) {
    step found{{}, before.choices};
    const bool codes = before.typed_codes != after.typed_codes;
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        if (!codes && same_line(before.lines[number], after.lines[number])) continue;
        shown_line line = line_of(before, number);
        if (!same(line, line_of(after, number))) found.lines.emplace_back(number, std::move(line));
    }
    return found;
}

line_place line_history::exchange(step& one, order_content& content) {
    line_place first;
    for (auto& [number, line] : one.lines) {
        shown_line there = line_of(content, number);
        if (first.line == 0) first = place_of(number, there, line);
        content.lines[number] = line.line;
        content.typed_codes.erase(number);
        if (line.typed_code) content.typed_codes[number] = *line.typed_code;
        line = std::move(there);
    }
    std::swap(one.choices, content.choices);
    return first;
}

line_history::growth line_history::growth_of(const std::string& before, const std::string& after) {
    const bool more = after.size() > before.size();
    const std::string& shorter = more ? before : after;
    const std::string& longer = more ? after : before;
    if (shorter.size() == longer.size()) return growth::none;
    const auto differs = std::mismatch(shorter.begin(), shorter.end(), longer.begin()).first;
    const auto head = static_cast<std::size_t>(differs - shorter.begin());
    // What isn't the same from the left must be so from the right.
    if (!longer.ends_with(shorter.substr(head))) return growth::none;
    return more ? growth::more : growth::less;
}

bool line_history::joins_last(const step& one, growth kind, int line) const {
    return kind != growth::none && kind == open_ && taken_back_.empty() && !done_.empty() &&
           one.lines.size() == 1 && one.lines[0].first == line && done_.back().lines.size() == 1 &&
           done_.back().lines[0].first == line;
}

void line_history::note(const order_content& now, const cell_in_work& focus) {
    step one = difference(now_, now);
    const bool stays = focus.at == focus_.at;
    const growth kind =
        stays && focus.at.line > 0 ? growth_of(focus_.text, focus.text) : growth::none;
    if (!stays) open_ = growth::none;
    focus_ = focus;
    const bool chose = now.choices != now_.choices;
    if (one.lines.empty() && !chose) return;
    if (chose || !joins_last(one, kind, focus.at.line)) {
        keep_taken_back();
        push(std::move(one));
    }
    open_ = kind;
    now_ = now;
}

void line_history::stand_at(order_content now, const cell_in_work& focus) {
    now_ = std::move(now);
    focus_ = focus;
    open_ = growth::none;
}

void line_history::push(step one) {
    done_.push_back(std::move(one));
    if (done_.size() > steps_max) done_.pop_front();
}

void line_history::keep_taken_back() {
    if (taken_back_.empty()) return;
    order_content there = now_;
    for (; !taken_back_.empty(); taken_back_.pop_back()) {
        exchange(taken_back_.back(), there);
        push(std::move(taken_back_.back()));
    }
    push(difference(there, now_));
}

line_place line_history::place_of(int number, const shown_line& one, const shown_line& other) {
    const riga_ordine& was = one.line;
    const riga_ordine& is = other.line;
    using enum line_column;
    const std::pair<line_column, bool> changed[] = {
        {code, was.codice.trimmed() != is.codice.trimmed() || was.articolo != is.articolo ||
                   one.typed_code != other.typed_code},
        {description, was.descrizione.trimmed() != is.descrizione.trimmed()},
        {unit, was.um.trimmed() != is.um.trimmed()},
        {quantity, was.quantita != is.quantita},
        {fulfilled, was.evaso != is.evaso},
        {sc1, was.sc1 != is.sc1},
        {sc2, was.sc2 != is.sc2},
        {price, true}};
    const auto* place = std::ranges::find(changed, true, &std::pair<line_column, bool>::second);
    return {number, place->first};
}

std::optional<line_place> line_history::back() {
    if (done_.empty()) return {};
    taken_back_.push_back(std::move(done_.back()));
    done_.pop_back();
    return exchange(taken_back_.back(), now_);
}

std::optional<line_place> line_history::forth() {
    if (taken_back_.empty()) return {};
    const line_place place = exchange(taken_back_.back(), now_);
    push(std::move(taken_back_.back()));
    taken_back_.pop_back();
    return place;
}

}  // namespace vantora
