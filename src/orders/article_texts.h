#pragma once

#include <string>

#include "store/record_stretches.h"
#include "store/records/rec_art.h"

namespace vantora {

/// Code and description of an article, as lists show them.
struct etichetta_articolo {
    etichetta_articolo() = default;
    explicit etichetta_articolo(const rec_art& article)
        : codice(article.codice), descrizione(article.descrizione) {}

    /// "CODE description".
    [[nodiscard]] std::string text() const {
        return std::string(codice.trimmed()).append(" ").append(descrizione.trimmed());
    }
    /// The same with the blanks around the description.
    [[nodiscard]] std::string padded() const {
        return std::string(codice.trimmed()).append(" ").append(descrizione.full());
    }

    decltype(rec_art::codice) codice;
    decltype(rec_art::descrizione) descrizione;
};

/// The articles' texts for one build of a list.
class article_texts {
 public:
    explicit article_texts(const channel<rec_art>& articles) : texts_(articles) {}

    /// "CODE description" of article `number`; empty for a number below 1. Where the article can't
    /// be read it is the text that was looked up before.
    std::string of(std::int16_t number) { return number < 1 ? "" : texts_.of(number).text(); }
    /// The same with the blanks around the description; any record's for a number below 1.
    std::string padded(std::int16_t number) { return texts_.of(number).padded(); }

 private:
    record_stretches<rec_art, etichetta_articolo> texts_;
};

}  // namespace vantora
