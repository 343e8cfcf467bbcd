#include "demo/page.h"

#include <cstdlib>

namespace vantora::demo {

namespace {

constexpr int width = 66;
constexpr int height = 60;

/// Each pixel is looked at in 4 by 4 places; shapes are in these eighths of a pixel.
constexpr int places = 4;
constexpr int unit = 2 * places;
constexpr int centre_x = width * places;
constexpr int centre_y = height * places;

struct colour {
    int red, green, blue;
};

constexpr colour left_out{192, 192, 192};
constexpr colour paper{255, 255, 255};
constexpr colour deep_blue{31, 56, 100};
constexpr colour steel{96, 128, 176};
constexpr colour water{0, 146, 208};
constexpr colour gleam{190, 228, 246};

constexpr long in_pixels(long value) {
    return value * unit;
}

bool in_circle(long dx, long dy, long radius) {
    return dx * dx + dy * dy <= in_pixels(radius) * in_pixels(radius);
}

/// Hexagon standing on a corner; 866 and 577 are its slopes in thousandths.
bool in_hexagon(long dx, long dy, long radius) {
    const long across = std::labs(dx);
    return across * 1000 <= in_pixels(radius) * 866 &&
           std::labs(dy) * 1000 <= in_pixels(radius) * 1000 - across * 577;
}

bool in_drop(long dx, long dy) {
    if (in_circle(dx, dy - in_pixels(4), 9)) return true;
    const long below_tip = dy + in_pixels(14);
    return dy <= in_pixels(1) && below_tip >= 0 && std::labs(dx) * 17 <= below_tip * 10;
}

const colour* shape_at(long dx, long dy) {
    if (in_circle(dx + in_pixels(3), dy - in_pixels(6), 2)) return &gleam;
    if (in_drop(dx, dy)) return &water;
    if (in_circle(dx, dy, 18)) return &paper;
    if (in_circle(dx, dy, 20)) return &steel;
    if (in_hexagon(dx, dy, 29)) return &deep_blue;
    return nullptr;
}

colour pixel(int x, int y) {
    colour sum{0, 0, 0};
    int covered = 0;
    for (int i = 0; i < places * places; ++i) {
        const long dx = x * unit + 2 * (i % places) + 1 - centre_x;
        const long dy = y * unit + 2 * (i / places) + 1 - centre_y;
        const colour* const found = shape_at(dx, dy);
        const colour& seen = found ? *found : paper;
        covered += found ? 1 : 0;
        sum.red += seen.red;
        sum.green += seen.green;
        sum.blue += seen.blue;
    }
    if (covered == 0) return left_out;
    constexpr int all = places * places;
    return {sum.red / all, sum.green / all, sum.blue / all};
}

void put(std::string& into, unsigned value, int bytes) {
    for (int i = 0; i < bytes; ++i) into += static_cast<char>(value >> 8 * i & 0xFF);
}

}  // namespace

std::string logo_bitmap() {
    constexpr unsigned head = 54;
    constexpr unsigned row = (width * 3 + 3) / 4 * 4;
    std::string file = "BM";
    put(file, head + row * height, 4);
    put(file, 0, 4);
    put(file, head, 4);
    put(file, 40, 4);
    put(file, width, 4);
    put(file, height, 4);
    put(file, 1, 2);
    put(file, 24, 2);
    put(file, 0, 4);
    put(file, row * height, 4);
    put(file, 3780, 4);
    put(file, 3780, 4);
    put(file, 0, 4);
    put(file, 0, 4);
    for (int y = height; y-- > 0;) {
        for (int x = 0; x < width; ++x) {
            const colour one = pixel(x, y);
            put(file, static_cast<unsigned>(one.blue), 1);
            put(file, static_cast<unsigned>(one.green), 1);
            put(file, static_cast<unsigned>(one.red), 1);
        }
        put(file, 0, static_cast<int>(row) - 3 * width);
    }
    return file;
}

}  // namespace vantora::demo
