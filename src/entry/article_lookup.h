#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "entry/article_list.h"
#include "program/program.h"
#include "ui/controls.h"

namespace vantora {

/// Finds the article of a line: by a code that the list follows while it is typed, by a bar code,
/// by a click on the list, or by a description; and shows an article's stock. What was found goes
/// to `on_found`; which line takes it is its screen's business.
class article_lookup {
 public:
    explicit article_lookup(program& app) : app_(app) {
        List1.columns = {{"Articolo", entry_code}, {"Descrizione", entry_description}};
    }
    article_lookup(const article_lookup&) = delete;
    article_lookup& operator=(const article_lookup&) = delete;

    ui::list_box List1;     ///< all live articles
    ui::label listx;        ///< stock of the current article
    ui::label scorta;       ///< stock of the current line's article, as it is now
    ui::check_box barcode;  ///< codes are bar codes

    /// Takes an article that was found, with the code that stands for it on a line.
    std::function<void(std::int16_t number, const rec_art& article, std::string_view code)>
        on_found;

    /// How many articles there are, by the last look at their counter.
    [[nodiscard]] std::int16_t articles() const { return contatore_.quanti; }

    /// A screen begins: bar codes as the company has it, else the list, read anew.
    void open();
    void reload();
    void barcode_switched();

    /// A code cell takes the focus: the list goes to what stands in it.
    void follow_cell(std::string_view code);
    /// A key is typed behind a code.
    void follow_key(std::string_view code, char key);
    /// The code is confirmed. False if no article has it.
    bool take_code(std::string_view code);
    /// The article that a code typed and confirmed takes, if the code is its own and not only the
    /// beginning of it; 0 if none.
    std::int16_t article_of(std::string_view code);
    void take_list_entry();
    /// Takes the first article whose description begins so; none: nothing happens. False if the
    /// list isn't there to search.
    bool take_description(std::string_view text);

    /// Shows the stock of an article, unless it is the one that shows.
    void mostra_giacenza(std::int16_t article);
    /// Shows how the stock of a line's article stands now; nothing for a line without one.
    void tell_stock(std::int16_t article);

 private:
    void count_articles();
    void attiva_lista(bool on);
    void carica_lista();
    [[nodiscard]] bool can_search() const { return List1.enabled() && lista_pronta_; }
    void search_list(const std::string& wanted);
    bool find_bar_code(const std::string& code);
    void report(std::string_view code);

    program& app_;
    rec_tot contatore_;          ///< of the articles
    bool lista_pronta_ = false;  ///< loaded, and its clicks are the user's
    int lista_trovato_ = 0;      ///< outcome of the last search
    std::int16_t articolo_corrente_ = 0;
    rec_art articolo_;
};

}  // namespace vantora
