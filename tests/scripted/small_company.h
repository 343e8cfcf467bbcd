#pragma once

#include <string>
#include <vector>

#include "store/archives.h"
#include "support/file_bytes.h"
#include "support/scratch_folder.h"

namespace vantora::test {

/// What a record holds now.
template <class Record>
Record stored(const channel<Record>& in, std::int64_t number) {
    Record one{};
    in.read(number, one);
    return one;
}

template <class Record, class Change>
void change_stored(channel<Record>& in, std::int64_t number, const Change& change) {
    Record one = stored(in, number);
    change(one);
    in.write(number, one);
}

/// A company with customers and articles, in a folder of its own, for tests of whole screens.
class small_company {
 public:
    small_company();

    [[nodiscard]] const std::filesystem::path& drive() const { return folder_.path(); }
    [[nodiscard]] std::filesystem::path file(const std::string& extension) const;

    /// Customers with their name index; the names come sorted.
    void customers(const std::vector<rec_cli>& all);
    /// Articles with their bar code index.
    void articles(const std::vector<rec_art>& all);
    void long_text(int article, const std::vector<std::string>& lines);
    /// `quanti` and `ultimo_numero` of a counters record.
    void counter(int record, int in_use, int last_number = 0);
    void text(const std::string& extension, const std::vector<std::string>& lines);
    [[nodiscard]] std::string content(const std::string& extension) const {
        return bytes_of(file(extension));
    }
    /// "vantora.tab" with some rates, payments and carriers.
    void table_file();

    archivi files;
    channel<rec_gnr> gnr;

 private:
    scratch_folder folder_;
};

/// A customer by name, with every text field telling which it is.
rec_cli customer_named(const std::string& name);

/// An article by code, with a description and a price.
rec_art article(const std::string& code, const std::string& description, double price);

/// What the archive's own check finds wrong with a company's orders and its stock, a line each. The
/// companies of tests begin with committed stock that no order of theirs explains.
std::string problems(const small_company& company);

}  // namespace vantora::test
