#pragma once

#include "enquiry/enquiry_screen.h"
#include "entry/draft_files.h"

namespace vantora {

/// The orders that the person was working on and hasn't saved: to be taken up again or given up.
class bozze final : public enquiry_screen {
 public:
    explicit bozze(program& app);

    enum colonna { cliente, ordine, riferimento, righe, tenuta_il, posizione };

 protected:
    std::string fill(list_rows& list) override;
    void open_row(int row) override;
    void run_command(int command, int row) override;

 private:
    void give_up(int row);
    [[nodiscard]] std::size_t place_of(int row) const;

    std::vector<bozza_trovata> found_;
};

int count_drafts(const program& app);

}  // namespace vantora
