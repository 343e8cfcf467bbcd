#include "ui/pictures/pixbuf_decoder.h"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gio/gio.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace vantora::ui {

namespace {

struct release {
    void operator()(gpointer object) const { g_object_unref(object); }
};

/// How a file of each kind begins. Its own loader reads it and no other: those of drawings follow
/// references and filters, which no bound on size holds.
struct kind_of_picture {
    std::string_view begin;
    const char* loader;
};
constexpr std::array<kind_of_picture, 4> kinds{
    {{"BM", "bmp"}, {"\x89PNG\r\n\x1A\n", "png"}, {"\xFF\xD8", "jpeg"}, {"GIF8", "gif"}}};

/// What loader the bytes are for; empty for all other kinds.
std::string_view loader_of(std::string_view bytes) {
    const auto* const kind = std::ranges::find_if(
        kinds, [&](const kind_of_picture& one) { return bytes.starts_with(one.begin); });
    return kind == kinds.end() ? "" : kind->loader;
}

/// A PNG file without the texts in it, a few bytes of which unpack to megabytes: head, points and
/// what is transparent.
std::string bare_png(std::string_view bytes) {
    constexpr std::size_t around = 12;  // length, name and check sum of a piece
    std::string made(bytes.substr(0, 8));
    bytes.remove_prefix(made.size());
    while (bytes.size() >= around) {
        std::size_t size = 0;
        for (std::size_t i = 0; i < 4; ++i) size = size << 8 | static_cast<unsigned char>(bytes[i]);
        const std::string_view name = bytes.substr(4, 4);
        const std::string_view whole = bytes.substr(0, size + around);
        if ((name[0] >= 'A' && name[0] <= 'Z') || name == "tRNS") made += whole;
        bytes.remove_prefix(whole.size());
    }
    return made;
}

/// Each scan of a JPEG file, however short, goes over all its points again; none has need of many.
bool has_many_scans(std::string_view bytes) {
    constexpr int scans_max = 100;
    int scans = 0;
    for (auto at = bytes.find("\xFF\xDA"); at != bytes.npos; at = bytes.find("\xFF\xDA", at + 2)) {
        ++scans;
    }
    return scans > scans_max;
}

/// One picture of a GIF file is enough; others may follow without an end.
void end_with_first(GdkPixbufLoader*, int, int, int, int, gpointer done) {
    *static_cast<bool*>(done) = true;
}

/// Whether the bytes are a picture at all, by what the system knows of files' beginnings.
bool is_picture(std::string_view bytes) {
    constexpr std::size_t looked_at = 4096;
    const std::string_view head = bytes.substr(0, looked_at);
    const std::unique_ptr<char, decltype(&g_free)> type(
        g_content_type_guess(nullptr, reinterpret_cast<const guchar*>(head.data()), head.size(),
                             nullptr),
        g_free);
    return std::string_view(type.get()).starts_with("image/");
}

/// Files are read piece by piece, so that one whose head claims too much is left at its head.
constexpr std::size_t piece = 4096;

/// The sizes that a file claims come before any room is made for its points; none is made for 0.
void refuse_giants(GdkPixbufLoader* loader, int width, int height, gpointer made) {
    auto& told = *static_cast<decoded_picture*>(made);
    if (width <= picture_side_max && height <= picture_side_max &&
        width <= picture_points_max / std::max(height, 1)) {
        told.claimed = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
        return;
    }
    told.too_large = true;
    gdk_pixbuf_loader_set_size(loader, 0, 0);
}

bitmap bitmap_of(const GdkPixbuf* from) {
    bitmap made{gdk_pixbuf_get_width(from), gdk_pixbuf_get_height(from), {}};
    const guint8* rows = gdk_pixbuf_read_pixels(from);
    const auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(from));
    const auto channels = static_cast<std::size_t>(gdk_pixbuf_get_n_channels(from));
    const bool has_alpha = gdk_pixbuf_get_has_alpha(from);
    const auto width = static_cast<std::size_t>(made.width);
    const auto height = static_cast<std::size_t>(made.height);
    made.points.reserve(width * height);
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const guint8* point = rows + y * stride + x * channels;
            const bool hidden = has_alpha && point[3] < 128;
            const auto ink = static_cast<colour>(point[0] | point[1] << 8 | point[2] << 16);
            made.points.push_back(hidden ? transparent_grey : ink);
        }
    }
    return made;
}

}  // namespace

decoded_picture pixbuf_decoder::decode(std::string_view bytes) {
    decoded_picture made;
    const std::string_view kind = loader_of(bytes);
    if (kind.empty()) made.other_kind = is_picture(bytes);
    if (kind.empty() || (kind == "jpeg" && has_many_scans(bytes))) return made;
    std::string bare;
    if (kind == "png") bytes = bare = bare_png(bytes);
    const std::unique_ptr<GdkPixbufLoader, release> loader(
        gdk_pixbuf_loader_new_with_type(kind.data(), nullptr));
    if (!loader) return made;
    g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(refuse_giants), &made);
    bool done = false;
    if (kind == "gif") {
        g_signal_connect(loader.get(), "area-updated", G_CALLBACK(end_with_first), &done);
    }
    bool written = true;
    while (written && !made.too_large && !done && !bytes.empty()) {
        const std::string_view part = bytes.substr(0, piece);
        written = gdk_pixbuf_loader_write(
            loader.get(), reinterpret_cast<const guchar*>(part.data()), part.size(), nullptr);
        bytes.remove_prefix(part.size());
    }
    // The loader wants its end told even after a failed write.
    const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr);
    const GdkPixbuf* picture = gdk_pixbuf_loader_get_pixbuf(loader.get());
    if (made.too_large || !written || !(closed || done) || !picture) return made;
    made.image = bitmap_of(picture);
    return made;
}

}  // namespace vantora::ui
