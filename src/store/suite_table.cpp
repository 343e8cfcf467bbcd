#include "store/suite_table.h"

#include <cstdlib>
#include <optional>
#include <string_view>

#include "store/suite_paths.h"
#include "store/text_reader.h"
#include "store/vat_codes.h"

namespace vantora {

namespace {

using values = std::vector<std::optional<std::string>>;

void take_rate(tabella_suite& table, std::size_t number, const values& group) {
    if (group[0]) table.iva.aliquota_iva[number] = *group[0];
}

void take_exemption(tabella_suite& table, std::size_t number, const values& group) {
    if (group[0]) table.iva.descrizione_iva[number] = *group[0];
}

void take_payment(tabella_suite& table, std::size_t, const values& group) {
    if (group[0]) table.pagamenti.push_back(*group[0]);
}

void take_transport(tabella_suite& table, std::size_t, const values& group) {
    if (group[0]) table.causali.push_back(*group[0]);
    if (group[1]) table.aspetti.push_back(*group[1]);
    if (group[2]) {
        table.vettori.push_back({*group[2], group[3].value_or(""), group[4].value_or("")});
    }
}

/// The file's sections follow each other without any mark, so the shape of each must be known to
/// find the next. A group is spelled by its values: L a line, I an item.
struct section {
    std::size_t groups;
    std::string_view shape;
    void (*take)(tabella_suite&, std::size_t number, const values&) = nullptr;
    std::size_t first_number = 1;
};

constexpr section sections[] = {
    {8, "LLLL", take_rate, 1},
    {8, "LLL"},
    {9, "IL", take_exemption, 0},
    {9, "LL"},
    {30, "LL", take_payment},
    {9, "II"},
    {40, "L"},
    {40, "L"},
    {30, "LLLLL"},
    {40, "LLLLLL", take_transport},
    {8, "LLLL", take_rate, 9},
    {8, "LLL"},
    {8, "IL", take_exemption, 9},
    {8, "IL"},
    {30, "LL", take_payment},
};

}  // namespace

tabella_suite read_suite_table(file_port& files, int numero_azienda) {
    tabella_suite table;
    text_reader reader(files.read_whole(company_path(numero_azienda, "tab")).value_or(""));
    for (const section& one : sections) {
        for (std::size_t i = 0; i < one.groups; ++i) {
            values group;
            for (const char form : one.shape) {
                std::string value;
                const bool read = form == 'I' ? reader.item(value) : reader.line(value);
                group.push_back(read ? std::optional(std::move(value)) : std::nullopt);
            }
            if (one.take) one.take(table, one.first_number + i, group);
        }
    }
    return table;
}

std::string two_digits(int number) {
    std::string digits = std::to_string(std::abs(number));
    if (digits.size() < 2) digits.insert(0, 1, '0');
    return number < 0 ? "-" + digits : digits;
}

std::vector<std::string> vat_entries(const tabella_iva& iva) {
    std::vector<std::string> entries;
    for (std::size_t code = 1; code <= ultima_aliquota; ++code) {
        const std::string number = two_digits(static_cast<int>(code));
        entries.push_back(number + " Iva " + iva.aliquota_iva[code] + "%");
    }
    for (std::size_t code = 1; code <= ultima_aliquota; ++code) {
        const std::string number = two_digits(static_cast<int>(code) + ultima_aliquota);
        entries.push_back(number + " " + iva.descrizione_iva[code]);
    }
    return entries;
}

}  // namespace vantora
