#include "reports/report.h"

namespace vantora {

void stampa_report(program& app, const descrizione_report& report, const ui::grid&,
                   uscita_report uscita) {
    constexpr const char* domanda = "Iniziare la stampa?";
    if (uscita == uscita_report::stampante &&
        !app.desk.ask(domanda, std::string(report.titolo_domanda))) {
        return;
    }
}

}  // namespace vantora
