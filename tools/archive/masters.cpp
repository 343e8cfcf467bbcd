#include "archive/masters.h"

namespace vantora::archive {

namespace {

template <class Record, class Kept>
int read_all(const channel<Record>& from, int counted, std::vector<Kept>& into) {
    constexpr std::int64_t most = 32767;
    const std::int64_t held = std::min(most, from.records_held().value_or(0));
    const int count = std::max(held_of(from, counted), static_cast<int>(held));
    into.resize(static_cast<std::size_t>(count));
    return scan(from, count, [&into](std::int64_t number, const Record& one) {
        into[static_cast<std::size_t>(number) - 1] = {one, true};
    });
}

}  // namespace

masters::masters(company_files& company)
    : customers_counted_(company.count(contatori::clienti)),
      articles_counted_(company.count(contatori::articoli)) {
    unread_customers_ = read_all(company.records().cli, customers_counted_, customers_);
    unread_articles_ = read_all(company.records().art, articles_counted_, articles_);
}

std::string masters::customer_named(int number) const {
    const rec_cli* one = customer(number);
    std::string name = one ? words_of(one->intestazione1.full()) : "";
    return name.empty() ? "cliente " + std::to_string(number) : name;
}

std::string masters::article_named(int number) const {
    const rec_art* one = article(number);
    const std::string code = one ? words_of(one->codice.full()) : "";
    return code.empty() ? "articolo numero " + std::to_string(number) : "articolo " + code;
}

}  // namespace vantora::archive
