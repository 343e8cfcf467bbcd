#pragma once

#include <optional>
#include <vector>

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
};

/// A list of quotes or orders whose lines a new order can take over.
class import_picker : public ui::form {
 public:
    /// `kind` outlives the screen.
    import_picker(program& app, const import_picker_kind& kind);

    ui::label Label1;
    ui::grid elenco;
    ui::button bottone;  ///< leaves without a choice

    /// Column with the block's number.
    [[nodiscard]] int block_col() const { return elenco.cols() - 1; }

 protected:
    void load() override;
    void activate() override;

    /// The user chose the block with this number, or none.
    virtual void leave(const std::string& block) = 0;

    program& app_;

 private:
    const import_picker_kind& kind_;
    list_grid lista_;
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
