#pragma once

#include <cstring>
#include <span>

#include "orders/order_seen.h"
#include "program/list_grid.h"
#include "store/archive_change.h"
#include "ui/controls.h"

namespace vantora {

class article_texts;

/// What the list showed of an order's row, as far as a booking rests on it.
struct riga_vista {
    explicit riga_vista(const rec_orc& row)
        : quantita(row.quantita),
          evaso(row.evaso),
          articolo(row.articolo),
          annullato(row.annullato),
          evaso_flag(row.evaso_flag) {}

    bool operator==(const riga_vista& other) const {
        return std::memcmp(this, &other, sizeof other) == 0;
    }

    f64le quantita;
    f64le evaso;
    i16le articolo;
    i16le annullato;
    i16le evaso_flag;
};

/// The worklist of a fulfilment: all open rows of the current customer's orders. The user says how
/// much of each leaves, and the confirmation books it and hands it over to the transport document.
class mirorcr final : public ui::form {
 public:
    explicit mirorcr(program& app);

    /// Columns of `elenco`.
    enum colonna {
        ordine,
        data,
        descrizione,
        articolo,
        ordinato,
        da_evadere,
        evaso,  ///< what leaves: a quantity, or "*" for a line of text
        numero_riga,
        numero_ordine
    };

    /// Commands of `bottone`.
    enum { uscita, conferma };

    ui::grid elenco;
    ui::text_box quantita;  ///< over the cell of a quantity that is being typed
    ui::check_box aggiorna;
    ui::button bottone[2];
    ui::label Label1[3];
    ui::label segnate;  ///< how much is marked to leave
    ui::label scorta;   ///< stock of the current row's article, and what the marks leave of it

    /// The editor goes, its cell stays as it was.
    void leave_editor();
    /// The customer whose orders these are.
    [[nodiscard]] std::string subject() const override;
    /// What is marked and not booked would be lost.
    bool may_end() override;

 protected:
    void load() override;
    void activate() override;
    void settled() override;
    void close() override;

 private:
    void wire_events();

    // The list ----------------------------------------------------------------------------------

    void build_list();
    void list_orders(std::int16_t orders);
    void list_rows_of(int order, std::span<const rec_orc> rows, article_texts& articles);
    void list_row(int order, std::int64_t record, bool first_of_order, article_texts& articles);
    /// Whether an order is one of the customer's that can be fulfilled.
    [[nodiscard]] bool is_listed(const rec_orc& head) const;

    // What leaves -------------------------------------------------------------------------------

    void cell_clicked();
    void mark_order(int order);
    /// All of the rows leaves; a window takes their marks back by the click that set them.
    void mark_rows(const std::vector<int>& rows);
    void open_editor();
    /// What the editor holds goes into its cell.
    void take_edited();
    /// What marks all of a row to leave.
    [[nodiscard]] std::string whole_mark(int row) const;
    [[nodiscard]] int marked_rows() const;
    void show_marked();
    [[nodiscard]] double number_in(int row, int col) const;

    // Booking -----------------------------------------------------------------------------------

    void checkeva();
    /// Books what leaves and closes the orders it ends.
    change_outcome book();
    [[nodiscard]] std::string marked_orders() const;  ///< "12, 13": of which something leaves
    /// What is looked at before the first row is booked.
    void look_before_booking(archive_change& change) const;
    /// Nothing was booked; a list that isn't right any more is built anew.
    void stay(const change_outcome& outcome);
    /// The marked rows that other stations changed, each in words.
    [[nodiscard]] std::string changed_rows() const;
    /// Builds the list anew; what was marked of rows that are as they were stays marked.
    void list_anew();
    void book_marked_rows(archive_change& change);
    void take_transport_data(archive_change& change, int order);
    void close_fulfilled_orders(archive_change& change);

    program& app_;
    bool editing_ = false;
    rec_tot ordini_;
    rec_tot articoli_;
    rec_orc riga_;  ///< the row read last; what can't be read stays as it was
    list_grid lista_;
    std::vector<ordine_visto> visti_;  ///< the orders whose rows are listed
    std::vector<riga_vista> viste_;    ///< their rows, from row 1 of `elenco` on
    int righe_ = 1;                    ///< rows of `elenco` in use, head included
};

}  // namespace vantora
