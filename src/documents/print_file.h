#pragma once

#include <string>
#include <string_view>

namespace vantora {

// The print file: a page description as text, left behind by every document and report, from
// which `mirxpdf` makes a PDF. One first line, then records of eleven lines each, one value a line,
// lines ended by CR LF, in the code page. Millimetres from the page's upper left corner.

/// There is one for the whole machine; each document and report empties it.
inline constexpr std::string_view file_di_stampa = "c:\\mirdoc.rto";

inline constexpr std::string_view marca_verticale = "#FILEFORMAT=KLP-RTO";      ///< 210 by 297
inline constexpr std::string_view marca_orizzontale = "#FILEFORMAT=KLP-RTO-O";  ///< 297 by 210

/// First line of a record.
enum class tipo_record { figura = 0, linea = 1, riquadro = 2, testo = 3, pagina = 9 };

/// The eleven lines of a record, by their meaning. What a kind of record doesn't use is 0 or empty.
template <class Text>
struct righe_di_record {
    tipo_record tipo = tipo_record::pagina;
    double x1 = 0;
    double y1 = 0;         ///< of a text: its top
    double x2 = 0;         ///< of a picture: third value of its drawing element
    double y2 = 0;         ///< of a text: 1 if x1 is its right end; of a picture: fourth value
    double corpo = 0;      ///< font size in points
    double colore = 0;     ///< 24 bits, red in the low byte
    Text testo{};          ///< the text, or the path of the picture's file; code page
    Text carattere{};      ///< font name
    double grassetto = 0;  ///< not 0: bold; of a box: 1 filled, 0 outline
    double corsivo = 0;    ///< not 0: italic
};

using record_di_stampa = righe_di_record<std::string>;
/// A record whose texts lie elsewhere, for writers of many.
using vista_di_record = righe_di_record<std::string_view>;

/// How a text's last two lines stand: as numbers, or both as the text "0", without the blanks of a
/// number, as the plain rows of reports have them.
enum class forma_stile { numeri, zeri_come_testo };

inline constexpr int righe_per_record = 11;

}  // namespace vantora
