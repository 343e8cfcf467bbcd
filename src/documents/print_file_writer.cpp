#include "documents/print_file_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <span>

#include "store/text/number_text.h"

namespace vantora {

namespace {

constexpr std::size_t handed_over_at = 64 * 1024;
constexpr std::size_t longest_number = 32;  ///< with its blanks and line end
constexpr double largest_whole = 1e15;      ///< from here on numbers have an exponent
constexpr std::string_view line_end = "\r\n";

char* put(char* at, std::string_view text) {
    return std::copy_n(text.data(), text.size(), at);
}

char* put_line(char* at, std::string_view text) {
    return put(put(at, text), line_end);
}

/// A line with a whole number, ready to be copied in one piece.
struct ready_line {
    char text[7];
    std::uint8_t size;
};

/// Most numbers of a page are 0 or millimetres.
constexpr auto millimetres = [] {
    std::array<ready_line, 1000> lines{};
    for (std::size_t value = 0; value < lines.size(); ++value) {
        ready_line& line = lines[value];
        const auto add = [&](std::size_t character) {
            line.text[line.size++] = static_cast<char>(character);
        };
        add(' ');
        if (value >= 100) add('0' + value / 100);
        if (value >= 10) add('0' + value / 10 % 10);
        add('0' + value % 10);
        for (const char character : {' ', '\r', '\n'}) add(static_cast<std::size_t>(character));
    }
    return lines;
}();

char* put_number(char* at, double value) {
    if (value >= 0 && value < millimetres.size()) {
        const auto whole = static_cast<unsigned>(value);
        if (whole == value) {
            const ready_line& line = millimetres[whole];
            std::memcpy(at, line.text, sizeof line.text);
            return at + line.size;
        }
    }
    if (value > -largest_whole && value < largest_whole) {
        const auto whole = static_cast<std::int64_t>(value);
        if (static_cast<double>(whole) == value) {
            if (whole >= 0) *at++ = ' ';
            at = std::to_chars(at, at + longest_number, whole).ptr;
            return put(at, " \r\n");
        }
    }
    return put(put(at, plain_text_signed(value)), " \r\n");
}

}  // namespace

print_file_writer::print_file_writer(file_port& files, std::string_view mark)
    : files_(files),
      file_(files.create_instead(file_di_stampa)),
      pending_(handed_over_at),
      whole_(file_ != nullptr) {
    filled(put_line(room(mark.size() + line_end.size()), mark));
}

print_file_writer::~print_file_writer() {
    hand_over();
}

char* print_file_writer::room(std::size_t size) {
    if (used_ + size > pending_.size()) {
        hand_over();
        if (size > pending_.size()) pending_.resize(size);
    }
    return pending_.data() + used_;
}

void print_file_writer::filled(const char* end) {
    used_ = static_cast<std::size_t>(end - pending_.data());
}

void print_file_writer::hand_over() {
    if (used_ == 0) return;
    const auto bytes = std::as_bytes(std::span(pending_).first(used_));
    if (file_ && file_->write(written_, bytes)) {
        written_ += static_cast<std::int64_t>(used_);
    } else if (file_) {
        whole_ = false;
        file_.reset();
        files_.create_instead(file_di_stampa);
    }
    used_ = 0;
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
    const std::size_t texts = record.testo.size() + record.carattere.size();
    char* at = room(righe_per_record * longest_number + texts);
    at = put_number(at, static_cast<double>(record.tipo));
    for (const double value : {record.x1, record.y1, record.x2, record.y2, record.corpo}) {
        at = put_number(at, value);
    }
    const bool is_picture = record.tipo == tipo_record::figura;
    at = is_picture ? put(at, line_end) : put_number(at, record.colore);
    at = put_line(put_line(at, record.testo), record.carattere);
    if (form == forma_stile::zeri_come_testo) {
        at = put_line(put_line(at, "0"), "0");
    } else {
        at = put_number(put_number(at, record.grassetto), record.corsivo);
    }
    filled(at);
}

void print_file_writer::end_page() {
    char* at = room(longest_number + righe_per_record * line_end.size());
    at = put_number(at, static_cast<double>(tipo_record::pagina));
    for (int i = 1; i < righe_per_record; ++i) at = put(at, line_end);
    filled(at);
}

}  // namespace vantora
