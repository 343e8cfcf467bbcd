#include "demo/fonts.h"

namespace vantora::demo {

namespace {

constexpr font title_font{.points = 12, .bold = true, .colour = navy};

constexpr panel panel_table[] = {
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

constexpr field field_table[] = {
    {48, 130, 9, title_font},
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

constexpr fixed_text text_table[] = {
    {130, 14, "D.P.R. 14 agosto 1996, n. 472", footer_font},
    {142, 232, "Data", text_font},
    {142, 238, "Ora", text_font},
};

constexpr column column_table[] = {
    {53, 10, "Codice", side::left, 9},
    {54, 42, "Descrizione dei beni", side::left, 9},
    {55, 162, "Quantità", side::right, 9},
    {56, 188, "UM", side::left, 9},
};

}  // namespace

const page transport_page{
    .panels = panel_table,
    .bands = {},
    .fields = field_table,
    .texts = text_table,
    .lines = {.head_top = 72,
              .text_top = 79,
              .text_bottom = 211,
              .right = 200,
              .text_top_row = 51,
              .text_bottom_row = 52,
              .columns = column_table},
};

}  // namespace vantora::demo
