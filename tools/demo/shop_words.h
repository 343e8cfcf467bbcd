#pragma once

#include <string_view>

// What the names and addresses of the made-up customers are put together from, in UTF-8.

namespace vantora::demo {

struct town {
    std::string_view cap;
    std::string_view name;
    std::string_view province;
    std::string_view dialling_code;
};

inline constexpr std::string_view surnames[] = {
    "Rossi",      "Bianchi",    "Ferrari",     "Colombo",   "Ricci",     "Marino",  "Greco",
    "Bruno",      "Gallo",      "Conti",       "De Luca",   "Mancini",   "Costa",   "Giordano",
    "Rizzo",      "Lombardi",   "Moretti",     "Barbieri",  "Fontana",   "Santoro", "Mariani",
    "Rinaldi",    "Caruso",     "Ferrara",     "Galli",     "Martini",   "Leone",   "Longo",
    "Gentile",    "Martinelli", "Vitale",      "Lombardo",  "Serra",     "Coppola", "De Santis",
    "D'Angelo",   "Marchetti",  "Parisi",      "Villa",     "Conte",     "Ferraro", "Ferri",
    "Fabbri",     "Bianco",     "Marini",      "Grasso",    "Valentini", "Messina", "Sala",
    "De Angelis", "Gatti",      "Pellegrini",  "Palumbo",   "Sanna",     "Farina",  "Rizzi",
    "Monti",      "Cattaneo",   "Morelli",     "Nicolò",    "Forlì",     "Bassanò", "Zanetti",
    "Bonomi",     "Bertoli",    "Facchinetti", "Locatelli", "Pedrini",   "Cantù",   "Zucchi",
};

inline constexpr std::string_view given_names[] = {
    "Andrea",  "Marco",  "Luca",    "Giuseppe", "Paolo", "Roberto", "Stefano", "Francesco",
    "Antonio", "Davide", "Alberto", "Claudio",  "Fabio", "Giorgio", "Nicolò",  "Enrico",
    "Anna",    "Laura",  "Silvia",  "Chiara",   "Elena", "Paola",   "Noè",     "Daniela",
};

inline constexpr std::string_view streets[] = {
    "Via Roma",
    "Via Garibaldi",
    "Via Mazzini",
    "Via Dante",
    "Via Verdi",
    "Via Cavour",
    "Via Matteotti",
    "Via Marconi",
    "Via Leopardi",
    "Via Volta",
    "Via dell'Industria",
    "Via dell'Artigianato",
    "Via del Lavoro",
    "Via Brescia",
    "Via Milano",
    "Via della Libertà",
    "Via San Martino",
    "Via Sant'Antonio",
    "Via Papa Giovanni XXIII",
    "Via Niccolò Tommaseo",
    "Viale Europa",
    "Viale della Repubblica",
    "Viale Trento",
    "Corso Italia",
    "Corso Umberto I",
    "Piazza Vittoria",
    "Piazza della Pace",
    "Strada Provinciale 24",
    "Località Fornaci",
    "Contrada Università",
};

inline constexpr town towns[] = {
    {"25121", "Brescia", "BS", "030"},
    {"25032", "Chiari", "BS", "030"},
    {"25086", "Rezzato", "BS", "030"},
    {"25018", "Montichiari", "BS", "030"},
    {"25015", "Desenzano del Garda", "BS", "030"},
    {"25087", "Salò", "BS", "0365"},
    {"24121", "Bergamo", "BG", "035"},
    {"24047", "Treviglio", "BG", "0363"},
    {"24058", "Romano di Lombardia", "BG", "0363"},
    {"26100", "Cremona", "CR", "0372"},
    {"26013", "Crema", "CR", "0373"},
    {"46100", "Mantova", "MN", "0376"},
    {"46043", "Castiglione delle Stiviere", "MN", "0376"},
    {"37121", "Verona", "VR", "045"},
    {"37019", "Peschiera del Garda", "VR", "045"},
    {"20121", "Milano", "MI", "02"},
    {"20025", "Legnano", "MI", "0331"},
    {"22063", "Cantù", "CO", "031"},
    {"22100", "Como", "CO", "031"},
    {"23900", "Lecco", "LC", "0341"},
    {"27100", "Pavia", "PV", "0382"},
    {"29121", "Piacenza", "PC", "0523"},
    {"43121", "Parma", "PR", "0521"},
    {"47121", "Forlì", "FC", "0543"},
    {"12084", "Mondovì", "CN", "0174"},
    {"35121", "Padova", "PD", "049"},
    {"36100", "Vicenza", "VI", "0444"},
    {"38122", "Trento", "TN", "0461"},
    {"33100", "Udine", "UD", "0432"},
    {"37068", "Vigasio", "VR", "045"},
};

/// Beginnings of a firm's name, before the owner's surname.
inline constexpr std::string_view trades[] = {
    "Idraulica",     "Termoidraulica", "Elettroimpianti", "Ferramenta",  "Edilizia",
    "Impresa edile", "Impianti",       "Carpenteria",     "Officina",    "Falegnameria",
    "Serramenti",    "Costruzioni",    "Manutenzioni",    "Agricola",    "Vivai",
    "Condominio",    "Hotel",          "Caffè",           "Autofficina", "Società agricola",
};

inline constexpr std::string_view company_forms[] = {
    "S.r.l.",         "S.r.l.",      "S.n.c.", "S.a.s.", "S.p.A.", "di Bonomi & C. S.n.c.",
    "& Figli S.r.l.", "& C. S.a.s.",
};

/// Carriers in three lines; "*" leaves a line of the document as it stands.
struct carrier {
    std::string_view lines[3];
};

inline constexpr carrier carriers[] = {
    {{"", "", ""}},
    {{"Mittente con mezzo proprio", "", ""}},
    {{"Destinatario con mezzo proprio", "", ""}},
    {{"Autotrasporti Zanetti S.r.l.", "Via dell'Industria, 5 - 25018 Montichiari",
      "Albo BS 1520437/K"}},
    {{"Corriere Padano S.p.A.", "Via Mantova, 118 - 43121 Parma", "Albo PR 2204518/T"}},
    {{"Trasporti Val Camonica S.n.c.", "Via Nazionale, 40 - 25043 Breno", "Albo BS 1533902/B"}},
    {{"Spedizioni Garda S.r.l.", "Viale Marconi, 12 - 37019 Peschiera", "Albo VR 3310884/D"}},
    {{"Corriere espresso", "*", "*"}},
};

}  // namespace vantora::demo
