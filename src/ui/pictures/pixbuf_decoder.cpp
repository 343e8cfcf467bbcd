#include "ui/pictures/pixbuf_decoder.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <memory>

namespace vantora::ui {

namespace {

struct release {
    void operator()(gpointer object) const { g_object_unref(object); }
};

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
    const std::unique_ptr<GdkPixbufLoader, release> loader(gdk_pixbuf_loader_new());
    g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(refuse_giants), &made);
    bool written = true;
    while (written && !made.too_large && !bytes.empty()) {
        const std::string_view part = bytes.substr(0, piece);
        written = gdk_pixbuf_loader_write(
            loader.get(), reinterpret_cast<const guchar*>(part.data()), part.size(), nullptr);
        bytes.remove_prefix(part.size());
    }
    // The loader wants its end told even after a failed write.
    const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr);
    const GdkPixbuf* picture = gdk_pixbuf_loader_get_pixbuf(loader.get());
    if (made.too_large || !written || !closed || !picture) return made;
    made.image = bitmap_of(picture);
    return made;
}

}  // namespace vantora::ui
