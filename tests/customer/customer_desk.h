#pragma once

#include "customer/mirorcx.h"
#include "customer/mirsel.h"
#include "scripted/company_stage.h"

namespace vantora::test {

/// The screen of a new order's customer, and its pick list, over a company.
struct customer_desk : company_stage {
    explicit customer_desk(const small_company& company) : company_stage(company) {
        provide(app.mirorcx);
        provide(app.mirsel);
        app.mirorcx->show();
        reads.clear();
    }

    /// Does something; gives the text of the box that comes up, answered.
    std::string told_by(const std::function<void()>& act) {
        std::string told;
        front.actions = {[&] {
            told = desk.open_box()->text;
            desk.answer_box(ui::answer::ok);
        }};
        act();
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
