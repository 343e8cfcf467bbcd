#pragma once

#include <string>

namespace vantora::test {

inline std::string little_endian(std::size_t number, int bytes = 4) {
    std::string made;
    for (; bytes > 0; --bytes, number >>= 8) made += static_cast<char>(number & 0xFF);
    return made;
}

/// A BMP file, whose head may claim another size; all points are white unless `rows` holds them:
/// blue, green, red, each row filled up to four bytes.
inline std::string picture_file(std::size_t width, std::size_t height, std::size_t claimed = 0,
                                std::string rows = {}) {
    if (rows.empty()) rows.assign((width * 3 + 3) / 4 * 4 * height, '\xFF');
    return "BM" + little_endian(54 + rows.size()) + little_endian(0) + little_endian(54) +
           little_endian(40) + little_endian(claimed == 0 ? width : claimed) +
           little_endian(claimed == 0 ? height : claimed) + little_endian(1, 2) +
           little_endian(24, 2) + std::string(24, '\0') + rows;
}

}  // namespace vantora::test
