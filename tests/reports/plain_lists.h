#pragma once

#include <cmath>

#include "reports/report_screen.h"
#include "reports/report_stage.h"
#include "store/money.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora::test {

/// The lists of the reports by the plainest procedure: one record a read, the sheets with all
/// orders read anew for every article or customer. What can't be read stays as it was. Lives as
/// long as the screen that it is compared with, whose fields it reads.
class plain_lists {
 public:
    plain_lists(archivi& files, report_screen& screen, const parametri& parameters)
        : files_(files), screen_(screen), in_(parameters) {}

    grid_rows order_list() {
        begin(28);
        return by_order(0);
    }
    grid_rows schedule() {
        begin(28);
        return by_order(1);
    }

    grid_rows valuation() {
        begin(28);
        double total = 0;
        for (int i = first_; i <= last_; ++i) {
            double ordered = 0;
            double fulfilled = 0;
            std::string text;
            for (int j = 1; j <= 200; ++j) {
                read(i, j, row_);
                if (j == 1) text = row_.testo1.trimmed();
                if (row_.quantita == 0) continue;
                ordered += net(row_.quantita);
                fulfilled += net(row_.evaso);
            }
            const double values[] = {ordered, ordered - fulfilled, fulfilled};
            const double value = arrotonda_valuta(values[screen_.Combo1.chosen()], in_);
            if (value == 0) continue;
            next({row_.numero.trimmed(), day(row_.data), text, name_of(row_.cliente),
                  formato_importo(value, in_), std::to_string(i)});
            total += value;
        }
        next({"", "", "Importo complessivo", "", formato_importo(total, in_)});
        return end();
    }

    grid_rows article_sheets() {
        begin(26);
        bring_bounds_back();
        rec_sra entry;
        for (int k = 1; k <= articles_; ++k) {
            files_.sra.read(k, entry);
            files_.art.read(entry.numero, article_);
            if (!article_passes()) continue;
            begin_sheet(code_and_text(article_.descrizione.trimmed()), entry.numero);
            for (int i = first_; i <= last_; ++i) {
                for (int j = 1; j <= 200; ++j) {
                    read(i, j, row_);
                    if (row_.articolo != entry.numero) continue;
                    const std::string customer = name_of(row_.cliente);
                    read(i, 1, head_);
                    next_of_sheet({head_.numero.trimmed(), day(head_.data), head_.testo1.trimmed(),
                                   customer});
                }
            }
            end_sheet();
        }
        return end();
    }

    grid_rows customer_sheets() {
        begin(28);
        bring_bounds_back();
        rec_src entry;
        for (int k = 1; k <= customers_; ++k) {
            files_.src.read(k, entry);
            files_.cli.read(entry.numero, customer_);
            const std::string_view name = customer_.intestazione1.trimmed();
            if (!in_bounds(upper(name)) || customer_.eliminato != 0) continue;
            begin_sheet(name, entry.numero);
            for (int i = first_; i <= last_; ++i) {
                read(i, 1, row_);
                if (row_.cliente != entry.numero) continue;
                for (int j = 1; j <= 200; ++j) {
                    read(i, j, row_);
                    const bool blank = row_.descrizione.trimmed().empty();
                    if (blank && row_.quantita == 0 && row_.prezzo == 0) continue;
                    next_of_sheet({"", "", "", text_of(row_.articolo <= articles_)});
                    if (j == 1)
                        put(1, {row_.numero.trimmed(), day(row_.data), row_.testo1.trimmed()});
                }
            }
            end_sheet();
        }
        return end();
    }

    /// Whether rows of the last list found no place.
    [[nodiscard]] bool cut() const { return cut_; }

 private:
    using cells = std::initializer_list<std::string_view>;

    static std::string day(const text<8>& stored) { return date_text_of_stored(stored.full()); }
    static std::string quantity(double value) {
        return value == 0 ? "" : masked(value, "########0.#0");
    }
    static int number_in(const ui::text_box& field) {
        return static_cast<int>(std::nearbyint(number_at_head(field.text())));
    }

    void begin(std::size_t least_rows) {
        const auto count = [this](int which) {
            rec_tot counter;
            files_.tot.read(which, counter);
            return counter.quanti;
        };
        articles_ = count(contatori::articoli);
        customers_ = count(contatori::clienti);
        orders_ = count(contatori::ordini);
        first_ = number_in(screen_.text1[0]);
        last_ = number_in(screen_.text1[1]);
        cut_ = false;
        least_rows_ = least_rows;
        if (screen_.Combo0.count() == 0 && screen_.name() != "mirston") leave_out_nothing();
        // Each build looks these up afresh; the row goes on from build to build.
        customer_ = {};
        article_ = {};
        head_ = {};
        rows_.clear();
    }
    void bring_bounds_back() {
        if (first_ < 1) first_ = 1;
        if (last_ > orders_) last_ = orders_;
        if (last_ < first_) first_ = last_;
        leave_out_nothing();
    }
    void next(cells of) {
        rows_.emplace_back(screen_.elenco.cols());
        put(0, of);
    }
    void put(std::size_t col, cells of) {
        for (const std::string_view one : of) rows_.back()[col++] = one;
    }
    /// Block numbers that no row can have.
    void leave_out_nothing() {
        first_ = std::max(first_, 1);
        while (last_ > 0 && (last_ - 1) * std::int64_t{200} >= *files_.orc.records_held()) --last_;
    }
    grid_rows end() {
        for (std::size_t i = 31999; i < rows_.size(); ++i) {
            cut_ = cut_ || std::ranges::any_of(rows_[i], [](auto& cell) { return !cell.empty(); });
        }
        rows_.resize(std::min<std::size_t>(rows_.size(), 31999));
        while (rows_.size() + 1 < least_rows_) next({});
        return rows_;
    }

