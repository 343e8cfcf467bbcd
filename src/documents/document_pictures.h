#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "store/file_port.h"
#include "ui/picture_decoder.h"

namespace vantora {

/// A point of a picture takes 15 twips on paper, as on a common screen, however large its file says
/// it should be. The scale that places a picture is a little off the true one.
inline constexpr double lato_punto_figura = 15 / 56.6929;        ///< millimetres
inline constexpr double scala_posto_figura = 56.6868 / 56.6929;  ///< paper to nominal millimetres
inline constexpr std::size_t punti_per_pagina = 2'000'000;       ///< of pictures, twice its area
inline constexpr std::size_t punti_per_documento = 8'000'000;    ///< of different pictures

/// What reading its picture files may cost a document, whatever comes of them: points decoded, and
/// a quarter of the bytes.
inline constexpr std::size_t lettura_per_documento = 2 * punti_per_documento;

/// The first few of the files for a message, their ends.
std::string picture_names(const std::vector<std::string>& files);

/// The pictures of one document. Each file is read once; one that holds no picture leaves the one
/// before in its place. What is too large, or too much for a page or a document, is left out and
/// its name kept.
class figure_documento {
 public:
    using figura = std::shared_ptr<const ui::bitmap>;

    /// `before`: what the first picture that can't be read leaves in its place; may be null.
    figure_documento(file_port& files, ui::picture_decoder& decoder, figura before = {})
        : files_(files), decoder_(decoder), last_(std::move(before)) {}

    void begin_page() { points_on_page_ = 0; }

    /// The points that fall on the paper of a picture at (x, y); null for none. All millimetres.
    figura at(std::string_view path, double x, double y, double page_width, double page_height);

    /// The files that were left out as too large, each once.
    [[nodiscard]] const std::vector<std::string>& left_out() const { return left_out_; }
    /// The files of a kind that isn't read (SVG, TIFF ...), each once.
    [[nodiscard]] const std::vector<std::string>& other_kinds() const { return other_kinds_; }

 private:
    struct file_read {
        figura image;  ///< null if there is none
        bool too_large = false;
    };

    const file_read& read(const std::string& path);
    figura cut(const figura& image, int width, int height);
    bool fits_document(std::size_t points);
    void leave_out(const std::string& path);

    file_port& files_;
    ui::picture_decoder& decoder_;
    figura last_;
    std::map<std::string, file_read> read_;
    std::map<std::pair<figura, std::pair<int, int>>, figura> cut_;
    std::size_t points_on_page_ = 0;
    std::size_t points_ = 0;
    std::size_t cost_ = 0;  ///< of the files read
    std::vector<std::string> left_out_;
    std::vector<std::string> other_kinds_;
};

}  // namespace vantora
