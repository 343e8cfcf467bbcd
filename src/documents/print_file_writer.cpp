#include "documents/print_file_writer.h"

#include <charconv>
#include <cmath>
#include <span>

#include "text/number_text.h"

namespace vantora {

namespace {

constexpr std::size_t handed_over_at = 256 * 1024;

}  // namespace

print_file_writer::print_file_writer(file_port& files, std::string_view mark)
    : files_(files), file_(files.create_instead(file_di_stampa)), whole_(file_ != nullptr) {
    line(mark);
}

print_file_writer::~print_file_writer() {
    hand_over();
}

void print_file_writer::line(std::string_view text) {
    pending_.append(text).append("\r\n");
}

void print_file_writer::number(double value) {
    // Most are whole: the plain text of these in the quickest way.
    constexpr double quick = 1e9;
    if (std::abs(value) < quick && value == std::trunc(value)) {
        char digits[16];
        const auto end = std::to_chars(digits, std::end(digits), static_cast<int>(value)).ptr;
        if (value >= 0) pending_ += ' ';
        pending_.append(digits, end);
    } else {
        pending_ += plain_text_signed(value);
    }
    line(" ");
}

void print_file_writer::hand_over() {
    if (file_ && !pending_.empty() && !file_->write(written_, std::as_bytes(std::span(pending_)))) {
        whole_ = false;
        file_.reset();
        files_.create_instead(file_di_stampa);
    }
    written_ += static_cast<std::int64_t>(pending_.size());
    pending_.clear();
}

bool print_file_writer::finish() {
    hand_over();
    file_.reset();
    return whole_;
}

void print_file_writer::write(const record_di_stampa& record) {
    write_view({record.tipo, record.x1, record.y1, record.x2, record.y2, record.corpo,
                record.colore, record.testo, record.carattere, record.grassetto, record.corsivo});
}

void print_file_writer::write_view(const vista_di_record& record, forma_stile form) {
    number(static_cast<double>(record.tipo));
    for (const double place : {record.x1, record.y1, record.x2, record.y2}) number(place);
    number(record.corpo);
    if (record.tipo == tipo_record::figura) {
        line("");
    } else {
        number(record.colore);
    }
    line(record.testo);
    line(record.carattere);
    for (const double style : {record.grassetto, record.corsivo}) {
        if (form == forma_stile::zeri_come_testo) {
            line("0");
        } else {
            number(style);
        }
    }
    if (pending_.size() >= handed_over_at) hand_over();
}

void print_file_writer::end_page() {
    number(static_cast<double>(tipo_record::pagina));
    for (int i = 1; i < righe_per_record; ++i) line("");
}

}  // namespace vantora
