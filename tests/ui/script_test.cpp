#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "errors/run_time_errors.h"
#include "text/code_page.h"
#include "ui/controls.h"
#include "ui/script/script_front_end.h"

namespace vantora::ui {
namespace {

using nlohmann::json;

/// A screen with a control of every kind, and events that are noted, block, fail and end.
class every_kind final : public form {
 public:
    explicit every_kind(ui::desk& on) : form(on, "prova", "Città"_cp) {
        add("testo", testo);
        add("scritta", scritta);
        add("bottone", bottone);
        add("figura", figura);
        add("spunta", spunta);
        add("scelta", scelta);
        add("elenco", elenco);
        add("lista", lista);
        add("tendina", tendina);
        add("barra", barra);
        add("avanzamento", avanzamento);
        add("data", data);
        scritta.set_text("perché"_cp);
        group.join(scelta);
        scelta[0].design_on(true);
        elenco.set_columns({{"uno", 1}, {"due", 1}});
        elenco.set_rows(4);
        elenco.set_text(1, 0, "à"_cp);
        elenco.set_back_colour(2, 0, 1, 255);
        lista.add_all({"b", "a"});
        tendina.add_all({"x", "y"});
        barra.set_limits(1, 9);
        barra.set_value(1);
        testo.on_change = [this] { note(testo.text()); };
        for (auto& one : scelta) {
            one.on_click = [this] {
                note(std::to_string(scelta[0].on()) + (scelta[1].on() ? "1" : "0"));
            };
        }
        elenco.on_click = [this] {
            note(std::to_string(elenco.row()) + "," + std::to_string(elenco.mouse_column()));
        };
        lista.on_click = [this] { note(std::to_string(lista.chosen())); };
        tendina.on_click = [this] { note(std::to_string(tendina.chosen())); };
        tendina.on_focus = [this] {
            if (testo.text() == "vuota") tendina.clear();
        };
        barra.on_change = [this] { note(std::to_string(barra.value())); };
        data.on_change = [this] { note(data.text()); };
        data.on_close_up = [this] { note("closed"); };
        bottone[0].on_click = [this] {
            const bool yes = desk().ask("Sicuro?", "Domanda", icon::question);
            scritta.set_text(yes ? "sì"_cp : "no"_cp);
        };
        bottone[1].on_click = [this] { desk().end_program(); };
        bottone[2].on_click = [] { throw overflow_error(); };
        scritta.on_click = [] { throw 1; };
        bottone[3].on_click = [this] {
            desk().wait_until([this] { return scritta.text() == "via"; });
            testo.set_text("passata");
        };
        bottone[4].on_click = [this] {
            desk().printer().text(10, 20, "Città"_cp, {"Arial", 12, true, false}, 255);
            desk().printer().line(1, 2, 3, 4, 0);
            desk().printer().box(1, 2, 3, 4, 5, true);
            desk().printer().new_page();
            desk().printer().end_job();
            desk().printer().choose_settings();
            const bool started = desk().launcher().start("programma a,b");
            testo.set_text(started ? "partito" : "fermo");
        };
        figura.on_click = [this] { scritta.set_text("via"); };
        offer({"altra", "Altra", "Ctrl+B", [this] { return !spunta.on(); },
               [this] {
                   const auto chosen = desk().guards().choose(
                       "Che fare?", {"Sì, così"_cp, "Niente"}, answer::choice_2);
                   const bool goes_on = desk().guards().confirm("Davvero?");
                   const bool refused = desk().guards().refuse("Non si fa");
                   note(std::to_string(static_cast<int>(chosen)) + (goes_on ? "g" : "n") +
                        (refused ? "r" : "d"));
               }});
    }
    void note(const std::string& what) { scritta.set_text(scritta.text() + " " + what); }

