#pragma once

#include <array>
#include <atomic>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include "documents/print_file.h"
#include "store/file_port.h"

namespace vantora {

/// Writes a print file. Failures are passed over: a file that can't be created or filled takes
/// nothing from what goes to the printer. After the first failure nothing more is written, and the
/// file is left empty where the system allows it, so that nobody takes it for a document. Of a long
/// one a piece is written, on another thread, while the next is composed.
class print_file_writer {
 private:
    /// Lines that are written again and again. So many bytes as are usual are copied in one go,
    /// also where there are fewer.
    class ready_lines {
     public:
        static constexpr std::size_t usual = 32;

        /// Room for other lines, to be filled up to what `filled` is told.
        char* room(std::size_t bytes);
        void filled(const char* end);
        [[nodiscard]] std::size_t size() const { return size_; }
        /// Returns their end; what lies behind it up to `usual` bytes is overwritten.
        char* copied_to(char* at) const;

     private:
        std::vector<char> text_;
        std::size_t size_ = 0;
    };

 public:
    /// What the lines of a record say behind its place and around its text.
    class look {
     public:
        void make(const vista_di_record& record, forma_stile as);
        [[nodiscard]] bool is_of(const vista_di_record& record, forma_stile as) const;

     private:
        friend print_file_writer;

        ready_lines before_text_;  ///< of a text lines 4 to 7, of others lines 6 and 7
        ready_lines behind_text_;  ///< the end of line 8, lines 9 to 11
        double x2_ = 0;
        double y2_ = 0;
        double corpo_ = 0;
        double colore_ = 0;
        std::string carattere_;
        double grassetto_ = 0;
        double corsivo_ = 0;
        forma_stile form_ = forma_stile::numeri;
        bool made_ = false;
    };

    /// Puts a new file in the place of the old one, which whoever has it open keeps, and writes its
    /// first line, `marca_verticale` or `marca_orizzontale`.
    print_file_writer(file_port& files, std::string_view mark);
    print_file_writer(const print_file_writer&) = delete;
    print_file_writer& operator=(const print_file_writer&) = delete;
    /// Hands the rest to the file and closes it.
    ~print_file_writer();

    /// Writes one record with the lines that its kind has.
    void write(const record_di_stampa& record);
    /// The same for a record whose texts lie elsewhere.
    void write_view(const vista_di_record& record, forma_stile form = forma_stile::numeri);
    /// Writes a text record that looks like another.
    void write_text(double x, double y, std::string_view text, const look& as);
    /// Ends the page.
    void end_page();

    /// Hands the rest to the file and closes it; nothing may be written afterwards. True if the
    /// file holds everything that was written: only then may another program be given it.
    [[nodiscard]] bool finish();

 private:
    /// Room for so many bytes more, to be filled up to what `filled` is told.
    char* room(std::size_t size) {
        if (pending_.room - pending_.used < size) make_room(size);
        return pending_.lines.get() + pending_.used;
    }
    void make_room(std::size_t size);
    void filled(const char* end) {
        pending_.used = static_cast<std::size_t>(end - pending_.lines.get());
    }
    /// Lines in a row.
    struct piece {
        void empty(std::size_t least_room);

        std::unique_ptr<char[]> lines;
        std::size_t room = 0;
        std::size_t used = 0;
    };

    /// Room for a record with a text of so many characters.
    char* room_for(std::size_t text, const look& as);
    void fill_rest(char* at, std::string_view text, const look& as);
    bool write(const piece& lines);
    /// Has what is pending written while the next lines are composed.
    void send_off();
    /// Sees the lines on their way written. False if nothing more may be written.
    bool sent_lines_written();
    /// Writes what is pending.
    void hand_over();
    void note(bool written, const piece& lines);

    file_port& files_;
    std::unique_ptr<file> file_;  ///< null once a failure has left it empty
    piece pending_;               ///< lines that wait for others
    piece leaving_;               ///< lines on their way to the file
    std::int64_t written_ = 0;
    std::shared_ptr<std::atomic_flag> taken_;  ///< set by who writes them; null: there are none
    std::future<bool> on_its_way_;
    std::vector<std::future<bool>> late_;  ///< came too late and have nothing to do
    std::array<look, 10> looks_;           ///< the latest by kind, mostly that of the next too
    bool whole_;
};

}  // namespace vantora
