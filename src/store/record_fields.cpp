#include "store/record_fields.h"

#include <array>

namespace vantora {

namespace {

// The fields of each record stand once: where each lies, which the compiler checks against the
// struct, and what its column is called when the archive is written out.

/// The name of a member as the struct spells it.
template <auto Member>
consteval std::string_view name_of_member() {
    // "... [with auto Member = &vantora::rec_tot::quanti; ...]"
    std::string_view told = __PRETTY_FUNCTION__;
    told.remove_prefix(told.find("Member = "));
    told = told.substr(0, told.find_first_of(";]"));
    return told.substr(told.rfind(':') + 1);
}

static_assert(name_of_member<&rec_tot::quanti>() == "quanti");

template <class Value>
constexpr field_type type_of = field_type::words;
template <>
constexpr field_type type_of<i16le> = field_type::i16;
template <>
constexpr field_type type_of<f32le> = field_type::f32;
template <>
constexpr field_type type_of<f64le> = field_type::f64;

/// A field as the tables write it.
template <auto Member>
struct field;
template <class Record, class Value, Value Record::*Member>
struct field<Member> {
    using record = Record;
    static constexpr auto member = Member;

    std::size_t offset;
    const char* column = nullptr;
    const char* english = nullptr;
    meaning means = meaning::value;
    bool head = false;

