#pragma once

#include <vector>

#include "orders/head_fields.h"
#include "program/program.h"
#include "store/suite_table.h"
#include "ui/controls.h"

namespace vantora {

/// In what the screens that show a customer differ.
struct customer_head_kind {
    const char* name;
    const char* title;
    int caller;                  ///< how the pick list knows it, in `selezione_cliente`
    std::size_t date_fields[2];  ///< which of `Text3` stand beside the two date pickers
    bool of_order = true;        ///< number and references go into an order's rows
};

/// A screen that finds a customer, shows it, and holds the head of a document in its controls:
/// other screens read them by name. What is edited here counts for that document only.
class customer_head : public ui::form {
 public:
    customer_head(program& app, const customer_head_kind& kind);

    /// Lists of `Combo1`.
    enum { porto, pagamento, trasporto };

    ui::text_box nome;  ///< name to search for
    ui::button b_cerca;
    ui::button b_lista;
    ui::scroll_bar HScroll1;  ///< runs over the customers in the order of their names
    ui::text_box Text2[campo_cliente::quanti];  ///< as `campo_cliente`
    ui::drop_down Combo3;                       ///< carriers
    ui::text_box Text3[campo_ordine::quanti];   ///< as `campo_ordine` or `campo_ddt`
    ui::date_picker text5[2];
    ui::drop_down Combo1[3];
    ui::button bottone;  ///< goes on
    ui::label Label2;    ///< "this customer is deleted"

    /// Finds the customer whose name begins with the text of `nome`, or says that there is none.
    void search();
    /// Whether somebody chose the customer shown, who otherwise is just the first one.
    [[nodiscard]] bool customer_chosen() const { return chosen_; }

    [[nodiscard]] contenuto_testata content() const;
    void show_content(const contenuto_testata& content);

 protected:
    void load() override;
    void close() override;
    /// Back from the pick list with a choice: looks it up. True if that was so.
    bool take_choice();
    /// Back from the pick list without one, and what was typed is to stay.
    [[nodiscard]] bool left_list_without_choice() const;

    /// Fills the lists that differ from screen to screen: the payment terms, where a screen has no
    /// others.
    virtual void fill_lists(const tabella_suite& table);
    virtual void go_on() = 0;

    /// Proposes the number behind the last one that a counter gave, and today for both dates; all
    /// else that a document adds is empty.
    void begin_document(int counter);
    /// Puts the cursor on the first customer, with `HScroll1` over all of them.
    void start_at_first_customer();
    virtual void scrolled();
    /// The search ended at a position of the name index.
    virtual void found_at(std::int16_t position);
    virtual void show_customer();
    /// Reads the customer at `posizione_cliente_`; what can't be read stays as it was.
    void read_customer();
    /// Rank of a customer in the name index, by the counter read last; 0 if it isn't there.
    [[nodiscard]] std::int16_t position_of(std::int16_t customer) const;
    /// Shows the fields of the customer read, and whether it is deleted.
    void show_fields();
    [[nodiscard]] bool customer_deleted() const;
    /// True if the customer shown may get a document.
    [[nodiscard]] bool customer_usable() const;

    program& app_;
    std::int16_t posizione_cliente_ = 0;  ///< rank in the name index, from 1
    std::int16_t cliente_corrente_ = 0;   ///< record number
    rec_src voce_;
    rec_cli cliente_;
    rec_tot contatore_;

 private:
    /// What the fields take from the keyboard: no text that its record would cut.
    void limit_hands();
    void wire_events();
    /// A window moves on from an empty name, which would find whoever stands in the middle.
    void search_by_hand();
    void take_carrier();
    void open_pick_list();
    /// Shows the very customer that was picked, where several have its name. False if the index
    /// has lost it.
    bool take_picked();

    const customer_head_kind& kind_;
    std::vector<vettore> vettori_;
    bool chosen_ = true;
    bool loading_ = false;
    bool picking_ = false;  ///< the pick list is open
};

}  // namespace vantora