    text_box testo;
    label scritta;
    button bottone[5];
    picture figura;
    check_box spunta;
    option_button scelta[2];
    option_group group;
    grid elenco;
    list_box lista;
    drop_down tendina;
    scroll_bar barra;
    progress_bar avanzamento;
    date_picker data;
};

/// The replies to a script on that screen.
std::vector<json> run(const std::vector<std::string>& commands) {
    std::stringstream input;
    for (const auto& command : commands) input << command << '\n';
    std::stringstream output;
    local_clock time;
    script::recording_printer paper;
    script::recording_launcher programs;
    script::script_front_end front(input, output);
    ui::desk desk(front, time, paper, programs);
    script::interpreter by(desk, time, paper, programs);
    front.begin(desk, by);
    desk.dispatch([&] { desk.load(std::make_unique<every_kind>(desk)).show(); });
    front.run();
    std::vector<json> replies;
    for (std::string line; std::getline(output, line);) replies.push_back(json::parse(line));
    return replies;
}

json value_of(const std::vector<std::string>& commands) {
    return run(commands).back().value("value", json());
}

TEST(script, RepliesTellScreenAndFocus) {
    const auto replies =
        run({"", "  # nulla", "\t", "focus prova.spunta", "focus PROVA.Bottone(1)"});
    ASSERT_EQ(replies.size(), 2U);
    EXPECT_EQ(replies[0], (json{{"ok", true}, {"screen", "prova"}, {"focus", "spunta"}}));
    EXPECT_EQ(replies[1]["focus"], "bottone(1)");
}

TEST(script, UsersCommandsDoWhatAUserDoes) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"set prova.testo \"così\\n\\\"x\\\"\"", "set prova.testo \"così\\n\\\"x\\\"\""},
         " così\n\"x\""},
        {{"set prova.testo \"a\"", "type prova.testo \"é€\""}, " a aé aé€"},
        {{"key prova.testo z", "key prova.testo Enter", "key prova.testo F1"}, " z"},
        {{"type prova.testo \"ab\"", "key prova.testo Backspace"}, " a ab a"},
        {{"click prova.scelta(1)", "click prova.scelta(1)", "key prova.scelta(1) Down",
          "key prova.scelta(1) Up"},
         " 01 10"},
        {{"pick prova.lista 1", "pick prova.lista 1", "key prova.lista Down"}, " 1 1"},
        {{"pick prova.tendina 0", "key prova.tendina Down", "key prova.tendina Up"}, " 0 1 0"},
        // The coming of the focus may empty a list.
        {{"set prova.testo \"vuota\"", "pick prova.tendina 1"}, " vuota"},
        {{"scroll prova.barra 9", "scroll prova.barra 9", "key prova.barra Down",
          "key prova.barra Up"},
         " 9 8"},
        {{"date prova.data \"29/02/2024\"", "date prova.data \"29/02/2024\""},
         " 29/02/2024 closed closed"},
        // A click on the head counts with the current row, arrows stop below it.
        {{"cell prova.elenco 2 1", "cell prova.elenco 0 0", "key prova.elenco Up",
          "key prova.elenco Up", "key prova.elenco Enter"},
         " 2,1 2,0 1,1"},
    };
    for (auto [commands, notes] : cases) {
        commands.emplace_back("get prova.scritta");
        EXPECT_EQ(value_of(commands)["text"], "perché" + notes);
    }
    EXPECT_EQ(value_of({"click prova.spunta", "get prova.spunta"})["on"], true);
    EXPECT_EQ(run({"focus prova.testo", "key prova.testo Tab"})[1]["focus"], "bottone(0)");
}

TEST(script, WhatAUserCantDoIsRefusedWithoutEffect) {
    const std::pair<std::string, std::vector<std::string>> refused[] = {
        {"click", {"prova.niente", "prova", "", "prova.elenco", "prova.bottone(0x"}},
        {"cell", {"prova.elenco 4 0", "prova.elenco -1 0", "prova.elenco 1 2", "prova.testo 1 1"}},
        {"set",
         {"prova.scritta \"x\"", "prova.testo", "prova.testo \"aperta", "prova.testo \"\xFF\""}},
        {"pick", {"prova.lista 2", "prova.lista -1"}},
        {"scroll", {"prova.barra 10", "prova.barra 99999999999"}},
        {"date", {"prova.data \"30/02/2024\"", "prova.data \"29/02/2023\""}},
        {"printer", {"copies=0", "orientation=3"}},
        {"",
         {"focus prova.scritta", "key prova.testo Invio", "close altro", "answer forse",
          "launch forse"}},
        {"",
         {"vola", "FOCUS prova.spunta", "clock \"ieri\"", "shot \"x.png\"", "\xFF\xFE prova",
          "\"set\" ["}},
        {"", {"items prova.testo", "colors prova.lista", "rows prova.elenco uno"}},
    };
    const json untouched = value_of({"controls prova"});
    for (const auto& [verb, rests] : refused) {
        for (const std::string& rest : rests) {
            const std::string command = verb.empty() ? rest : verb + " " + rest;
            const auto replies = run({command, "controls prova"});
            ASSERT_EQ(replies.size(), 2U) << command;
            EXPECT_EQ(replies[0]["ok"], false) << command;
            EXPECT_TRUE(replies[0].value("error", json()).is_string()) << command;
            EXPECT_EQ(replies[1]["value"], untouched) << command;
        }
    }
}

