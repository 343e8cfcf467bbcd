#pragma once

#include <string_view>

// What the wholesaler sells, in UTF-8.

namespace vantora::demo {

/// A kind of goods, sold in several sizes.
struct product {
    int categoria;            ///< place in `categories`, from 0
    std::string_view prefix;  ///< beginning of the article codes
    std::string_view name;
    std::string_view um;
    std::string_view sizes;  ///< separated by "|", the cheapest first
    int lowest_cents;
    int highest_cents;
    int grams;  ///< of the smallest size
    int iva;    ///< VAT code
};

inline constexpr std::string_view categories[] = {
    "Articoli vari",
    "Rubinetteria",
    "Raccorderia",
    "Tubi e guaine",
    "Valvole e riduttori",
    "Pompe",
    "Caldaie e radiatori",
    "Sanitari e accessori",
    "Cavi elettrici",
    "Apparecchi modulari",
    "Illuminazione",
    "Viteria e bulloneria",
    "Serrature e cilindri",
    "Utensili a mano",
    "Utensili elettrici",
    "Vernici e sigillanti",
    "Abbigliamento da lavoro",
    "Giardinaggio",
};

inline constexpr std::string_view pipe_sizes = "3/8\"|1/2\"|3/4\"|1\"|1\"1/4|1\"1/2|2\"";

inline constexpr product products[] = {
    {1, "RUB", "Rubinetto a sfera leva", "PZ", pipe_sizes, 420, 3890, 150, 1},
    {1, "RUF", "Rubinetto a farfalla", "PZ", "1/2\"|3/4\"|1\"", 390, 980, 140, 1},
    {1, "MIL", "Miscelatore lavabo", "PZ", "base|medio|alto", 3900, 18900, 1600, 1},
    {1, "MIC", "Miscelatore cucina", "PZ", "basso|girevole|doccetta", 4900, 21900, 1900, 1},
    {1, "MID", "Miscelatore doccia incasso", "PZ", "1 via|2 vie|3 vie", 4400, 19800, 1500, 1},
    {2, "GOM", "Gomito ottone FF", "PZ", pipe_sizes, 95, 1240, 60, 1},
    {2, "TEE", "Raccordo a T ottone", "PZ", pipe_sizes, 130, 1680, 90, 1},
    {2, "MAN", "Manicotto zincato", "PZ", pipe_sizes, 70, 640, 55, 1},
    {2, "NIP", "Nipplo ridotto ottone", "PZ", pipe_sizes, 60, 590, 40, 1},
    {2, "PRS", "Raccordo a pressare multistrato", "PZ", "16|20|26|32", 260, 1390, 70, 1},
    {3, "TMU", "Tubo multistrato rivestito", "MT", "16|20|26|32", 118, 690, 130, 1},
    {3, "TCU", "Tubo rame crudo", "MT", "12|14|16|18|22|28", 480, 1490, 310, 1},
    {3, "TPE", "Tubo PE alta densità PN16", "MT", "25|32|40|50|63", 95, 590, 170, 1},
    {3, "TPV", "Tubo PVC scarico", "MT", "40|50|80|100|125", 210, 890, 350, 1},
    {3, "GUA", "Guaina isolante", "MT", "13x18|13x22|19x28", 55, 240, 20, 1},
    {4, "RID", "Riduttore di pressione", "PZ", "1/2\"|3/4\"|1\"", 2450, 6900, 600, 1},
    {4, "VRI", "Valvola di ritegno", "PZ", pipe_sizes, 380, 2900, 130, 1},
    {4, "VTE", "Valvola termostatica", "PZ", "dritta|squadra", 1480, 2650, 320, 1},
    {4, "VSI", "Valvola di sicurezza 3 bar", "PZ", "1/2\"|3/4\"", 690, 1390, 210, 1},
    {5, "CIR", "Circolatore elettronico", "PZ", "25/40|25/60|25/80", 11900, 24900, 2600, 1},
    {5, "ELP", "Elettropompa sommersa", "PZ", "0,5 HP|0,75 HP|1 HP", 14900, 29800, 9800, 1},
    {6, "RAD", "Radiatore alluminio", "PZ", "600/4|600/6|800/6|800/10", 4900, 15900, 5200, 2},
    {6, "CAL", "Caldaia a condensazione", "PZ", "24 kW|28 kW|32 kW", 89000, 149000, 36000, 2},
    {6, "VES", "Vaso di espansione", "PZ", "8 l|12 l|18 l|24 l", 1950, 4980, 2100, 1},
    {7, "LAV", "Lavabo ceramica", "PZ", "50 cm|60 cm|70 cm", 3900, 9800, 11000, 1},
    {7, "VAS", "Vaso sospeso", "PZ", "standard|senza brida", 9900, 26500, 17000, 1},
    {7, "SIF", "Sifone a bottiglia", "PZ", "1\"|1\"1/4", 390, 1890, 210, 1},
    {7, "SOF", "Soffione doccia", "PZ", "20 cm|25 cm|30 cm", 1900, 7900, 700, 1},
    {8, "CFS", "Cavo FS17", "MT", "1,5|2,5|4|6|10", 32, 265, 20, 1},
    {8, "CFG", "Cavo FG16OR16 3G", "MT", "1,5|2,5|4|6", 135, 520, 140, 1},
    {8, "CET", "Cavo rete U/UTP", "MT", "cat. 5e|cat. 6", 45, 98, 40, 1},
    {8, "COR", "Tubo corrugato", "MT", "16|20|25|32", 28, 95, 45, 1},
    {9, "MAG", "Magnetotermico 1P+N", "PZ", "C10|C16|C20|C25|C32", 680, 1490, 190, 1},
    {9, "DIF", "Differenziale 2P 30 mA", "PZ", "25 A|40 A|63 A", 2480, 5900, 260, 1},
    {9, "QUA", "Quadro da parete", "PZ", "8 mod.|12 mod.|24 mod.", 980, 4200, 700, 1},
    {9, "PRE", "Presa bipasso", "PZ", "10/16 A|schuko", 240, 620, 40, 1},
    {9, "INT", "Interruttore unipolare", "PZ", "bianco|antracite", 190, 480, 35, 1},
    {10, "LED", "Lampada LED E27", "PZ", "8 W|11 W|15 W|18 W", 190, 690, 60, 1},
    {10, "PLA", "Plafoniera stagna LED", "PZ", "60 cm|120 cm|150 cm", 1490, 4900, 900, 1},
    {10, "FAR", "Faretto da incasso", "PZ", "fisso|orientabile", 390, 1590, 150, 1},
    {10, "PRO", "Proiettore LED", "PZ", "20 W|30 W|50 W|100 W", 1290, 6900, 800, 1},
    {11, "VIT", "Vite truciolare TPS", "CF", "3,5x30|4x40|5x60|6x100", 340, 1490, 500, 1},
    {11, "BUL", "Bullone TE 8.8 zincato", "CF", "M6x30|M8x40|M10x50|M12x60", 590, 2890, 1200, 1},
    {11, "TAS", "Tassello in nylon", "CF", "6x30|8x40|10x50|12x60", 290, 1350, 250, 1},
    {11, "DAD", "Dado medio zincato", "CF", "M6|M8|M10|M12", 180, 890, 600, 1},
    {11, "ROS", "Rosetta piana", "CF", "M6|M8|M10|M12", 120, 540, 300, 1},
    {12, "SER", "Serratura da infilare", "PZ", "E40|E50|E60", 1290, 3980, 650, 1},
    {12, "CIL", "Cilindro europeo", "PZ", "30/30|30/40|40/40", 980, 5900, 250, 1},
    {12, "LUC", "Lucchetto ottone", "PZ", "30|40|50|60", 390, 1690, 120, 1},
    {12, "MAN", "Maniglia ottone satinato", "PZ", "con bocchetta|su placca", 1190, 4900, 700, 1},
    {13, "CHI", "Chiave combinata", "PZ", "8|10|13|17|19|24", 290, 1390, 90, 1},
    {13, "CAC", "Cacciavite isolato", "PZ", "3x100|4x100|5,5x125", 320, 790, 80, 1},
    {13, "PIN", "Pinza universale", "PZ", "160 mm|180 mm|200 mm", 990, 2490, 260, 1},
    {13, "GIR", "Giratubi svedese", "PZ", "1\"|1\"1/2|2\"", 1690, 4890, 900, 1},
    {13, "FLE", "Flessometro", "PZ", "3 m|5 m|8 m", 290, 1190, 150, 1},
    {14, "TRA", "Trapano avvitatore", "PZ", "12 V|18 V|18 V kit", 7900, 24900, 1600, 1},
    {14, "SME", "Smerigliatrice angolare", "PZ", "115 mm|125 mm|230 mm", 4900, 15900, 2100, 1},
    {14, "DIS", "Disco da taglio inox", "PZ", "115|125|230", 95, 390, 40, 1},
    {15, "SIL", "Silicone neutro 310 ml", "PZ", "bianco|grigio|trasp.", 320, 690, 350, 1},
    {15, "SMA", "Smalto all'acqua", "PZ", "0,75 l|2,5 l", 1290, 3980, 1000, 1},
    {15, "NAS", "Nastro isolante", "PZ", "15x10|19x25", 55, 190, 40, 1},
    {15, "CAN", "Canapa pettinata", "KG", "100 g|matassa", 690, 1490, 100, 1},
    {16, "GUN", "Guanti in nitrile", "CF", "S|M|L|XL", 690, 890, 500, 1},
    {16, "SCA", "Scarpa antinfortunistica", "PZ", "39|40|41|42|43|44", 3900, 7900, 1100, 1},
    {17, "TGI", "Tubo giardino magliato", "MT", "1/2\"|5/8\"|3/4\"", 75, 220, 150, 1},
    {17, "IRR", "Irrigatore a turbina", "PZ", "90°|180°|360°", 590, 2390, 300, 1},
    {17, "TER", "Terriccio universale", "PZ", "20 l|50 l|80 l", 290, 890, 8000, 3},
    {0, "VAR", "Articolo a richiesta", "PZ", "piccolo|medio|grande", 500, 9900, 500, 1},
};

inline constexpr std::string_view makers[] = {
    "Rubital", "Idrovel", "Tecnofer", "Voltec", "Brixal", "Sirmetal", "Adrimak", "Montelum",
};

/// Long texts of articles: up to three lines.
struct long_text {
    std::string_view lines[3];
};

inline constexpr long_text long_texts[] = {
    {{"Corpo in ottone CW617N nichelato", "Pressione massima di esercizio 16 bar", ""}},
    {{"Conforme alla norma UNI EN 12165", "Filettatura ISO 228", "Garanzia 5 anni dalla consegna"}},
    {{"Colore a scelta del cliente", "", ""}},
    {{"Montaggio secondo il foglio istruzioni allegato", "Marcatura CE, grado di protezione IP65",
      ""}},
    {{"Confezione da 100 pezzi", "Trattamento superficiale: zincatura bianca", ""}},
};

/// Lines that a clerk adds to an order by hand.
inline constexpr std::string_view remarks[] = {
    "Consegna tassativa entro le ore 12",
    "Merce per il cantiere di via della Libertà",
    "Da ritirare presso il nostro magazzino",
    "Come da accordi telefonici con il sig. Nicolò",
    "Materiale in sostituzione, già concordato",
    "Seguirà conferma della quantità residua",
    "Imballo a rendere, cauzione versata con l'ordine",
};

}  // namespace vantora::demo
