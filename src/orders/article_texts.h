#pragma once

#include <string>

#include "store/record_stretches.h"
#include "store/records/rec_art.h"

namespace vantora {

/// Codes and descriptions of the articles for one build of a list.
class article_texts {
 public:
    explicit article_texts(const channel<rec_art>& articles) : texts_(articles) {}

    /// "CODE description" of article `number`; empty for a number below 1. Where the article can't
    /// be read it is the text that was looked up before.
    std::string of(std::int16_t number) {
        if (number < 1) return {};
        const text_of& one = texts_.of(number);
        return std::string(one.codice.trimmed()).append(" ").append(one.descrizione.trimmed());
    }
    /// The same with the blanks behind the description; any record's for a number below 1.
    std::string padded(std::int16_t number) {
        const text_of& one = texts_.of(number);
        return std::string(one.codice.trimmed()).append(" ").append(one.descrizione.full());
    }

 private:
    struct text_of {
        text_of() = default;
        explicit text_of(const rec_art& article)
            : codice(article.codice), descrizione(article.descrizione) {}

        decltype(rec_art::codice) codice;
        decltype(rec_art::descrizione) descrizione;
    };

    record_stretches<rec_art, text_of> texts_;
};

}  // namespace vantora
