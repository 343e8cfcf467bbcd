#pragma once

#include <string>
#include <vector>

#include "archive/company_files.h"
#include "archive/words.h"

namespace vantora::archive {

/// The customers and articles of a company, read once: everything else is judged and named by them.
class masters {
 public:
    /// Reads those that the files hold, counted or not.
    explicit masters(company_files& company);

    /// How many the counters say there are.
    [[nodiscard]] int customers() const { return customers_counted_; }
    [[nodiscard]] int articles() const { return articles_counted_; }
    [[nodiscard]] int unread_customers() const { return unread_customers_; }
    [[nodiscard]] int unread_articles() const { return unread_articles_; }

    /// Null for a number that no record has, or one that can't be read.
    [[nodiscard]] const rec_cli* customer(int number) const { return at(customers_, number); }
    [[nodiscard]] const rec_art* article(int number) const { return at(articles_, number); }

    /// "Rossi S.r.l.", or "cliente 77" if it has no name.
    [[nodiscard]] std::string customer_named(int number) const;
    /// "articolo RUB00012", or "articolo numero 77" if it has no code.
    [[nodiscard]] std::string article_named(int number) const;

 private:
    template <class Record>
    struct kept {
        Record record;
        bool read = false;
    };
    template <class Record>
    static const Record* at(const std::vector<kept<Record>>& all, int number) {
        if (number < 1 || number > static_cast<int>(all.size())) return nullptr;
        const auto& one = all[static_cast<std::size_t>(number) - 1];
        return one.read ? &one.record : nullptr;
    }

    int customers_counted_;
    int articles_counted_;
    int unread_customers_ = 0;
    int unread_articles_ = 0;
    std::vector<kept<rec_cli>> customers_;
    std::vector<kept<rec_art>> articles_;
};

}  // namespace vantora::archive
