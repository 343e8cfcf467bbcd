#pragma once

#include "entry/draft_files.h"
#include "entry/line_grid.h"
#include "store/archive_change.h"

namespace vantora {

class customer_head;

/// The lines of a customer's order, new or existing: what happens around them until the order is
/// stored, printed and the register is back. Its customer and head stand in a screen of their own,
/// hidden behind.
class order_screen : public line_grid {
 public:
    /// `head`: the place of the screen that holds the head, which is a customer_head.
    /// `print_title`: of the question whether to print.
    order_screen(program& app, const line_grid_kind& kind, ui::screen_place& head,
                 const char* print_title);

    ui::label testata;  ///< which order it is: customer, number, date

    /// Shows what a draft holds when the screen comes up next.
    void take_up(bozza draft, file_bozza file);
    void rest() override;
    bool may_end() override { return may_leave(); }

 protected:
    void activate() override;
    void settled() override;
    void close() override;
    /// Leaves and saves; other commands are the screen's own.
    void run_command(int command) override;

    virtual void open() = 0;
    virtual bool may_save();
    /// Stores the order. If that doesn't begin, the screen stays.
    virtual change_outcome store() = 0;
    virtual void run_own_command(int command) = 0;
    virtual void describe(bozza& draft) const = 0;
    /// Another order takes the screen; a draft of the one before stays.
    void begin_order();
    /// What was typed is stored, or given up on purpose.
    void forget_draft() { draft_file_.drop(); }

    [[nodiscard]] customer_head& head() const;
    /// A fresh screen for an order of a customer: no lines, options as company and customer have
    /// them.
    void open_order(std::int16_t customer);
    /// New lines take the price that the customer has.
    void take_price_list();
    void show_head();
    /// Which of the article's prices is on, 0 or 1; 2 for none.
    [[nodiscard]] int chosen_price() const;
    /// Back to the register; the order's screens go.
    void leave();

 private:
    void save();
    void offer_to_print();

    [[nodiscard]] bozza draft_now() const;
    [[nodiscard]] bool changed() const;
    /// False if the draft can't be kept aside. `wanted`: by the person.
    bool keep_draft(bool wanted);
    [[nodiscard]] std::string not_kept() const;
    void show_draft();
    /// What was typed is kept, given up, or the person goes on with it: false.
    bool may_leave();

    ui::screen_place& head_;
    const char* print_title_;
    std::optional<std::string> as_opened_;  ///< the draft of an order in which nothing was typed
    std::string kept_;                      ///< the draft as it was kept last
    bool keeping_failed_ = false;
    file_bozza draft_file_;
    std::optional<bozza> taken_up_;  ///< not shown yet
};

}  // namespace vantora
