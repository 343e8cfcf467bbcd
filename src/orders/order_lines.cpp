#include "orders/order_lines.h"

#include <utility>

namespace vantora {

bool is_empty(const riga_ordine& line) {
    return line.articolo == 0 && line.codice.trimmed().empty() &&
           line.descrizione.trimmed().empty() && line.um.trimmed().empty() && line.quantita == 0 &&
           line.prezzo == 0 && line.sc1 == 0 && line.sc2 == 0 && line.evaso == 0;
}

int last_used_line(const righe_ordine& lines) {
    for (int number = righe_ordine::massimo; number >= 1; --number) {
        const riga_ordine& line = lines[number];
        const bool used = !line.descrizione.trimmed().empty() || !line.codice.trimmed().empty() ||
                          line.prezzo != 0;
        if (used) return number;
    }
    return 0;
}

void clear_line(riga_ordine& line) {
    const double fulfilled = line.evaso;
    line = riga_ordine{};
    line.evaso = fulfilled;
}

void righe_ordine::clear() {
    for (int number = 1; number <= massimo; ++number) {
        clear_line((*this)[number]);
    }
}

void righe_ordine::insert(int number) {
    for (int i = massimo - 1; i >= number; --i) (*this)[i + 1] = (*this)[i];
    clear_line((*this)[number]);
}

void righe_ordine::remove(int number) {
    for (int i = number; i < massimo; ++i) (*this)[i] = (*this)[i + 1];
    clear_line((*this)[massimo]);
}

void righe_ordine::sort_by_code() {
    const auto key = [](const riga_ordine& line) {
        const std::string_view code = line.codice.trimmed();
        return code.empty() ? std::string_view("\xFF") : code;
    };
    // After an exchange all lines between are at least the old first one, so going on behind the
    // exchanged line is the same as starting over.
    for (int i = 1; i < massimo; ++i) {
        for (int j = i + 1; j <= massimo; ++j) {
            if (key((*this)[i]) > key((*this)[j])) std::swap((*this)[i], (*this)[j]);
        }
    }
}

}  // namespace vantora
