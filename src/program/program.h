#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "store/archives.h"
#include "store/day_book.h"
#include "store/parameters.h"
#include "ui/picture_decoder.h"
#include "ui/screen.h"

namespace vantora {

class mirdata;
class mirorc;
class mirorca;
class mirorcb;
class mirorcc;
class mirorcm;
class mirorcr;
class mirorcs;
class mirorcx;
class mirorcz;
class mirpref;
class mirsel;
class mirstoa;
class mirstoe;
class mirston;
class mirstos;
class mirstov;

class bozze;
class documenti;
class prezzi;
class quadro;
class ricerca;
class storia;

/// A row of an order; 0 for none.
struct riga_di_ordine {
    std::int16_t registrazione = 0;
    std::int16_t riga = 0;
};

/// What a row takes over from one that sold the same article.
struct prezzo_e_sconti {
    double prezzo = 0;
    std::int16_t sc1 = 0;
    std::int16_t sc2 = 0;
};

/// The running program, shared by all its screens: the open files, the parameters, the values that
/// pass from screen to screen, and the screens themselves. Built in `main`, handed to every screen
/// by reference; nothing else is shared.
struct program {
    program(file_port& on_files, ui::desk& on_desk, ui::picture_decoder& by)
        : files(on_files), desk(on_desk), pictures(by) {}

    file_port& files;
    ui::desk& desk;
    ui::picture_decoder& pictures;
    /// The folder of what belongs to the person and not to the archive: drafts, for one. Null
    /// where nothing of it is read or written.
    file_port* person = nullptr;
    /// Where copies of the archive are kept; empty: in "\\mirwin\\copie".
    std::filesystem::path copies;
    std::optional<day_book> book;  ///< of what was done; none where nobody keeps one
    archivi archives;
    parametri parameters;

    // What passes between screens -------------------------------------------------------------

    std::int16_t selezione_1 = 0;  ///< new order: customer; existing order: `registrazione`
    std::int16_t selezione_2 = 0;  ///< new order: chosen quote; existing order: customer
    /// How an entry screen opens: 0 fresh, 99 back from the quote picker, 1 from the head screen.
    int modo_ordine = 0;
    int schermo_pronto = 0;     ///< 0: the next screen starts fresh
    int ripristino_vista = 0;   ///< 1: the register puts its view options back, nothing is saved
    std::string scelta_ordine;  ///< block of the order chosen to be imported, empty for none
    int ricarica_registro = 0;  ///< 1: the register rebuilds its list on return
    int selezione_cliente = 0;  ///< who called the customer pick list, 99: a customer was chosen
    std::int16_t cliente_scelto = 0;  ///< record of the customer that was chosen there
    double data_sistema = 0;          ///< date number of the last confirmation

    // The date dialog: dates as texts, dd/mm/yyyy.
    std::string data_proposta;  ///< proposed to the user
    std::string data_riserva;   ///< instead of a proposal that is no date
    std::string data_scelta;    ///< what the user chose

    // Between the windows in which something is looked up and the screens behind them.

    struct {
        std::int16_t articolo = 0;
        std::int16_t cliente = 0;
    } prezzi_di;                                   ///< whose prices are looked up
    std::optional<prezzo_e_sconti> prezzo_scelto;  ///< for the row they were looked up from
    riga_di_ordine ordine_cercato;                 ///< to be shown now

    // The screens, under the system's own names -------------------------------------------------

    ui::screen<vantora::mirorc> mirorc;    ///< register
    ui::screen<vantora::mirorcx> mirorcx;  ///< customer of a new order
    ui::screen<vantora::mirorcs> mirorcs;  ///< lines of a new order
    ui::screen<vantora::mirsel> mirsel;    ///< customer pick list
    ui::screen<vantora::mirdata> mirdata;  ///< date dialog
    ui::screen<vantora::mirorcz> mirorcz;  ///< lines of an existing order
    ui::screen<vantora::mirorcm> mirorcm;  ///< head of an existing order
    ui::screen<vantora::mirorcb> mirorcb;  ///< quotes to import
    ui::screen<vantora::mirpref> mirpref;  ///< orders to import
    ui::screen<vantora::mirorcc> mirorcc;  ///< transport data
    ui::screen<vantora::mirorcr> mirorcr;  ///< fulfilment worklist
    ui::screen<vantora::mirorca> mirorca;  ///< lines of a transport document
    ui::screen<vantora::mirstoe> mirstoe;  ///< order list
    ui::screen<vantora::mirstos> mirstos;  ///< order schedule
    ui::screen<vantora::mirstov> mirstov;  ///< order valuation
    ui::screen<vantora::mirston> mirston;  ///< customer sheets
    ui::screen<vantora::mirstoa> mirstoa;  ///< article sheets

    // Where things are looked up ------------------------------------------------------------------

    ui::screen<vantora::bozze> bozze;          ///< orders that wait to be gone on with
    ui::screen<vantora::documenti> documenti;  ///< transport documents given out
    ui::screen<vantora::prezzi> prezzi;        ///< prices given before
    ui::screen<vantora::quadro> quadro;        ///< figures of the company at a glance
    ui::screen<vantora::ricerca> ricerca;      ///< search over all orders
    ui::screen<vantora::storia> storia;        ///< what became of an order
};

}  // namespace vantora