TEST(script, QueriesTellWhatIsThere) {
    const json button = {{"kind", "button"}, {"text", ""}};
    json expected = json::parse(R"json({
        "testo": {"kind": "textbox", "text": ""},
        "scritta": {"kind": "label", "text": "perché"},
        "figura": {"kind": "picture"},
        "spunta": {"kind": "checkbox", "text": "", "on": false},
        "scelta(0)": {"kind": "option", "text": "", "on": true},
        "scelta(1)": {"kind": "option", "text": "", "on": false},
        "elenco": {"kind": "grid", "rows": 4, "cols": 2, "row": 0, "col": 0, "toprow": 1},
        "lista": {"kind": "list", "index": -1, "count": 2, "text": ""},
        "tendina": {"kind": "dropdown", "index": -1, "count": 2, "text": ""},
        "barra": {"kind": "scrollbar", "min": 1, "max": 9, "value": 1},
        "avanzamento": {"kind": "progressbar", "min": 0, "max": 100, "value": 0},
        "data": {"kind": "datepicker", "text": "01/01/2000"}})json");
    for (int i = 0; i < 5; ++i) expected["bottone(" + std::to_string(i) + ")"] = button;
    for (json& state : expected) state.update({{"visible", true}, {"enabled", true}});
    EXPECT_EQ(value_of({"controls prova"}), expected);
    const std::pair<const char*, const char*> queries[] = {
        {"items prova.lista", R"(["a", "b"])"},
        {"rows prova.elenco", R"([["uno", "due"], ["à", ""], ["", ""], ["", ""]])"},
        {"rows prova.elenco 3 99", R"([["", ""]])"},
        {"colors prova.elenco 1 2", "[16777215, 255]"},
        {"screens", R"([{"name": "prova", "title": "Città", "visible": true}])"},
    };
    for (const auto& [query, value] : queries) {
        EXPECT_EQ(value_of({query}), json::parse(value)) << query;
    }
}

TEST(script, ABoxBlocksItsCommandUntilItIsAnswered) {
    const auto replies = run({"click prova.bottone(0)", "set prova.testo \"x\"",
                              "get prova.scritta", "answer ok", "answer yes", "get prova.scritta"});
    json box = {
        {"text", "Sicuro?"}, {"title", "Domanda"}, {"icon", "question"}, {"buttons", "yesno"}};
    EXPECT_EQ(replies[0]["box"], box);
    EXPECT_EQ(replies[1]["ok"], false);
    EXPECT_EQ(replies[2]["value"]["text"], "perché") << "queries are always allowed";
    EXPECT_EQ(replies[3]["ok"], false);
    EXPECT_FALSE(replies[4].contains("box"));
    EXPECT_EQ(replies[5]["value"]["text"], "sì");
    // An answer may come before its box; one that doesn't fit waits for another.
    const auto kept = run({"answer no", "click prova.bottone(0)", "get prova.scritta"});
    box["answer"] = "no";
    EXPECT_EQ(kept[1]["boxes"], json::array({box}));
    EXPECT_FALSE(kept[1].contains("box"));
    EXPECT_EQ(kept[2]["value"]["text"], "no");
    const auto waits = run({"answer ok", "answer yes", "click prova.bottone(0)"});
    EXPECT_TRUE(waits[2].contains("box") && !waits[2].contains("boxes"));
}

