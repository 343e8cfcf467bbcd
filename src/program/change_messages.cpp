#include "program/change_messages.h"

#include <algorithm>

#include "text/code_page.h"

namespace vantora {

namespace {

/// What can be done about a file whose counter is at its end.
std::string way_out_of(const std::string& full) {
    if (full == "vantora.orc") return "Compattare l'archivio, togliendo anche gli ordini evasi.";
    return "Chiudere l'anno dell'archivio con il programma che lo gestisce.";
}

std::string text_of(const change_outcome& outcome, const std::string& undone) {
    const std::string& files = outcome.files;
    switch (outcome.how) {
        case change_outcome::done:
        case change_outcome::not_awaited:
        case change_outcome::to_be_asked:
            return {};
        case change_outcome::in_part:
            return "Salvataggio avvenuto solo in parte: errore su " + files + ".";
        case change_outcome::nothing_stored:
            return "Errore su " + files + ": " + undone + ".";
        case change_outcome::stock_moved:
            return "Errore su " + files + ": " + undone +
                   ", ma le quantità di alcuni articoli sono già cambiate."_cp;
        case change_outcome::refused:
            return "Impossibile leggere o scrivere il file " + files + ": " + undone + ".";
        case change_outcome::removed:
            return "Il file " + files + " non è più al suo posto: "_cp + undone + ".";
        case change_outcome::full:
            return "L'archivio " + files + " è pieno (32.767 registrazioni): "_cp + undone + ". " +
                   way_out_of(files);
        case change_outcome::order_moved:
            return "Un'altra postazione ha compattato l'archivio: " + undone +
                   ". Riaprire dall'elenco degli ordini.";
    }
    return {};
}

}  // namespace

bool was_stored(ui::desk& desk, const change_outcome& outcome, std::string_view undone) {
    const std::string text = text_of(outcome, from_utf8(undone));
    if (!text.empty()) desk.message(text, ui::attention, ui::icon::stop);
    return outcome.stored();
}

std::string named_rows(const std::vector<int>& rows) {
    std::string text = rows.size() > 1 ? "righe " : "riga ";
    for (std::size_t i = 0; i < rows.size() && i < 3; ++i) {
        text += (i > 0 ? ", " : "") + std::to_string(rows[i]);
    }
    return rows.size() > 3 ? text + " ..." : text;
}

void tell_not_compacted(ui::desk& desk, const change_outcome& outcome) {
    desk.message("Compattazione non completata: errore su " + outcome.files +
                     ". Nessun ordine è andato perso, ma alcuni possono comparire due volte."_cp,
                 ui::attention, ui::icon::stop);
}

void tell_kept(ui::desk& desk, const std::vector<std::string>& orders) {
    constexpr std::size_t named_most = 10;
    std::string named;
    for (std::size_t i = 0; i < std::min(orders.size(), named_most); ++i) {
        named += (i > 0 ? ", " : "") + orders[i];
    }
    if (orders.size() > named_most) {
        named += " e altre " + std::to_string(orders.size() - named_most);
    }
    desk.message(
        "Compattazione eseguita. Restano nell'archivio, perché non si possono leggere: "_cp +
            named + ".",
        ui::attention, ui::icon::warning);
}

void watch_stations(archivi& files, ui::desk& desk) {
    files.station_awaited = [&desk](const std::optional<std::string>& station) {
        desk.show_station_awaited(station);
    };
    files.wait_on = [&desk](std::chrono::seconds so_far) {
        return desk.ask("Un'altra postazione sta scrivendo nell'archivio da " +
                            std::to_string(so_far.count()) + " secondi. Aspettare ancora?",
                        ui::attention);
    };
}

}  // namespace vantora