    void read(int order, int row, rec_orc& into) { files_.orc.read((order - 1) * 200 + row, into); }
    std::string name_of(int customer) {
        if (customer < 1 || customer > customers_) return "";
        files_.cli.read(customer, customer_);
        return std::string(customer_.intestazione1.trimmed());
    }
    std::string code_and_text(std::string_view text) {
        return std::string(
            trimmed(std::string(article_.codice.trimmed()) + " " + std::string(text)));
    }
    std::string text_of(bool known) {
        if (!known || row_.articolo < 1) {
            std::string both(row_.descrizione.full());
            return std::string(trimmed(both.append(row_.descrizione2.full())));
        }
        files_.art.read(row_.articolo, article_);
        return code_and_text(article_.descrizione.full());
    }

    bool order_is_open(int order) {
        for (int j = 1; j <= 200; ++j) {
            read(order, j, row_);
            if (row_.quantita > row_.evaso) return true;
        }
        return false;
    }

    /// `due`: 1 for the schedule, which has a column of that name.
    grid_rows by_order(std::size_t due) {
        const int choice = screen_.Combo1.chosen();
        const bool all_rows = screen_.Combo2.chosen() == 1;
        const std::string from = stored_of_date_text(screen_.text2[0].text());
        const std::string to = stored_of_date_text(screen_.text2[1].text());
        for (int i = first_; i <= last_; ++i) {
            if (due && !order_is_open(i)) continue;
            bool shown = false;
            for (int j = 1; j <= (all_rows ? 200 : 1); ++j) {
                read(i, j, row_);
                if (row_.quantita == 0 && row_.descrizione.trimmed().empty()) continue;
                const std::string_view until = row_.data_evasione.full();
                if (due && (until < from || until > to)) continue;
                if (!due && choice == 1 && row_.quantita <= row_.evaso) continue;
                if (!due && choice == 2 && row_.quantita > row_.evaso) continue;
                const std::string customer = name_of(row_.cliente);
                next({});
                put(7 + due, {std::to_string((i - 1) * 200 + j)});
                if (!shown) {
                    put(0, {row_.numero.trimmed(), day(row_.data), row_.testo1.trimmed()});
                    if (due) put(3, {day(row_.data_evasione)});
                    put(3 + due, {customer});
                    put(8 + due, {std::to_string(i)});
                }
                shown = true;
                if (!all_rows) continue;
                put(4 + due, {text_of(true), quantity(row_.quantita), quantity(row_.evaso)});
            }
        }
        return end();
    }

    double net(double quantity) {
        double a = arrotonda_valuta(row_.prezzo * quantity, in_);
        a = a - percentuale_valuta(a, row_.sc1, in_);
        a = a - percentuale_valuta(a, row_.sc2, in_);
        return arrotonda_valuta(a, in_);
    }

    bool in_bounds(const std::string& key) {
        std::string low = upper(trimmed(screen_.t_inizio.text()));
        std::string high = upper(trimmed(screen_.t_fine.text()));
        return (low.empty() || key >= low) && (high.empty() || key <= high);
    }
    bool article_passes() {
        const auto begins = [](std::string_view text, const ui::text_box& with) {
            const std::string head = upper(trimmed(with.text()));
            return upper(text).substr(0, head.size()) == head;
        };
        const int category = screen_.Combo0.chosen();
        return in_bounds(upper(article_.codice.trimmed())) &&
               (category == 0 || number_at_head(article_.categoria.full()) + 1 == category) &&
               (begins(article_.classe1.full(), screen_.Text) ||
                begins(article_.classe2.full(), screen_.Text) ||
                begins(article_.classe3.full(), screen_.Text)) &&
               begins(article_.descrizione.full(), screen_.Text3) && article_.eliminato == 0;
    }

    void begin_sheet(std::string_view label, int number) {
        label_ = label;
        number_ = std::to_string(number);
        ordered_ = fulfilled_ = 0;
    }
    void next_of_sheet(cells of) {
        next({label_, "", "", "", "", quantity(row_.quantita), quantity(row_.evaso), number_});
        put(1, of);
        label_ = number_ = "";
        ordered_ += row_.quantita;
        fulfilled_ += row_.evaso;
    }
    void end_sheet() {
        if (!number_.empty()) return;
        next({"", "", "", "Totale", "", quantity(ordered_), quantity(fulfilled_)});
        next({});
    }

    archivi& files_;
    report_screen& screen_;
    const valuta in_;

    rec_orc row_;
    rec_orc head_;
    rec_cli customer_;
    rec_art article_;
    int articles_ = 0;
    int customers_ = 0;
    int orders_ = 0;
    int first_ = 1;
    int last_ = 0;
    std::size_t least_rows_ = 0;
    bool cut_ = false;
    std::string label_;  ///< of a sheet, for its first row
    std::string number_;
    double ordered_ = 0;
    double fulfilled_ = 0;
    grid_rows rows_;
};

}  // namespace vantora::test
