#pragma once

#include <optional>
#include <vector>

#include "orders/order_seen.h"
#include "program/list_grid.h"
#include "ui/controls.h"

namespace vantora {

class import_picker;

/// In what the two pickers differ.
struct import_picker_kind {
    const char* name;
    const char* title;
    const char* hint;                      ///< UTF-8
    const char* empty;                     ///< why the list may be empty
    std::vector<ui::grid_column> columns;  ///< the last one, hidden, holds the block's number
    /// Lists the head rows of the blocks that can be chosen.
    void (*fill)(program& app, import_picker& picker, list_rows& list);
    int contatore;  ///< counts the blocks
    /// What stands in a block now; empty if it can't be read.
    std::optional<ordine_visto> (*look)(const archivi& files, int block);
};

/// A list of quotes or orders whose lines a new order can take over.
class import_picker : public ui::form {
 public:
    import_picker(program& app, import_picker_kind kind);

    ui::label Label1;
    ui::grid elenco;
    ui::button bottone;  ///< leaves without a choice

    /// Column with the block's number.
    [[nodiscard]] int block_col() const { return elenco.cols() - 1; }
    /// The next row shows this.
    void note(const ordine_visto& listed, bool read) { visti_.emplace_back(listed).letto = read; }

 protected:
    void load() override { elenco.set_columns(kind_.columns); }
    void activate() override { build_list(); }

    /// The user chose the block with this number, or none.
    virtual void leave(const std::string& block) = 0;

    program& app_;

 private:
    void choose(int row);
    void build_list();
    /// Whether something else stands in a row's block by now.
    [[nodiscard]] bool moved_elsewhere(int row) const;
    void tell_moved(int row);

    import_picker_kind kind_;
    list_grid lista_;
    rec_tot contatore_;                ///< as the list was read
    std::vector<ordine_visto> visti_;  ///< from row 1 on
};

/// The customer's quotes.
class mirorcb final : public import_picker {
 public:
    explicit mirorcb(program& app);

 protected:
    void close() override;
    void leave(const std::string& block) override;
};

/// The orders of all customers. The order being entered stays alive behind it.
class mirpref final : public import_picker {
 public:
    explicit mirpref(program& app);

 protected:
    void close() override;
    void leave(const std::string& block) override;
};

}  // namespace vantora
