#pragma once

#include "enquiry/company_figures.h"
#include "enquiry/enquiry_screen.h"

namespace vantora {

/// The company at a glance: bars of what is due, open, delivered, sold and short. Enter on a bar
/// lists the orders or movements behind it, Enter on an order opens it.
class quadro final : public enquiry_screen {
 public:
    explicit quadro(program& app);

    /// Columns while the bars are shown.
    enum colonna { sezione, voce, valore, millesimi };
    /// Columns while the orders behind a bar are shown.
    enum colonna_ordini { ordine, data, cliente, descrizione, registrazione };
    /// Columns while the movements behind it are.
    enum colonna_movimenti { movimento, giorno, destinatario, articolo, quantita, importo };

    /// Whether the list holds bars, not orders.
    [[nodiscard]] bool shows_bars() const { return !behind_; }

 protected:
    std::string fill(list_rows& list) override;
    void open_row(int row) override;
    void run_command(int command, int row) override;
    void go_back() override;

 private:
    struct gruppo {
        const char* titolo;  ///< code page
        const std::vector<barra>& barre;
        bool importi;  ///< amounts, not quantities
    };
    [[nodiscard]] std::vector<gruppo> groups() const;
    std::string fill_bars(list_rows& list);
    std::string fill_orders(list_rows& list, const barra& of);
    std::string fill_movements(list_rows& list, const barra& of);
    void print() const;

    quadro_azienda figures_;
    bool counted_ = false;
    std::vector<const barra*> bars_;  ///< by row
    const barra* behind_ = nullptr;   ///< whose orders or movements are shown
    int at_ = 0;                      ///< its row
};

}  // namespace vantora
