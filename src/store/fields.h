#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "text/code_page.h"

namespace vantora {

// The fields that records are made of. Each is an array of bytes in the order of the file, with
// alignment 1, so a struct of fields is the layout of the file on every processor.

/// N bytes of text in the code page, padded with blanks. A field never stored holds zero bytes.
template <std::size_t N>
class text {
 public:
    static constexpr std::size_t width = N;

    text() = default;
    text(std::string_view value) { *this = value; }

    /// Pads with blanks, cuts at the width.
    text& operator=(std::string_view value) {
        const std::size_t kept = value.size() < N ? value.size() : N;
        value.copy(bytes_, kept);
        std::memset(bytes_ + kept, ' ', N - kept);
        return *this;
    }

    /// All N characters as they stand. Valid as long as the record.
    [[nodiscard]] std::string_view full() const { return {bytes_, N}; }

    bool operator==(const text& other) const { return std::memcmp(bytes_, other.bytes_, N) == 0; }

    /// Without blanks at both ends. Valid as long as the record.
    [[nodiscard]] std::string_view trimmed() const { return vantora::trimmed(full()); }

 private:
    char bytes_[N] = {};
};

/// A number stored little-endian in sizeof(Number) bytes.
template <class Number, class Bits>
class little_endian {
 public:
    little_endian() = default;
    little_endian(Number value) { *this = value; }

    little_endian& operator=(Number value) {
        const Bits bits = swapped_if_big(std::bit_cast<Bits>(value));
        std::memcpy(bytes_, &bits, sizeof bits);
        return *this;
    }

    operator Number() const {
        Bits bits;
        std::memcpy(&bits, bytes_, sizeof bits);
        return std::bit_cast<Number>(swapped_if_big(bits));
    }

 private:
    static constexpr Bits swapped_if_big(Bits bits) {
        if constexpr (std::endian::native == std::endian::little) return bits;
        Bits swapped = 0;
        for (std::size_t i = 0; i < sizeof(Bits); ++i) {
            swapped = static_cast<Bits>(static_cast<Bits>(swapped << 8) | (bits & 0xFF));
            bits = static_cast<Bits>(bits >> 8);
        }
        return swapped;
    }

    static_assert(sizeof(Number) == sizeof(Bits));
    unsigned char bytes_[sizeof(Number)] = {};
};

using i16le = little_endian<std::int16_t, std::uint16_t>;
using f32le = little_endian<float, std::uint32_t>;
using f64le = little_endian<double, std::uint64_t>;

static_assert(alignof(text<3>) == 1 && sizeof(text<3>) == 3);
static_assert(alignof(i16le) == 1 && sizeof(i16le) == 2);
static_assert(alignof(f64le) == 1 && sizeof(f64le) == 8);

}  // namespace vantora
