#include "documents/print_file_writer.h"

#include <span>

#include "store/text/number_text.h"

namespace vantora {

namespace {

constexpr std::size_t handed_over_at = 64 * 1024;

}  // namespace

print_file_writer::print_file_writer(file_port& files, std::string_view mark)
    : file_(files.create(file_di_stampa)) {
    line(mark);
}

print_file_writer::~print_file_writer() {
    hand_over();
}

void print_file_writer::line(std::string_view text) {
    pending_.append(text).append("\r\n");
    if (pending_.size() >= handed_over_at) hand_over();
}

void print_file_writer::number(double value) {
    line(plain_text_signed(value) + " ");
}

void print_file_writer::hand_over() {
    if (file_ && file_->write(written_, std::as_bytes(std::span(pending_)))) {
        written_ += static_cast<std::int64_t>(pending_.size());
    }
    pending_.clear();
}

void print_file_writer::write(const record_di_stampa& record) {
    const bool is_picture = record.tipo == tipo_record::figura;
    number(static_cast<double>(record.tipo));
    number(record.x1);
    number(record.y1);
    number(record.x2);
    number(record.y2);
    number(record.corpo);
    if (is_picture) {
        line("");
    } else {
        number(record.colore);
    }
    line(record.testo);
    line(record.carattere);
    number(record.grassetto);
    number(record.corsivo);
}

void print_file_writer::end_page() {
    number(static_cast<double>(tipo_record::pagina));
    for (int i = 1; i < righe_per_record; ++i) line("");
}

}  // namespace vantora
