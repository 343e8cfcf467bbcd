#pragma once

#include <cstdint>
#include <string_view>

#include "store/parameters.h"

namespace vantora {

/// Where a report goes.
enum class uscita_report { stampante = 0, pdf = 1 };

/// A column of a report.
struct colonna_report {
    std::string_view titolo_colonna;
    std::int16_t larghezza = 0;      ///< share of the page width, in parts of the sum of all shares
    std::int16_t formato_cella = 0;  ///< 0: a text; else a number, by its code
};

// The figures of a report's page, the printer's in twips, the print file's in millimetres. Both
// outputs make the same kind of page from them. Y positions count from the top limit unless said
// otherwise.

/// The part of the sheet that a report uses.
struct limiti_pagina {
    double sinistro = 0;
    double destro = 0;
    double alto = 0;
    double basso = 0;
};

/// What holds for both looks.
struct misure_colonne {
    double rientro_sinistro;  ///< of a text from the column's left edge
    double rientro_destro;    ///< of a number from the column's right edge
    double stacco;            ///< left free between the boxes of two columns
    double gioco;             ///< by which a text must be narrower than its column
    bool larghezza_intera;    ///< texts are fitted to the whole part of their column's width
};

/// Rows.
struct misure_righe {
    double prima = 0;            ///< Y of row number 0
    double volte_alto = 1;       ///< how often the top limit counts in the Y of a row
    double passo = 0;            ///< from row to row
    double altezza = 0;          ///< of a row's boxes, in the grey look
    double testo = 0;            ///< Y of the text in its row
    double linea = 0;            ///< Y of the line under a row, in its row
    double fascia_da = 0;        ///< stripe over the whole width, in its row; none where both are 0
    double fascia_a = 0;         ///<
    double fondo = 0;            ///< the page is full beyond the bottom limit less this
    int righe_massime = 0;       ///< the page is full with so many rows; 0: by position alone
    bool fine_a_destra = false;  ///< what is right aligned is told by its right end
};

/// Heading of the plain look.
struct misure_testata_piana {
    double titoli_da, titoli_a;   ///< band of the column headings
    bool banda_chiusa;            ///< the band is a box, else two lines
    double cornice;               ///< bottom of a frame that follows the rows, with none
    double nota_x, nota_y;        ///< from the left limit and the frame's bottom
    double pagina;                ///< right end of the page note, before the right limit
    double titolo_x, titolo_y;    ///<
    double ditta;                 ///< right end of the company's lines, before the right limit
    double ditta_y, ditta_passo;  ///< of line number 0, and from line to line
    double titoli_y;              ///<
};

/// Heading of the look with a grey band.
struct misure_testata_grigia {
    double banda;                          ///< bottom of the title's band
    double titolo_x, titolo_y;             ///<
    double destra;                         ///< right end of the notes, before the right limit
    double nota_y, pagina_y;               ///<
    double cornice_da, cornice_a;          ///< frame around the company
    double azienda_x, azienda_y;           ///<
    double ditta_x, ditta_y, ditta_passo;  ///< of line number 0, and from line to line
    double titoli_da, titoli_a;            ///< boxes of the column headings
    double titoli_y;                       ///<
    double corpo_titoli;                   ///< points; measured in size 8 all the same
    double chiusura;                       ///< height of the closing band
};

limiti_pagina page_limits_in_file(int orientamento);
/// `width` and `height` of the sheet in twips; the margins are thousandths of them.
limiti_pagina page_limits_on_printer(const voce_stampa& margini, double width, double height);

/// How a report's pages are laid out.
struct aspetto_report {
    bool grigio = false;  ///< the look with a grey band, else the plain one
    bool orizzontale = false;
    double passo = 0;  ///< row pitch of the plain look on the printer, in twips
};

const misure_colonne& column_measures(uscita_report uscita);
misure_righe row_measures(uscita_report uscita, const aspetto_report& look);
const misure_testata_piana& plain_heading_measures(uscita_report uscita);
const misure_testata_grigia& grey_heading_measures(uscita_report uscita);

}  // namespace vantora
