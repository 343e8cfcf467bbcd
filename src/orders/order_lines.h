#pragma once

#include <array>
#include <cstdint>

#include "errors/run_time_errors.h"
#include "store/fields.h"

namespace vantora {

/// One line of an order in memory.
struct riga_ordine {
    std::int16_t articolo = 0;  ///< record number of the article; 0: a line of free text
    text<15> codice{""};        ///< article code, or bar code where that was scanned
    text<60> descrizione{""};
    text<2> um{""};
    std::int16_t iva = 0;  ///< VAT code 1 to 24, 0 none yet
    double quantita = 0;
    double prezzo = 0;     ///< per unit
    std::int16_t sc1 = 0;  ///< first discount, whole percent
    std::int16_t sc2 = 0;  ///< second discount, whole percent, on the reduced amount
    double evaso = 0;      ///< quantity fulfilled so far
    double peso = 0;       ///< unit weight of the article, 0 without one
};

/// The lines of the order on the screen, 1 to 200. Any other number is a subscript error, which
/// ends the program: a long text may run past the last line.
class righe_ordine {
 public:
    static constexpr int massimo = 200;

    riga_ordine& operator[](int number) {
        if (number < 1 || number > massimo) throw subscript_error();
        return lines_[static_cast<std::size_t>(number)];
    }
    const riga_ordine& operator[](int number) const {
        return const_cast<righe_ordine&>(*this)[number];
    }

    /// Empties all lines; what is fulfilled of them stays.
    void clear();
    /// Makes room at a line by pushing the following ones down; what stood in the last line is
    /// lost. The new line is empty as by clear_line.
    void insert(int number);
    /// Takes a line out and pulls the following ones up; the last one is emptied as by clear_line.
    void remove(int number);
    /// Orders the lines by code, ascending by character code, lines without a code last. Lines
    /// with equal codes end where the exchanges leave them.
    void sort_by_code();

 private:
    std::array<riga_ordine, massimo + 1> lines_;
};

/// The amounts of an order's lines by VAT code; documents print them.
struct riepilogo_iva {
    std::array<double, 17> imponibile_iva{};  ///< 1 to 12: net amounts by rate code
    std::array<double, 17> imposta_iva{};     ///< 1 to 12: VAT on them
    std::array<double, 17> esente_iva{};      ///< 1 to 12: net amounts by exemption code - 12
};

/// Whether nothing at all stands in a line: something can be put there without being missed.
bool is_empty(const riga_ordine& line);

/// Number of the last line in use, by code, description or price; 0 if none is.
int last_used_line(const righe_ordine& lines);

/// Empties a line, all but its fulfilled quantity.
void clear_line(riga_ordine& line);

}  // namespace vantora
