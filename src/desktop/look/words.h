#pragma once

namespace vantora::ui::desktop::words {

// What the windows say in words of their own, in UTF-8; what screens say stands in their models.

// Choosing the company --------------------------------------------------------------------------

inline constexpr const char* drive_of_suite = "&Disco della suite";
inline constexpr const char* other_folder = "&Cartella...";
inline constexpr const char* folder_of_suite = "Disco della suite: la cartella che contiene mirwin";
inline constexpr const char* company = "Di&tta";
inline constexpr const char* no_company =
    "In questa cartella non ci sono ditte della suite. Scelga con Cartella quella che contiene "
    "mirwin, o cominci con una ditta di prova.";
inline constexpr const char* no_such_folder = "La cartella %1 non esiste.";
inline constexpr const char* several_drives = "Qui sotto ci sono più dischi della suite: %1";
inline constexpr const char* trial_company = "Ditta di &prova";
inline constexpr const char* no_trial_company = "La ditta di prova non si può creare in %1.";

// Waiting ------------------------------------------------------------------------------------

inline constexpr const char* read_meanwhile = "Letto intanto, e non inserito: %1";
inline constexpr const char* other_station = "Attesa di un'altra postazione";

// Finding in a list --------------------------------------------------------------------------

inline constexpr const char* find_in_list = "Trova nell'elenco";
inline constexpr const char* find_caption = "Trova";
inline constexpr const char* find_next = "Riga successiva (Invio)";
inline constexpr const char* find_previous = "Riga precedente (Maiusc+Invio)";
inline constexpr const char* find_close = "Chiude la ricerca (Esc)";
inline constexpr const char* find_take = "Ctrl+Invio: prende la riga trovata";
inline constexpr const char* find_none = "nessuna riga";
inline constexpr const char* find_one_of = "%1 di %2";  ///< which match, how many

inline constexpr const char* typed = "Cerca: %1";
inline constexpr const char* row_count = "Righe: %1";

// Copying and saving a list ------------------------------------------------------------------

inline constexpr const char* copy_rows = "Copia le righe segnate";
inline constexpr const char* mark_rows = "Segnano più righe, tutte le righe";
inline constexpr const char* mark_all = "Segna tutte le righe";
inline constexpr const char* save_list = "Salva l'elenco in CSV";
inline constexpr const char* csv_files = "File CSV";
inline constexpr const char* list_as_pdf = "Genera il PDF della lista";
inline constexpr const char* list_coming = "Lettura dell'archivio";

// Files ------------------------------------------------------------------------------------------

inline constexpr const char* cannot_write = "Il file %1 non si può scrivere: %2";
inline constexpr const char* look_in = "Cerca in:";
inline constexpr const char* file_name = "Nome del file:";
inline constexpr const char* file_type = "Tipo di file:";
inline constexpr const char* save = "&Salva";
inline constexpr const char* open = "&Apri";
inline constexpr const char* cancel = "A&nnulla";
inline constexpr const char* pdf_files = "Documenti PDF";
inline constexpr const char* text_files = "File di testo";
inline constexpr const char* save_text = "Salva l'elenco";
inline constexpr const char* empty_file = "Il file %1 è vuoto.";
inline constexpr const char* saved = "Salvato";
inline constexpr const char* saved_in = "Salvato in %1";
inline constexpr const char* open_folder = "Apri la &cartella";
inline constexpr const char* no_viewer =
    "Su questo computer nessun programma apre il file %1. Si apre la sua cartella.";
inline constexpr const char* no_folder_viewer =
    "Su questo computer nessun programma mostra la cartella %1";

// Lines of an order ------------------------------------------------------------------------------

inline constexpr const char* paste_lines = "Incolla righe";
inline constexpr const char* paste_key =
    "Nel codice: incolla righe copiate da un foglio di calcolo";
inline constexpr const char* paste_file = "Inserisce le righe di un file CSV";
inline constexpr const char* pasting = "Inserimento delle righe...";
inline constexpr const char* break_off = "Interrompi";
inline constexpr const char* too_large = "è troppo grande";
inline constexpr const char* cannot_read = "Il file %1 non si può leggere: %2";
inline constexpr const char* change_back = "Annulla l'ultima modifica delle righe";
inline constexpr const char* change_forth = "Rifà la modifica annullata (anche Ctrl+Y)";

// Printing ---------------------------------------------------------------------------------------

inline constexpr const char* printer_settings = "Imposta stampante";
inline constexpr const char* no_printer = "Nessuna stampante: salva il documento in PDF";
inline constexpr const char* nameless_job = "Documento";
inline constexpr const char* cannot_print = "Il documento non si può stampare su ";
inline constexpr const char* preview_first = "&Mostra le pagine prima di stampare";
inline constexpr const char* preview = "Anteprima di stampa";
inline constexpr const char* preview_of = "Anteprima: %1";
inline constexpr const char* print = "Stampa";
inline constexpr const char* save_pdf = "Salva in PDF";
inline constexpr const char* zoom_in = "Ingrandisce";
inline constexpr const char* zoom_out = "Riduce";
inline constexpr const char* fit_width = "Larghezza";
inline constexpr const char* fit_page = "Pagina intera";
inline constexpr const char* page_before = "Precedente";
inline constexpr const char* page_after = "Seguente";
inline constexpr const char* page_of = "Pagina %1 di %2";
inline constexpr const char* close_preview = "Chiudi";
inline constexpr const char* no_drawing = "le pagine non si disegnano";
inline constexpr const char* printing = "Stampa di %1";

// Keys and manual --------------------------------------------------------------------------------

inline constexpr const char* more = "Altro ▾";
inline constexpr const char* more_windows = "Altre finestre che si aprono da qui";
inline constexpr const char* help = "Aiuto: tasti e manuale";
inline constexpr const char* show_keys = "Tasti di questa finestra";
inline constexpr const char* keys_of_window = "Tasti: %1";
inline constexpr const char* open_manual = "Apri il manuale";
inline constexpr const char* about = "Informazioni sul programma";
inline constexpr const char* manual = "Manuale";
inline constexpr const char* no_manual = "Il manuale non è installato.";
inline constexpr const char* manual_stays_shut = "Il manuale non si può aprire: %1";
inline constexpr const char* manual_key =
    "Apre il manuale; nella descrizione di una riga trova l'articolo";

inline constexpr const char* lines_up = "Dodici righe su";
inline constexpr const char* lines_down = "Dodici righe giù";
inline constexpr const char* vat_of_line = "Sceglie il codice iva della riga";
inline constexpr const char* cell_before = "Torna alla cella di prima";
inline constexpr const char* whole_order_leaves = "Parte tutto l'ordine";
inline constexpr const char* whole_row_leaves = "Parte tutta la riga";
inline constexpr const char* part_of_row_leaves = "Parte una quantità della riga";
inline constexpr const char* compaction = "Compatta l'archivio degli ordini";

}  // namespace vantora::ui::desktop::words