    [[nodiscard]] constexpr record_field entry() const {
        using one = std::remove_extent_t<Value>;
        constexpr std::size_t values = sizeof(Value) / sizeof(one);
        return {name_of_member<Member>(),
                type_of<one>,
                offset,
                sizeof(one),
                values,
                column,
                english,
                means,
                head};
    }
};

/// The table of a record. Doesn't compile unless the fields are all of the struct's, in its order,
/// each at its place in the file.
template <class First, class... Rest>
consteval std::array<record_field, 1 + sizeof...(Rest)> record_fields(First first, Rest... rest) {
    using record = typename First::record;
    const record probe{};
    [[maybe_unused]] const void* before = nullptr;
    std::size_t end = 0;
    const auto check = [&](auto one) {
        const void* here = &(probe.*one.member);
#ifndef __clang__  // compares no addresses at compile time; its findings are read, not its code
        if (before && here <= before) throw "not in the order of the struct";
#endif
        if (one.offset != end) throw "not where the file has it";
        before = here;
        end += sizeof(probe.*one.member);
    };
    check(first);
    (check(rest), ...);
    if (end != sizeof(record) || alignof(record) != 1) throw "not all of the struct";
    return {first.entry(), rest.entry()...};
}

/// The number that lies there.
template <class Field>
double number_at(const char* bytes) {
    Field read;
    std::memcpy(&read, bytes, sizeof read);
    return static_cast<double>(read);
}

}  // namespace

record_table fields_of(const rec_art&) {
    static constexpr auto table = record_fields(
        field<&rec_art::codice>{0, "codice", "code"},
        field<&rec_art::descrizione>{15, "descrizione", "description"},
        field<&rec_art::codice_barre>{55, "codice_barre", "bar_code"},
        field<&rec_art::um>{68, "unita_misura", "unit"},
        field<&rec_art::categoria>{70, "categoria", "category"},
        field<&rec_art::iva>{73, "codice_iva", "vat_code"},
        field<&rec_art::prezzo1>{75, "prezzo1", "price1"},
        field<&rec_art::prezzo2>{83, "prezzo2", "price2"}, field<&rec_art::riservato_al>{91},
        field<&rec_art::riservato_am>{99}, field<&rec_art::riservato_an>{107},
        field<&rec_art::riservato_ao>{115}, field<&rec_art::giacenza>{123, "giacenza", "stock"},
        field<&rec_art::riservato_ap>{131},
        field<&rec_art::impegnato>{139, "impegnato", "committed"},
        field<&rec_art::ordinato_clienti>{147, "ordinato_clienti", "ordered"},
        field<&rec_art::riservato_aq>{155}, field<&rec_art::riservato_ar>{163},
        field<&rec_art::riservato_as>{171},
        field<&rec_art::scaricato>{179, "scaricato", "unloaded"},
        field<&rec_art::riservato_at>{187},
        field<&rec_art::valore_scaricato>{195, "valore_scaricato", "unloaded_value"},
        field<&rec_art::classe1>{203, "fornitore1", "supplier1"},
        field<&rec_art::classe2>{207, "fornitore2", "supplier2"},
        field<&rec_art::classe3>{211, "fornitore3", "supplier3"},
        field<&rec_art::riservato_au>{215}, field<&rec_art::riservato_av>{219},
        field<&rec_art::riservato_aw>{223}, field<&rec_art::riservato_ax>{227},
        field<&rec_art::riservato_ay>{235}, field<&rec_art::riservato_az>{275},
        field<&rec_art::peso>{295, "peso", "weight"}, field<&rec_art::riservato_ba>{303},
        field<&rec_art::riservato_bb>{323},
        field<&rec_art::eliminato>{325, "eliminato", "deleted"});
    return table;
}

record_table fields_of(const rec_bol&) {
    static constexpr auto table = record_fields(
        field<&rec_bol::numero>{0, "numero", "number"},
        field<&rec_bol::data>{2, "data", "date", meaning::date}, field<&rec_bol::zero1>{10},
        field<&rec_bol::testo1>{12}, field<&rec_bol::testo2>{27},
        field<&rec_bol::progressivo>{63, "progressivo", "running_number"},
        field<&rec_bol::zero2>{67},
        field<&rec_bol::data_reg>{75, "registrato_il", "registered", meaning::day},
        field<&rec_bol::uno>{83}, field<&rec_bol::vuoto>{85},
        field<&rec_bol::cliente>{87, "cliente", "customer", meaning::customer},
        field<&rec_bol::senza_scarico>{89, "senza_scarico", "without_unloading"},
        field<&rec_bol::zero3>{91}, field<&rec_bol::zero4>{93}, field<&rec_bol::zero5>{95});
    return table;
}

record_table fields_of(const rec_cli&) {
    static constexpr auto table = record_fields(
        field<&rec_cli::intestazione1>{0, "ragione_sociale", "name"},
        field<&rec_cli::intestazione2>{40, "ragione_sociale2", "name2"},
        field<&rec_cli::indirizzo>{80, "indirizzo", "address"},
        field<&rec_cli::citta>{120, "citta", "town"},
        field<&rec_cli::cap>{160, "cap", "postal_code"},
        field<&rec_cli::amm_intestazione1>{165, "amm_ragione_sociale", "office_name"},
        field<&rec_cli::amm_intestazione2>{205, "amm_ragione_sociale2", "office_name2"},
        field<&rec_cli::amm_indirizzo>{245, "amm_indirizzo", "office_address"},
        field<&rec_cli::amm_citta>{285, "amm_citta", "office_town"},
        field<&rec_cli::amm_cap>{325, "amm_cap", "office_postal_code"},
        field<&rec_cli::telefono1>{330, "telefono", "telephone"},
        field<&rec_cli::telefono2>{345, "telefono2", "telephone2"},
        field<&rec_cli::telefono3>{360, "telefono3", "telephone3"},
        field<&rec_cli::partita_iva>{375, "partita_iva", "vat_number"},
        field<&rec_cli::codice_fiscale>{386, "codice_fiscale", "tax_code"},
        field<&rec_cli::vettore1>{402, "vettore", "carrier"},
        field<&rec_cli::vettore2>{442, "vettore2", "carrier2"},
        field<&rec_cli::vettore3>{482, "vettore3", "carrier3"}, field<&rec_cli::riservato_o>{514},
        field<&rec_cli::riservato_p>{515}, field<&rec_cli::riservato_q>{521},
        field<&rec_cli::testo_documenti>{522, "testo_documenti", "document_text"},
        field<&rec_cli::riservato_r>{558}, field<&rec_cli::riservato_s>{562},
        field<&rec_cli::riservato_t>{567}, field<&rec_cli::riservato_u>{572},
        field<&rec_cli::pagamento>{584, "pagamento", "payment"}, field<&rec_cli::riservato_v>{586},
        field<&rec_cli::sconto1>{588, "sconto1", "discount1"},
        field<&rec_cli::sconto2>{590, "sconto2", "discount2"}, field<&rec_cli::riservato_y>{592},
        field<&rec_cli::riservato_z>{594}, field<&rec_cli::riservato_aa>{602},
        field<&rec_cli::riservato_ab>{610}, field<&rec_cli::riservato_ac>{618},
        field<&rec_cli::prefisso_iva>{626, "prefisso_iva", "vat_prefix"},
        field<&rec_cli::listino>{628, "listino", "price_list"},
        field<&rec_cli::invio_email>{629, "invio_email", "sends_email"},
        field<&rec_cli::riservato_ad>{630}, field<&rec_cli::riservato_ae>{631},
        field<&rec_cli::riservato_af>{632}, field<&rec_cli::note1>{633, "nota", "note"},
        field<&rec_cli::riservato_ag>{670}, field<&rec_cli::riservato_ah>{671},
        field<&rec_cli::note2>{673, "nota2", "note2"}, field<&rec_cli::riservato_ai>{710},
        field<&rec_cli::riservato_aj>{711},
        field<&rec_cli::iva_cliente>{712, "codice_iva", "vat_code"},
        field<&rec_cli::email>{714, "email", "email"},
        field<&rec_cli::eliminato>{750, "eliminato", "deleted"});
    return table;
}

record_table fields_of(const rec_gnr&) {
    static constexpr auto table =
        record_fields(field<&rec_gnr::interi_iniziali>{0}, field<&rec_gnr::vista_registro>{8},
                      field<&rec_gnr::intero_sesto>{10}, field<&rec_gnr::riservato_bc>{12},
                      field<&rec_gnr::riservato_bd>{18}, field<&rec_gnr::formato_gnr>{183},
                      field<&rec_gnr::aggiorna_elenco>{184}, field<&rec_gnr::colore_riga_pari>{185},
                      field<&rec_gnr::colore_riga_dispari>{193},
                      field<&rec_gnr::righe_alternate>{201}, field<&rec_gnr::riservato_be>{202},
                      field<&rec_gnr::riservato_bf>{203}, field<&rec_gnr::riservato_bg>{204},
                      field<&rec_gnr::riservato_bh>{242}, field<&rec_gnr::usa_barcode>{244},
                      field<&rec_gnr::riservato_bi>{246}, field<&rec_gnr::codice_iva_base>{248},
                      field<&rec_gnr::peso_automatico>{250}, field<&rec_gnr::riservato_bj>{252},
                      field<&rec_gnr::riservato_bk>{253}, field<&rec_gnr::riservato_bl>{256});
    return table;
}

record_table fields_of(const rec_mag&) {
    static constexpr auto table =
        record_fields(field<&rec_mag::data>{0, "data", "date", meaning::date},
                      field<&rec_mag::documento>{8, "documento", "document"},
                      field<&rec_mag::tipo>{48, "tipo", "kind"},
                      field<&rec_mag::movimento>{50, "movimento", "movement"},
                      field<&rec_mag::data_reg>{62, "registrato_il", "registered", meaning::day},
                      field<&rec_mag::articolo>{70, "articolo", "article", meaning::article},
                      field<&rec_mag::cliente>{72, "cliente", "customer", meaning::customer},
                      field<&rec_mag::quantita>{74, "quantita", "quantity"},
                      field<&rec_mag::prezzo>{82, "prezzo_netto", "net_price"},
                      field<&rec_mag::segno>{90, "segno", "sign"}, field<&rec_mag::zero>{92});
    return table;
}

record_table fields_of(const rec_orc&) {
    static constexpr auto table = record_fields(
        field<&rec_orc::numero>{0, "numero", "number", meaning::value, of_head},
        field<&rec_orc::data>{10, "data", "date", meaning::date, of_head},
        field<&rec_orc::cliente>{18, "cliente", "customer", meaning::customer, of_head},
        field<&rec_orc::testo1>{20}, field<&rec_orc::testo2>{60}, field<&rec_orc::testo3>{100},
        field<&rec_orc::articolo>{140, "articolo", "article", meaning::article},
        field<&rec_orc::descrizione>{142, "descrizione", "description"},
        field<&rec_orc::um>{182, "unita_misura", "unit"},
        field<&rec_orc::quantita>{184, "quantita", "quantity"},
        field<&rec_orc::prezzo>{192, "prezzo", "price"},
        field<&rec_orc::evaso>{200, "evaso", "fulfilled"}, field<&rec_orc::riservato_b>{208},
        field<&rec_orc::riservato_c>{216}, field<&rec_orc::riservato_d>{224},
        field<&rec_orc::data_evasione>{232, "consegna", "due", meaning::date, of_head},
        field<&rec_orc::evaso_flag>{240, "evaso_tutto", "fulfilled_in_full", meaning::value,
                                    of_head},
        field<&rec_orc::impegno>{242, "impegna_merce", "commits_stock", meaning::value, of_head},
        field<&rec_orc::iva>{243, "codice_iva", "vat_code"},
        field<&rec_orc::sc1>{245, "sconto1", "discount1"},
        field<&rec_orc::sc2>{247, "sconto2", "discount2"},
        field<&rec_orc::data_reg>{249, "registrato_il", "registered", meaning::day, of_head},
        field<&rec_orc::descrizione2>{257}, field<&rec_orc::riservato_e>{267},
        field<&rec_orc::annullato>{282, "eliminato", "deleted", meaning::value, of_head});
    return table;
}

record_table fields_of(const rec_prv&) {
    static constexpr auto table = record_fields(
        field<&rec_prv::numero>{0, "numero", "number", meaning::value, of_head},
        field<&rec_prv::data>{10, "data", "date", meaning::date, of_head},
        field<&rec_prv::cliente>{18, "cliente", "customer", meaning::customer, of_head},
        field<&rec_prv::testo1>{20, "riferimento", "reference", meaning::value, of_head},
        field<&rec_prv::testo2>{60, "riferimento2", "reference2", meaning::value, of_head},
        field<&rec_prv::testo3>{100, "riferimento3", "reference3", meaning::value, of_head},
        field<&rec_prv::articolo>{140, "articolo", "article", meaning::article},
        field<&rec_prv::descrizione>{142, "descrizione", "description"},
        field<&rec_prv::quantita>{182, "quantita", "quantity"},
        field<&rec_prv::prezzo>{190, "prezzo", "price"},
        field<&rec_prv::um>{198, "unita_misura", "unit"},
        field<&rec_prv::sc1>{200, "sconto1", "discount1"},
        field<&rec_prv::sc2>{202, "sconto2", "discount2"},
        field<&rec_prv::iva>{204, "codice_iva", "vat_code"}, field<&rec_prv::riservato_f>{206},
        field<&rec_prv::riservato_g>{214}, field<&rec_prv::riservato_h>{222},
        field<&rec_prv::riservato_i>{230}, field<&rec_prv::riservato_j>{238},
        field<&rec_prv::riservato_k>{240}, field<&rec_prv::descrizione2>{242},
        field<&rec_prv::riservato_l>{252}, field<&rec_prv::riservato_m>{260},
        field<&rec_prv::riservato_n>{262},
        field<&rec_prv::annullato>{282, "eliminato", "deleted", meaning::value, of_head});
    return table;
}

record_table fields_of(const rec_prx&) {
    static constexpr auto table =
        record_fields(field<&rec_prx::righe>{0}, field<&rec_prx::marca_testo>{500});
    return table;
}

record_table fields_of(const rec_tot&) {
    static constexpr auto table = record_fields(
        field<&rec_tot::quanti>{0, "quanti", "count"},
        field<&rec_tot::modificato>{2, "modificato", "changed"}, field<&rec_tot::riservato_a>{4},
        field<&rec_tot::ultimo_numero>{6, "ultimo_numero", "last_number"},
        field<&rec_tot::progressivo>{8, "progressivo", "running_number"});
    return table;
}

double any_record::number(const record_field& field, std::size_t which) const {
    const char* value = bytes + field.offset + which * field.width;
    if (field.type == field_type::i16) return number_at<i16le>(value);
    return field.type == field_type::f32 ? number_at<f32le>(value) : number_at<f64le>(value);
}

}  // namespace vantora
