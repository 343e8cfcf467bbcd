#pragma once

#include "program/list_grid.h"
#include "ui/controls.h"

namespace vantora {

/// A modal list of customers, found by any part of the name. Gives the chosen name back in the
/// field `nome` of the screen that called it.
class mirsel final : public ui::form {
 public:
    explicit mirsel(program& app);

    /// Columns of `elenco`.
    enum colonna { nominativo, nominativo2, indirizzo, citta, partita_iva, numero };

    ui::text_box selnome;  ///< part of the name, filled by the caller
    ui::grid elenco;
    ui::button srx[5];
    ui::button indice;  ///< leaves without a choice
    ui::picture xsfondo;

 protected:
    void load() override;
    void activate() override;
    void close() override;

 private:
    struct row_content;

    void build_list();
    void list_customers(list_rows& list);
    void list_customer(list_rows& list, const row_content& customer, std::int16_t number);
    void pick_row();
    void leave(const std::string& chosen_name, int outcome);

    program& app_;
    list_grid lista_;
};

}  // namespace vantora
