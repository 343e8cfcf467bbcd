#pragma once

#include "enquiry/enquiry_screen.h"

namespace vantora {

/// What became of the order that is open: its rows, ordered, fulfilled and left, then the documents
/// and movements that belong to it. Enter goes to the row, or shows the document again.
class storia final : public enquiry_screen {
 public:
    explicit storia(program& app);

    enum colonna { che_cosa, data, descrizione, ordinato, evaso, resta, riga, documento };

 protected:
    std::string fill(list_rows& list) override;
    void open_row(int row) override;
};

}  // namespace vantora
