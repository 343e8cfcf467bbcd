#pragma once

#include <functional>
#include <vector>

#include "ui/paper/page_painter.h"

namespace vantora::ui {

/// The pages of a print job that waits to be seen before it is printed.
class recorded_pages {
 public:
    using mark = std::function<void(page_painter&)>;

    /// Puts a mark on the page at hand; the first one begins it.
    void add(mark one) {
        begin_page();
        pages_.back().push_back(std::move(one));
    }
    /// Ends the page at hand, be it empty.
    void end_page() {
        begin_page();
        open_ = false;
    }
    /// Puts a mark on the last page, though it is ended. REQUIRES: there is one.
    void add_to_last(mark one) { pages_.back().push_back(std::move(one)); }
    void clear() {
        pages_.clear();
        open_ = false;
    }

    [[nodiscard]] std::size_t count() const { return pages_.size(); }
    void draw(std::size_t page, page_painter& on) const {
        for (const mark& one : pages_[page]) one(on);
    }

 private:
    void begin_page() {
        if (!open_) pages_.emplace_back();
        open_ = true;
    }

    std::vector<std::vector<mark>> pages_;
    bool open_ = false;
};

}  // namespace vantora::ui
