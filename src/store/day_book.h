#pragma once

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "store/archives.h"
#include "text/dates.h"

namespace vantora {

/// The book of what was done in an archive: a text outside of it, one line each, the newest at the
/// end. When it is long it goes aside as "libro.1.txt" and an older one goes; several programs may
/// write to it. One that can't be written is none.
class day_book {
 public:
    /// Nothing is made before the first line.
    explicit day_book(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// Takes down the changes of a company's archive from now on.
    void watch(archivi& files, int numero_azienda, std::function<date_time()> now) const;

    /// `fields` in the code page; what would break a line or a column becomes a blank.
    void write(std::initializer_list<std::string_view> fields) const;

 private:
    void turn_page() const;

    std::filesystem::path folder_;
};

/// Where the person's book is kept, "~/.local/state/vantora-ordini"; none without a home, or if
/// `LIBRO=no` stands in "~/.config/vantora-ordini/libro.conf".
std::optional<day_book> book_of_person();

/// Whether `LIBRO=no` stands there.
bool is_switched_off(const std::filesystem::path& settings);

/// Where the person's settings of that name lie, "~/.config/vantora-ordini/libro.conf"; empty
/// without a home.
std::filesystem::path settings_file(std::string_view name);

/// The value of a line "KEY=value" in a settings file; empty if there is none.
std::string setting_in(const std::filesystem::path& file, std::string_view key);

}  // namespace vantora