TEST(script, GuardsAskOnlyWhereTheyAreOnAndFurtherWindowsOpenByName) {
    const auto off = run({"open altra", "get prova.scritta", "open nessuna", "click prova.spunta",
                          "open altra", "guards forse"});
    EXPECT_EQ(off[1]["value"]["text"], "perché 2gd");
    for (const int refused : {2, 4, 5}) EXPECT_EQ(off[refused]["ok"], false) << refused;

    const auto on =
        run({"guards on", "open altra", "answer yes", "answer 3", "answer 1", "answer no",
             "answer ok", "get prova.scritta", "answer 2", "answer no", "answer ok", "open altra"});
    EXPECT_EQ(on[1]["box"]["buttons"], "choice");
    EXPECT_EQ(on[1]["box"]["choices"], (json{"Sì, così", "Niente"}));
    EXPECT_TRUE(on[2]["ok"] == false && on[3]["ok"] == false) << "it has two choices";
    EXPECT_EQ(on[7]["value"]["text"], "perché 1nr");
    EXPECT_EQ(on[11]["boxes"][0]["answer"], 2);
}

TEST(script, AWaitingLoopLetsTheUserWork) {
    const auto replies =
        run({"click prova.bottone(3)", "set prova.testo \"intanto\"", "click prova.bottone(0)",
             "focus prova.testo", "answer yes", "click prova.figura", "get prova.testo"});
    EXPECT_EQ(replies[0]["waiting"], true);
    EXPECT_EQ(replies[1]["ok"], true);
    EXPECT_FALSE(replies[2].contains("waiting")) << "the box waits, not the program";
    EXPECT_EQ(replies[3]["ok"], false);
    EXPECT_EQ(replies[4]["waiting"], true);
    EXPECT_FALSE(replies[5].contains("waiting"));
    EXPECT_EQ(replies[6]["value"]["text"], "passata");
    const json end = run({"click prova.bottone(3)", "click prova.bottone(1)"})[1];
    EXPECT_TRUE(end["ended"] == "exit" && !end.contains("waiting"));
}

TEST(script, PrintsAndLaunchesAreKept) {
    const auto replies =
        run({"printer orientation=2 copies=3", "click prova.bottone(4)", "prints", "prints",
             "launched", "launch fail", "click prova.bottone(4)", "get prova.testo", "launched"});
    const json& jobs = replies[2]["value"];
    const json expected = json::parse(R"([{"orientation": 2, "copies": 3, "pages": [[
        {"op": "text", "x": 10, "y": 20, "text": "Città", "font": "Arial", "size": 12,
         "bold": true, "italic": false, "color": 255},
        {"op": "line", "x1": 1, "y1": 2, "x2": 3, "y2": 4, "color": 0},
        {"op": "box", "x1": 1, "y1": 2, "x2": 3, "y2": 4, "color": 5, "filled": true}]]}])");
    EXPECT_EQ(jobs, expected) << "nothing stands behind the last new page";
    EXPECT_EQ(replies[3]["value"], json::array());
    EXPECT_EQ(replies[4]["value"], (json{"programma a,b"}));
    EXPECT_EQ(replies[7]["value"]["text"], "fermo");
    EXPECT_EQ(replies[8]["value"], json::array());
}

TEST(script, TheEndIsToldAndNothingIsAcceptedAfterIt) {
    auto replies = run({"click prova.bottone(1)", "get prova.testo", "quit"});
    EXPECT_EQ(replies[0]["ended"], "exit");
    EXPECT_EQ(replies[1]["ok"], false);
    EXPECT_EQ(replies[2]["ok"], true);
    EXPECT_EQ(run({"type prova.bottone(1) \"x\\n\""})[0]["ended"], "exit") << "Enter, typed";
    replies = run({"click prova.bottone(2)", "click prova.spunta"});
    EXPECT_EQ(replies[0]["ended"], "fatal");
    EXPECT_EQ(replies[0]["fatal"], "Errore di run-time '6': Overflow");
    EXPECT_EQ(replies[1]["ok"], false);
    EXPECT_EQ(run({"click prova.scritta"})[0]["fatal"], "Errore imprevisto");
    // The input may end while the program waits for an answer.
    EXPECT_EQ(run({"click prova.bottone(0)"}).size(), 1U);
    EXPECT_EQ(run({"click prova.bottone(0)", "quit", "get prova.testo"}).size(), 2U);
}

}  // namespace
}  // namespace vantora::ui
