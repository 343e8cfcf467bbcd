#pragma once

#include "entry/order_screen.h"

namespace vantora {

/// The lines of a new order; its customer and head stand in `mirorcx`.
class mirorcs final : public order_screen {
 public:
    explicit mirorcs(program& app);

    /// Commands of `comando` beside those that all have.
    enum { importa_ordine = stampante + 1, importa_preventivo };

    /// "0" while an order to import is being chosen in `mirpref`, which sets it to "1".
    ui::label numfat;

 protected:
    void open() override;
    bool may_save() override;
    change_outcome store() override;
    void run_own_command(int command) override;
    void describe(bozza& draft) const override;

 private:
    /// Shows the lines of a source, or tells which of its rows couldn't be read.
    void imported(const std::vector<int>& unread, const std::string& source);
    void choose_quote();
    void import_order();
    /// The user left the order, and it may stand here anew.
    [[nodiscard]] bool gone() const;
};

}  // namespace vantora
