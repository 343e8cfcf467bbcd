#pragma once

#include "enquiry/enquiry_screen.h"

namespace vantora {

/// The transport documents given out, the newest first; each can be seen, printed and made into a
/// PDF again as it was. Printing again changes no number, no stock and no file of the archive.
class documenti final : public enquiry_screen {
 public:
    explicit documenti(program& app);

    enum colonna { numero, data, cliente, colli, movimento, documento, data_stored };
    enum comando { anteprima = 1, stampa, pdf };

 protected:
    std::string fill(list_rows& list) override;
    void open_row(int row) override;
    void run_command(int command, int row) override;

 private:
    void list_document(list_rows& list, const rec_bol& one, int number, std::string_view name);
};

}  // namespace vantora
