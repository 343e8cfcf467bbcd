#pragma once

#include <string_view>
#include <vector>

#include "reports/list_cells.h"
#include "reports/report_screen.h"
#include "reports/sheet_rows.h"

namespace vantora {

/// Quantities of a row, or of a whole sheet.
struct somme {
    double ordinato = 0;
    double evaso = 0;
};

/// The head of an order, for the rows that show it.
struct testa_ordine {
    testa_ordine() = default;
    explicit testa_ordine(const rec_orc& row)
        : numero(row.numero), data(row.data), testo1(row.testo1) {}

    vantora::text<10> numero;
    vantora::text<8> data;
    vantora::text<40> testo1;
    bool read = true;  ///< the row could be read
};

/// What article and customer sheets share: they stand in the order of an index, each with the rows
/// of the orders in question and their sums, and are built when the user asks for them.
class sheet_report : public report_screen {
 protected:
    using report_screen::report_screen;

    limiti_ordini limits() override { return correct_limits(); }

    /// Columns that both sheets have at the same place.
    enum colonna { scheda, ordine, data, descrizione, ordinato = 5, evaso, numero };

    static void list_head(list_rows& list, const testa_ordine& head);
    static void list_quantities(list_rows& list, const somme& amounts);
    /// The sums of a sheet, and a blank line behind them.
    static void list_totals(list_rows& list, const somme& sums);

    /// The whole work: the index, then the orders.
    void plan(int entries, const limiti_ordini& orders);
    bool entry_done();
    bool head_done();
    bool order_done();
    /// The orders are done, and their rows are being listed.
    bool listing();

 private:
    double planned_ = 1;
    double done_ = 0;
};

/// Sheets of one kind: `Title` is what stands at the head of a sheet, `Row` what its report shows
/// of a row of an order, with the row's `quantita`.
template <class Title, class Row>
class sheets_report : public sheet_report {
 protected:
    using sheet_report::sheet_report;

    struct raccolta {
        struct scheda {
            std::int16_t numero;
            Title titolo;
        };

        void expect(std::int16_t number, const Title& title) {
            schede.push_back({number, title});
            righe.expect(number);
        }

        std::vector<scheda> schede;  ///< in the order of the index
        sheet_rows<Row> righe{righe_report};
        std::vector<testa_ordine> teste;
    };

    /// Chooses the sheets. False if the work ends here.
    virtual bool choose_sheets(raccolta& found) = 0;
    /// Which of the orders will be read, in which order; none if the work ends here.
    virtual std::vector<int> orders_to_read(const raccolta& found, const limiti_ordini& orders) = 0;
    /// Whether no further row can be listed.
    virtual bool complete(const raccolta& found) const { return found.righe.complete(); }
    virtual void take_rows(raccolta& found, int order) = 0;
    virtual void list_sheets(list_rows& list, raccolta& found) = 0;

    void fill(list_rows& list, const limiti_ordini& orders) final {
        plan(last_step(orders), orders);
        raccolta found;
        if (!choose_sheets(found)) return;
        const std::vector<int> to_read = orders_to_read(found, orders);
        ordini_.walk_blocks(to_read);
        for (const int order : to_read) {
            if (complete(found)) break;
            take_rows(found, order);
            if (!order_done()) return;
        }
        list_sheets(list, found);
    }

    /// Lists the sheets that have rows. `write_own(row)` writes what this kind alone shows of a
    /// row; customers and articles may have to be fetched for it.
    template <class WriteOwn>
    void list_each(list_rows& list, raccolta& found, WriteOwn write_own) {
        found.righe.group();
        for (const auto& sheet : found.schede) {
            if (!listing()) return;
            const auto rows = found.righe.rows_of(sheet.numero);
            if (rows.empty()) continue;
            if (list.full()) return list.cut_here();
            somme sums;
            for (const Row& row : rows) {
                list.next();
                write_own(row);
                list_quantities(list, row.quantita);
                if (&row == &rows.front()) {
                    list.write(scheda, title_text(sheet.titolo));
                    list.write(numero, std::to_string(sheet.numero));
                }
                sums.ordinato += row.quantita.ordinato;
                sums.evaso += row.quantita.evaso;
            }
            list_totals(list, sums);
        }
        if (found.righe.dropped()) list.cut_here();
    }

 private:
    static std::string title_text(const etichetta_articolo& article) { return article.title(); }
    static std::string_view title_text(const text<40>& name) { return name.trimmed(); }
};

}  // namespace vantora
