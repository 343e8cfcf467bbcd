#pragma once

#include "program/program.h"
#include "ui/controls.h"

namespace vantora {

/// Asks for one date. The caller proposes it in `data_proposta`, with `data_riserva` for when that
/// is no date, and finds the answer in `data_scelta`. There is no way to cancel: closing the dialog
/// chooses the date that stands in it.
class mirdata final : public ui::form {
 public:
    explicit mirdata(program& app);

    ui::date_picker nuovadata;

 protected:
    void load() override;
    void activate() override { nuovadata.set_focus(); }
    void close() override { choose(); }

 private:
    void choose();

    program& app_;
};

}  // namespace vantora
