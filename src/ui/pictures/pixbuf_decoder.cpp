#include "ui/pictures/pixbuf_decoder.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <memory>

namespace vantora::ui {

namespace {

struct release {
    void operator()(gpointer object) const { g_object_unref(object); }
};

/// No logo is larger; a damaged head of a file must not make us reserve the memory for it.
constexpr int widest = 10'000;

void refuse_giants(GdkPixbufLoader* loader, int width, int height, gpointer) {
    if (width > widest || height > widest) gdk_pixbuf_loader_set_size(loader, 1, 1);
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

std::optional<bitmap> pixbuf_decoder::decode(std::string_view bytes) {
    const std::unique_ptr<GdkPixbufLoader, release> loader(gdk_pixbuf_loader_new());
    g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(refuse_giants), nullptr);
    const auto* data = reinterpret_cast<const guchar*>(bytes.data());
    // The loader wants its end told even after a failed write.
    const bool written = gdk_pixbuf_loader_write(loader.get(), data, bytes.size(), nullptr);
    const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr);
    const GdkPixbuf* picture = gdk_pixbuf_loader_get_pixbuf(loader.get());
    if (!written || !closed || !picture) return {};
    return bitmap_of(picture);
}

}  // namespace vantora::ui
