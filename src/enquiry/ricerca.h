#pragma once

#include "enquiry/enquiry_screen.h"

namespace vantora {

/// "Where is it?": looks for a text in all orders, the newest first: numbers, references,
/// destinations, customers, articles by code or description, free texts. The rows that hold it come
/// into the list as they are found; another search, a row opened or leaving ends the one that runs.
class ricerca final : public enquiry_screen {
 public:
    explicit ricerca(program& app);

    ui::text_box testo;  ///< what is looked for; Enter searches

    enum colonna { ordine, data, cliente, riga, trovato, registrazione, data_stored };

 protected:
    void activate() override;
    void open_row(int row) override;

 private:
    void search();
    void add_row(const rec_orc& head, const struct riga_trovata& at, std::string_view customer);

    int searches_ = 0;  ///< begun so far
    int found_ = 0;     ///< rows of the last one
};

}  // namespace vantora
