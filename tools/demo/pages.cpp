#include "demo/page.h"

namespace vantora::demo {

namespace {

// The order -----------------------------------------------------------------------------------

constexpr font order_title_font{.points = 15, .bold = true, .colour = navy};
constexpr font exemption_font{.points = 7};
constexpr font total_font{.points = 9, .bold = true};
constexpr font grand_total_font{.points = 12, .bold = true, .colour = white};

constexpr panel order_panels[] = {
    {118, 18, 141, 28, "Ordine n."},
    {141, 18, 164, 28, "Data"},
    {164, 18, 187, 28, "Evasione"},
    {187, 18, 200, 28, "Pag."},
    {10, 34, 103, 58, "Cliente"},
    {107, 34, 200, 58, "Destinazione della merce"},
    {10, 60, 50, 69, "Partita IVA"},
    {50, 60, 94, 69, "Codice fiscale"},
    {94, 60, 128, 69, "Telefono"},
    {128, 60, 200, 69, "Pagamento"},
    {10, 71, 103, 89, "Riferimenti dell'ordine"},
    {107, 71, 200, 89, "Vettore"},
    {10, 226, 72, 249, "Riepilogo IVA"},
    {75, 226, 137, 249, "Operazioni senza imposta"},
    {140, 226, 200, 249, "Totali"},
    {10, 252, 137, 266, "Note"},
    {140, 252, 200, 266, "Firma per accettazione"},
};

constexpr panel order_bands[] = {{140, 241, 200, 249, "TOTALE €"}};

constexpr field order_fields[] = {
    {65, 118, 9, order_title_font},
    {33, 120, 23, head_font},
    {34, 143, 23, head_font},
    {40, 166, 23, head_font},
    {35, 189, 23, head_font},
    {44, 130, 65, plain_font},
    {36, 12, 76, head_font},
    {37, 12, 80, text_font},
    {38, 12, 84, text_font},
    {41, 109, 76, head_font},
    {42, 109, 80, text_font},
    {43, 109, 84, text_font},
    // VAT and totals
    {47, 38, 235, text_font},
    {48, 45, 235, text_font},
    {49, 70, 235, text_font},
    {50, 38, 239, text_font},
    {51, 45, 239, text_font},
    {52, 70, 239, text_font},
    {53, 38, 243, text_font},
    {54, 45, 243, text_font},
    {55, 70, 243, text_font},
    {56, 97, 235, text_font},
    {57, 100, 235, exemption_font},
    {58, 97, 239, text_font},
    {59, 100, 239, exemption_font},
    {60, 97, 243, text_font},
    {61, 100, 243, exemption_font},
    {62, 198, 231, total_font},
    {63, 198, 236, total_font},
    {64, 198, 243, grand_total_font},
    // Foot
    {66, 12, 257, text_font},
    {67, 12, 261, text_font},
    {45, 78, 257, text_font},
};

constexpr fixed_text order_texts[] = {
    {26, 231, "Imponibile", footer_font},
    {44, 231, "Aliquota %", footer_font},
    {61, 231, "Imposta", footer_font},
    {88, 231, "Importo", footer_font},
    {100, 231, "Titolo", footer_font},
    {142, 231, "Totale imponibile", text_font},
    {142, 236, "Totale IVA", text_font},
    {10, 268,
     "La merce viaggia a rischio e pericolo del committente, anche se venduta franco destino."
     " Reclami entro 8 giorni dal ricevimento.",
     footer_font},
    {10, 272,
     "I prezzi si intendono al netto dell'IVA. I termini di consegna sono indicativi."
     " Foro competente: Brescia.",
     footer_font},
};

constexpr column order_columns[] = {
    {70, 10, "Codice"},
    {71, 36, "Descrizione"},
    {72, 109, "Quantità", side::right},
    {73, 126, "UM"},
    {74, 134, "Prezzo", side::right},
    {77, 153, "Sconti"},
    {76, 167, "Importo", side::right},
    {78, 190, "IVA"},
};

// The transport document ----------------------------------------------------------------------

constexpr font transport_title_font{.points = 12, .bold = true, .colour = navy};

constexpr panel transport_panels[] = {
    {130, 18, 157, 28, "Documento n."},
    {157, 18, 185, 28, "Data"},
    {185, 18, 200, 28, "Pag."},
    {10, 34, 103, 58, "Destinatario"},
    {107, 34, 200, 58, "Luogo di destinazione"},
    {10, 60, 50, 69, "Partita IVA"},
    {50, 60, 94, 69, "Codice fiscale"},
    {94, 60, 128, 69, "Telefono"},
    {128, 60, 200, 69, "Causale del trasporto"},
    {10, 214, 66, 223, "Aspetto dei beni"},
    {66, 214, 86, 223, "Colli"},
    {86, 214, 108, 223, "Peso kg"},
    {108, 214, 154, 223, "Porto"},
    {154, 214, 200, 223, "Trasporto a cura del"},
    {10, 226, 137, 243, "Vettore"},
    {140, 226, 200, 243, "Inizio del trasporto"},
    {10, 246, 200, 259, "Annotazioni"},
    {10, 262, 72, 278, "Firma del conducente"},
    {75, 262, 137, 278, "Firma del vettore"},
    {140, 262, 200, 278, "Firma del destinatario"},
};

constexpr field transport_fields[] = {
    {48, 130, 9, transport_title_font},
    {33, 132, 23, head_font},
    {34, 159, 23, head_font},
    {35, 187, 23, head_font},
    {36, 130, 65, plain_font},
    // Transport
    {39, 12, 219, plain_font},
    {37, 68, 219, plain_font},
    {38, 88, 219, plain_font},
    {40, 110, 219, plain_font},
    {41, 156, 219, plain_font},
    {43, 12, 231, head_font},
    {44, 12, 235, text_font},
    {45, 12, 239, text_font},
    {46, 157, 232, head_font},
    {47, 157, 238, head_font},
    {49, 12, 251, text_font},
    {50, 12, 255, text_font},
};

constexpr fixed_text transport_texts[] = {
    {130, 14, "D.P.R. 14 agosto 1996, n. 472", footer_font},
    {142, 232, "Data", text_font},
    {142, 238, "Ora", text_font},
};

constexpr column transport_columns[] = {
    {53, 10, "Codice", side::left, 9},
    {54, 42, "Descrizione dei beni", side::left, 9},
    {55, 162, "Quantità", side::right, 9},
    {56, 188, "UM", side::left, 9},
};

}  // namespace

const page order_page{
    .panels = order_panels,
    .bands = order_bands,
    .fields = order_fields,
    .texts = order_texts,
    .lines = {.head_top = 91,
              .text_top = 98,
              .text_bottom = 222,
              .right = 200,
              .text_top_row = 68,
              .text_bottom_row = 69,
              .columns = order_columns},
};

const page transport_page{
    .panels = transport_panels,
    .bands = {},
    .fields = transport_fields,
    .texts = transport_texts,
    .lines = {.head_top = 72,
              .text_top = 79,
              .text_bottom = 211,
              .right = 200,
              .text_top_row = 51,
              .text_bottom_row = 52,
              .columns = transport_columns},
};

}  // namespace vantora::demo
