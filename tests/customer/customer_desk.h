#pragma once

#include "customer/mirorcx.h"
#include "customer/mirsel.h"
#include "scripted/company_stage.h"

namespace vantora::test {

/// Five customers; the index has the deleted one (3), Bianchi (2), ROSSI MARIO (4), ROSSI SPA (1)
/// and ZETA (5).
struct five_customers : small_company {
    five_customers() {
        auto deleted = customer_named("*CESSATI SRL");
        deleted.eliminato = 1;
        customers({customer_named("ROSSI SPA"), customer_named("Bianchi"), deleted,
                   customer_named("ROSSI MARIO"), customer_named("ZETA")});
        table_file();
    }
};

/// The screen of a new order's customer, and its pick list, over a company.
struct customer_desk : company_stage {
    explicit customer_desk(const small_company& company) : company_stage(company) {
        provide(app.mirorcx);
        provide(app.mirsel);
        app.mirorcx->show();
        reads.clear();
    }

    /// Searches for a name; gives the text of the box that comes up, answered.
    std::string search(std::string_view name) {
        std::string told;
        front.actions = {[&] {
            told = desk.open_box()->text;
            desk.answer_box(ui::answer::ok);
        }};
        app.mirorcx->nome.set_text(name);
        app.mirorcx->b_cerca.click();
        front.actions.clear();
        return told;
    }

    /// Opens the pick list, looks at it, and leaves it by its button.
    void with_pick_list(const std::function<void(mirsel&)>& look) {
        front.actions = {[&] {
            look(*app.mirsel);
            app.mirsel->indice.click();
        }};
        app.mirorcx->b_lista.click();
    }
};

}  // namespace vantora::test
