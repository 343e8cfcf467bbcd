#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantora {

/// Reads a text file by line and by comma-separated item, in one forward pass. Every reading past
/// the end fails: it returns false and leaves the variable as it was.
class text_reader {
 public:
    /// Holds the content of the file; an empty content has no line.
    explicit text_reader(std::string content) : content_(std::move(content)) {}

    [[nodiscard]] bool at_end() const { return position_ >= content_.size(); }

    /// The text up to a carriage return, a line feed or both together, which are dropped.
    bool line(std::string& into);
    /// The same without a copy: valid as long as this lies where it is.
    bool line(std::string_view& into);

    /// One item: leading blanks are skipped; a text in double quotes loses them, and all up to the
    /// next comma or line end is dropped; otherwise the text up to the next comma or line end,
    /// without trailing blanks. Takes its comma or line end with it.
    bool item(std::string& into);

    /// An item read as a number by the lenient rule.
    bool item(double& into);

 private:
    void skip_line_end();

    std::string content_;
    std::size_t position_ = 0;
};

}  // namespace vantora
