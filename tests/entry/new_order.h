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

    /// The replies to the commands, which begin when the line screen has come up; the last one
    /// holds the state of all controls.
    std::vector<json> run(script commands) {
        company.customers({customer});
        commands.insert(commands.begin(), {"click mirorc.bottone(2)", "click mirorcx.bottone"});
        commands.emplace_back("controls mirorcs");
        auto replies = run_script(company.drive(), commands);
        EXPECT_EQ(replies.at(1)["screen"], "mirorcs");
        for (std::size_t i = 0; i < replies.size(); ++i) {
            const bool over = replies[i].contains("fatal");
            EXPECT_TRUE(over || replies[i]["ok"] == true) << commands[i] << replies[i];
        }
        replies.erase(replies.begin(), replies.begin() + 2);
        return replies;
    }
    /// Behind the commands the screen shows: "ds(3)=vite", a control's text; "List1.count=3", what
    /// else is told of it; "row(3)=|vite||||||", a whole row from `artic` to `civ`; "focus=ds(3)";
    /// "box=", the text of an open message box.
    void expect_after(const script& commands, const script& shown) {
        const json last = run(commands).back();
        for (const std::string& one : shown) {
            const std::string place = one.substr(0, one.find('='));
            EXPECT_EQ(place + "=" + found(last, place), one) << json(commands);
        }
    }
    static std::string found(const json& reply, const std::string& place) {
        if (place == "focus") return reply.at("focus");
        if (place == "box") return reply.contains("box") ? reply["box"].at("text") : json("");
        const json& controls = reply.at("value");
        if (place.starts_with("row")) {
            std::string all;
            for (const char* column : {"artic", "ds", "um", "quantita", "sc1", "sc2", "prezzo"}) {
                all += controls.at(column + place.substr(3)).at("text").get<std::string>() + "|";
            }
            return all + controls.at("civ" + place.substr(3)).at("text").get<std::string>();
        }
        const auto dot = place.find('.');
        const json& control = controls.at(place.substr(0, dot));
        if (dot == std::string::npos) return control.at("text");
        return control.at(place.substr(dot + 1)).dump();
    }

    static script together(std::initializer_list<script> parts) {
        script all;
        for (const script& part : parts) all.insert(all.end(), part.begin(), part.end());
        return all;
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
