#include "documents/document_pictures.h"

#include <algorithm>
#include <cmath>

#include "text/code_page.h"

namespace vantora {

namespace {

/// How many of a picture's points begin on the paper.
int points_on_paper(int points, double from, double paper) {
    const double room = std::ceil((paper - from * scala_posto_figura) / lato_punto_figura);
    return static_cast<int>(std::clamp(room, 0.0, static_cast<double>(points)));
}

std::size_t points_of(const ui::bitmap& image) {
    return image.points.size();
}

}  // namespace

std::string picture_names(const std::vector<std::string>& files) {
    constexpr std::size_t named_max = 5;
    std::string names;
    for (std::size_t i = 0; i < std::min(files.size(), named_max); ++i) {
        const std::size_t cut = files[i].size() - std::min<std::size_t>(files[i].size(), 100);
        names += (i == 0 ? "" : ", ") + files[i].substr(cut);
    }
    return files.size() > named_max ? names + ", ..." : names;
}

void figure_documento::leave_out(const std::string& path) {
    if (std::ranges::find(left_out_, path) == left_out_.end()) left_out_.push_back(path);
}

bool figure_documento::fits_document(std::size_t points) {
    if (points_ + points > punti_per_documento) return false;
    points_ += points;
    return true;
}

const figure_documento::file_read& figure_documento::read(const std::string& path) {
    const auto [place, is_new] = read_.try_emplace(path);
    file_read& made = place->second;
    if (!is_new) return made;
    made.too_large = cost_ >= lettura_per_documento;
    if (made.too_large) return made;
    const auto bytes = files_.read_whole(path);
    if (!bytes) return made;
    auto decoded = decoder_.decode(*bytes);
    if (decoded.other_kind) other_kinds_.push_back(path);
    cost_ += decoded.claimed + bytes->size() / 4;
    made.too_large =
        decoded.too_large || (decoded.image && !fits_document(points_of(*decoded.image)));
    if (decoded.image && !made.too_large) {
        made.image = std::make_shared<const ui::bitmap>(std::move(*decoded.image));
    }
    return made;
}

figure_documento::figura figure_documento::cut(const figura& image, int width, int height) {
    if (width == image->width && height == image->height) return image;
    figura& place = cut_[{image, {width, height}}];
    if (place || !fits_document(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)))
        return place;
    ui::bitmap made{width, height, {}};
    made.points.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int row = 0; row < height; ++row) {
        const auto begin = image->points.begin() + std::ptrdiff_t{row} * image->width;
        made.points.insert(made.points.end(), begin, begin + width);
    }
    place = std::make_shared<const ui::bitmap>(std::move(made));
    return place;
}

figure_documento::figura figure_documento::at(std::string_view path, double x, double y,
                                              double page_width, double page_height) {
    const std::string name(trimmed(path));
    if (name.empty() || !(x > 0) || !(y > 0)) return {};
    const file_read& file = read(name);
    if (file.too_large) {
        leave_out(name);
        return {};
    }
    if (file.image) last_ = file.image;
    if (!last_) return {};
    const int width = points_on_paper(last_->width, x, page_width);
    const int height = points_on_paper(last_->height, y, page_height);
    const std::size_t points = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (points == 0) return {};
    figura drawn =
        points_on_page_ + points > punti_per_pagina ? figura() : cut(last_, width, height);
    if (!drawn) {
        leave_out(name);
        return {};
    }
    points_on_page_ += points;
    return drawn;
}

}  // namespace vantora
