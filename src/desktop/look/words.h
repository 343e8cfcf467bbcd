#pragma once

namespace vantora::ui::desktop::words {

// What the windows say in several places, in UTF-8.

inline constexpr const char* find_in_list = "Trova nell'elenco";
inline constexpr const char* copy_rows = "Copia le righe segnate";
inline constexpr const char* save_list = "Salva l'elenco in CSV";
inline constexpr const char* csv_files = "File CSV";
inline constexpr const char* cannot_write = "Il file %1 non si può scrivere: %2";
inline constexpr const char* open = "&Apri";
inline constexpr const char* cancel = "A&nnulla";
inline constexpr const char* pdf_files = "Documenti PDF";
inline constexpr const char* paste_file = "Inserisce le righe di un file CSV";
inline constexpr const char* break_off = "Interrompi";
inline constexpr const char* nameless_job = "Documento";
inline constexpr const char* print = "Stampa";
inline constexpr const char* save_pdf = "Salva in PDF";
inline constexpr const char* no_drawing = "le pagine non si disegnano";
inline constexpr const char* help = "Aiuto: tasti e manuale";
inline constexpr const char* show_keys = "Tasti di questa finestra";
inline constexpr const char* open_manual = "Apri il manuale";
inline constexpr const char* about = "Informazioni sul programma";
inline constexpr const char* compaction = "Compatta l'archivio degli ordini";

}  // namespace vantora::ui::desktop::words
