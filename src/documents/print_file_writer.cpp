#include "documents/print_file_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <span>
#include <utility>

#include "text/number_text.h"

namespace vantora {

namespace {

constexpr std::size_t sent_off_at = 512 * 1024;
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

/// In one move; what is too much is overwritten by what follows.
inline char* put_ready(char* at, const ready_line& line) {
    std::memcpy(at, &line, sizeof line);
    return at + line.size;
}

char* put_other_number(char* at, double value) {
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

inline char* put_number(char* at, double value) {
    if (!(value >= 0 && value < millimetres.size())) return put_other_number(at, value);
    const auto whole = static_cast<std::int32_t>(value);
    if (whole != value) return put_other_number(at, value);
    return put_ready(at, millimetres[static_cast<std::size_t>(whole)]);
}

}  // namespace

print_file_writer::print_file_writer(file_port& files, std::string_view mark)
    : files_(files), file_(files.create_instead(file_di_stampa)), whole_(file_ != nullptr) {
    filled(put_line(room(mark.size() + line_end.size()), mark));
}

print_file_writer::~print_file_writer() {
    hand_over();
}

void print_file_writer::piece::empty(std::size_t least_room) {
    used = 0;
    if (room >= least_room) return;
    lines = std::make_unique_for_overwrite<char[]>(least_room);
    room = least_room;
}

void print_file_writer::make_room(std::size_t size) {
    send_off();
    pending_.empty(std::max(size, sent_off_at));
}

bool print_file_writer::write(const piece& lines) {
    return file_->write(written_, std::as_bytes(std::span(lines.lines.get(), lines.used)));
}

void print_file_writer::send_off() {
    if (!sent_lines_written() || pending_.used == 0) return;
    std::swap(leaving_, pending_);
    taken_ = std::make_shared<std::atomic_flag>();
    const auto unless_taken = [this, taken = taken_] {
        return taken->test_and_set() || write(leaving_);
    };
    // Where the machine has no further thread, nobody else takes them.
    on_its_way_ = std::async(std::launch::async | std::launch::deferred, unless_taken);
}

bool print_file_writer::sent_lines_written() {
    const auto taken = std::exchange(taken_, nullptr);
    if (!taken) return file_ != nullptr;
    if (taken->test_and_set()) {
        note(on_its_way_.get(), leaving_);
    } else {
        // On a busy machine the other thread would be waited for.
        late_.push_back(std::move(on_its_way_));
        note(write(leaving_), leaving_);
    }
    return file_ != nullptr;
}

void print_file_writer::hand_over() {
    const piece last = std::exchange(pending_, {});
    if (sent_lines_written() && last.used > 0) note(write(last), last);
}

void print_file_writer::note(bool written, const piece& lines) {
    if (written) {
        written_ += static_cast<std::int64_t>(lines.used);
        return;
    }
    whole_ = false;
    file_.reset();
    files_.create_instead(file_di_stampa);
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

char* print_file_writer::ready_lines::room(std::size_t bytes) {
    text_.resize(std::max(bytes, usual));
    return text_.data();
}

void print_file_writer::ready_lines::filled(const char* end) {
    size_ = static_cast<std::size_t>(end - text_.data());
}

inline char* print_file_writer::ready_lines::copied_to(char* at) const {
    std::memcpy(at, text_.data(), usual);
    if (size_ > usual) std::memcpy(at + usual, text_.data() + usual, size_ - usual);
    return at + size_;
}

bool print_file_writer::look::is_of(const vista_di_record& record, forma_stile as) const {
    if (record.tipo == tipo_record::testo && (x2_ != record.x2 || y2_ != record.y2)) return false;
    return made_ && corpo_ == record.corpo && colore_ == record.colore &&
           grassetto_ == record.grassetto && corsivo_ == record.corsivo && form_ == as &&
           carattere_ == record.carattere;
}

void print_file_writer::look::make(const vista_di_record& record, forma_stile as) {
    x2_ = record.x2;
    y2_ = record.y2;
    corpo_ = record.corpo;
    colore_ = record.colore;
    carattere_ = record.carattere;
    grassetto_ = record.grassetto;
    corsivo_ = record.corsivo;
    form_ = as;
    made_ = true;
    char* at = before_text_.room(4 * longest_number);
    if (record.tipo == tipo_record::testo) at = put_number(put_number(at, x2_), y2_);
    at = put_number(at, corpo_);
    at = record.tipo == tipo_record::figura ? put(at, line_end) : put_number(at, colore_);
    before_text_.filled(at);
    at = behind_text_.room(2 * longest_number + 2 * line_end.size() + carattere_.size());
    at = put_line(put(at, line_end), carattere_);
    if (form_ == forma_stile::zeri_come_testo) {
        at = put_line(put_line(at, "0"), "0");
    } else {
        at = put_number(put_number(at, grassetto_), corsivo_);
    }
    behind_text_.filled(at);
}

inline char* print_file_writer::room_for(std::size_t text, const look& as) {
    return room(5 * longest_number + as.before_text_.size() + text + as.behind_text_.size() +
                ready_lines::usual);
}

inline void print_file_writer::fill_rest(char* at, std::string_view text, const look& as) {
    filled(as.behind_text_.copied_to(put(as.before_text_.copied_to(at), text)));
}

void print_file_writer::write_view(const vista_di_record& record, forma_stile form) {
    look& as = looks_[static_cast<std::size_t>(record.tipo)];
    if (!as.is_of(record, form)) as.make(record, form);
    char* at = room_for(record.testo.size(), as);
    at = put_number(at, static_cast<double>(record.tipo));
    at = put_number(put_number(at, record.x1), record.y1);
    if (record.tipo != tipo_record::testo) at = put_number(put_number(at, record.x2), record.y2);
    fill_rest(at, record.testo, as);
}

void print_file_writer::write_text(double x, double y, std::string_view text, const look& as) {
    constexpr ready_line text_record = millimetres[static_cast<std::size_t>(tipo_record::testo)];
    char* const at = put_ready(room_for(text.size(), as), text_record);
    fill_rest(put_number(put_number(at, x), y), text, as);
}

void print_file_writer::end_page() {
    char* at = room(longest_number + righe_per_record * line_end.size());
    at = put_number(at, static_cast<double>(tipo_record::pagina));
    for (int i = 1; i < righe_per_record; ++i) at = put(at, line_end);
    filled(at);
}

}  // namespace vantora
