#pragma once

#include "archive/gaps.h"
#include "store/text_reader.h"

namespace vantora::archive {

/// Transport documents as the text files beside their records tell them, one after the other.
class document_text {
 public:
    static constexpr std::size_t head_lines = 10;
    static constexpr std::size_t values_of_row = 10;
    static constexpr std::size_t tail_lines = 10;
    static constexpr std::size_t lines = head_lines + righe_blocco * values_of_row + tail_lines;
    /// The line, from 0, at which row 1 to 200 begins: with its article.
    static constexpr std::size_t line_of(std::size_t row) {
        return head_lines + (row - 1) * values_of_row;
    }

    explicit document_text(company_files& company);

    /// Reads the file of a record, or tells what is wrong with it. That it isn't there is nothing
    /// wrong: the suite needs it no more once the document is out.
    bool read(const rec_bol& record, gaps& missing);

    // REQUIRES from here on: the last read gave true.
    [[nodiscard]] std::string text(std::size_t line) const;
    [[nodiscard]] double number(std::size_t line) const;
    /// Whether the row that begins at this line holds anything.
    [[nodiscard]] bool has_row(std::size_t line) const;

 private:
    file_port& files_;
    std::string folder_;
    text_reader reader_{""};
    std::vector<std::string_view> values_;  ///< one a line
};

}  // namespace vantora::archive
