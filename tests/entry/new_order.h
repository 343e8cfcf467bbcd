#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scripted/scripted_run.h"
#include "scripted/small_company.h"

namespace vantora::test {

/// A company in which a new order has just been opened for customer 1.
class new_order : public testing::Test {
 protected:
    using json = nlohmann::json;
    using script = std::vector<std::string>;

    new_order() {
        customer = customer_named("ROSSI SPA");
        company.table_file();
    }

    /// The replies to the commands, which begin when the line screen has come up.
    std::vector<json> run(script commands) {
        company.customers({customer});
        commands.insert(commands.begin(), {"click mirorc.bottone(2)", "click mirorcx.bottone"});
        auto replies = run_script(company.drive(), commands);
        EXPECT_EQ(replies.at(1)["screen"], "mirorcs");
        replies.erase(replies.begin(), replies.begin() + 2);
        for (std::size_t i = 0; i < replies.size(); ++i) {
            EXPECT_EQ(replies[i]["ok"], true) << commands[i + 2] << replies[i];
        }
        return replies;
    }
    /// The state of all controls behind the commands.
    json controls_after(script commands) {
        commands.emplace_back("controls mirorcs");
        return run(std::move(commands)).back().at("value");
    }
    /// The text of one control behind the commands.
    std::string text_after(script commands, const std::string& control) {
        commands.push_back("get mirorcs." + control);
        return run(std::move(commands)).back().at("value").at("text");
    }
    std::string focus_after(script commands) { return run(std::move(commands)).back()["focus"]; }

    /// One row as on the screen: artic, ds, um, quantita, sc1, sc2, prezzo, civ.
    static script row_of(const json& controls, int row) {
        script texts;
        for (const char* column :
             {"artic", "ds", "um", "quantita", "sc1", "sc2", "prezzo", "civ"}) {
            texts.push_back(controls.at(cell(column, row)).at("text"));
        }
        return texts;
    }
    static std::string cell(const std::string& column, int row) {
        return column + "(" + std::to_string(row) + ")";
    }
    static std::string set(const std::string& control, const std::string& text) {
        return "set mirorcs." + control + " \"" + text + "\"";
    }
    static std::string scroll(int line) {
        return "scroll mirorcs.VScroll1 " + std::to_string(line);
    }

    rec_cli customer;
    small_company company;
};

}  // namespace vantora::test
