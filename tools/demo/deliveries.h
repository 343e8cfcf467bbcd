#pragma once

#include <string>
#include <vector>

#include "demo/lines.h"
#include "demo/output.h"
#include "orders/ddt_snapshot.h"
#include "store/records.h"

namespace vantora::demo {

/// What the deliveries of the orders left in the warehouse's files.
struct deliveries {
    std::vector<rec_mag> movements;  ///< the latest ones, as many as the file can number
    std::vector<rec_bol> documents;
};

/// The order that goods leave for.
struct order_delivered {
    int number = 0;
    int customer_number = 0;
    const rec_cli& customer;
    int day = 0;               ///< of the delivery
    int seconds = 0;           ///< within its day
    std::string_view choices;  ///< port and transport, as its save packs them
};

/// The warehouse's papers of one delivery, as it goes through the lines of an order.
class delivery {
 public:
    delivery(const order_delivered& of, deliveries& into)
        : of_(of), into_(into), number_(static_cast<int>(into.documents.size()) + 1) {}

    /// A quantity of a line leaves, in tenths.
    void add(const document_line& line, long long quantity, const std::vector<article>& articles);
    /// A line goes with the goods, as text so far.
    riga_ordine& add_text(const document_line& line);
    /// The document is written down, its text file with it, unless nothing left.
    void close(folder_writer& folder);

 private:
    [[nodiscard]] double moment() const { return of_.day + of_.seconds / 86400.0; }
    void write_text_file(folder_writer& folder);

    order_delivered of_;
    deliveries& into_;
    int number_;
    bool delivered_ = false;
    istantanea_ddt kept_;
    int lines_ = 0;
    double weight_ = 0;
};

}  // namespace vantora::demo
