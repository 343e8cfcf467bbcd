#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "store/text/code_page.h"
#include "ui/controls.h"
#include "ui/errors.h"
#include "ui/script/script_front_end.h"

namespace vantora::ui {
namespace {

using nlohmann::json;

/// A screen with a control of every kind, and events that block, fail and end.
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
        bottone[0].on_click = [this] {
            const bool yes = desk().ask("Sicuro?", "Domanda", icon::question);
            scritta.set_text(yes ? "sì"_cp : "no"_cp);
        };
        bottone[1].on_click = [this] { desk().end_program(); };
        bottone[2].on_click = [] { throw overflow_error(); };
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
    }

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
    EXPECT_EQ(run({"focus prova.spunta"})[0],
              (json{{"ok", true}, {"screen", "prova"}, {"focus", "spunta"}}));
    EXPECT_EQ(run({"FOCUS prova.spunta"})[0]["ok"], false) << "commands are spelled as they are";
    EXPECT_EQ(run({"focus PROVA.Bottone(1)"})[0]["focus"], "bottone(1)");
    EXPECT_TRUE(run({"", "  # nulla", "\t"}).empty());
}

TEST(script, UsersCommandsDoWhatAUserDoes) {
    struct {
        std::vector<std::string> commands;
        const char* control;
        const char* field;
        json expected;
    } cases[] = {
        {{"set prova.testo \"così\\n\\\"x\\\"\""}, "testo", "text", "così\n\"x\""},
        {{"set prova.testo \"ab\"", "type prova.testo \"cé €\""}, "testo", "text", "abcé €"},
        {{"type prova.testo \"ab\"", "key prova.testo Backspace"}, "testo", "text", "a"},
        {{"key prova.testo z", "key prova.testo Enter", "key prova.testo F1"},
         "testo",
         "text",
         "z"},
        {{"click prova.spunta"}, "spunta", "on", true},
        {{"click prova.scelta(1)"}, "scelta(1)", "on", true},
        {{"pick prova.lista 1"}, "lista", "text", "a"},
        {{"pick prova.tendina 0", "key prova.tendina Down"}, "tendina", "index", 1},
        {{"scroll prova.barra 9"}, "barra", "value", 9},
        {{"date prova.data \"03/02/2024\""}, "data", "text", "03/02/2024"},
        {{"cell prova.elenco 2 1", "key prova.elenco Up"}, "elenco", "row", 1},
    };
    for (const auto& one : cases) {
        auto commands = one.commands;
        commands.push_back(std::string("get prova.") + one.control);
        EXPECT_EQ(value_of(commands)[one.field], one.expected) << commands[0];
    }
    EXPECT_EQ(run({"focus prova.testo", "key prova.testo Tab"})[1]["focus"], "bottone(0)");
}

TEST(script, WhatAUserCantDoIsRefusedWithoutEffect) {
    for (const char* command : {"click prova.niente",
                                "click prova",
                                "click",
                                "click prova.elenco",
                                "cell prova.elenco 4 0",
                                "cell prova.elenco -1 0",
                                "cell prova.testo 1 1",
                                "set prova.scritta \"x\"",
                                "set prova.testo",
                                "set prova.testo \"aperta",
                                "pick prova.lista 2",
                                "scroll prova.barra 10",
                                "scroll prova.barra 99999999999",
                                "date prova.data \"30/02/2024\"",
                                "focus prova.scritta",
                                "key prova.testo Invio",
                                "close altro",
                                "answer forse",
                                "vola",
                                "clock \"ieri\"",
                                "printer copies=0",
                                "shot \"x.png\"",
                                "items prova.testo",
                                "colors prova.lista",
                                "\xFF\xFE prova",
                                "set prova.testo \"\xFF\"",
                                "rows prova.elenco uno",
                                "\"set\" ["}) {
        const auto replies = run({command, "controls prova"});
        ASSERT_EQ(replies.size(), 2U) << command;
        EXPECT_EQ(replies[0]["ok"], false) << command;
        EXPECT_TRUE(replies[0]["error"].is_string()) << command;
        EXPECT_EQ(replies[1]["value"], value_of({"controls prova"})) << command;
    }
}

TEST(script, EveryKindTellsItsState) {
    const json controls = value_of({"controls prova"});
    const json common = {{"visible", true}, {"enabled", true}};
    const auto with = [&](json state) {
        state.update(common);
        return state;
    };
    EXPECT_EQ(controls["testo"], with({{"kind", "textbox"}, {"text", ""}}));
    EXPECT_EQ(controls["scritta"], with({{"kind", "label"}, {"text", "perché"}}));
    EXPECT_EQ(controls["bottone(3)"], with({{"kind", "button"}, {"text", ""}}));
    EXPECT_EQ(controls["figura"], with({{"kind", "picture"}}));
    EXPECT_EQ(controls["spunta"], with({{"kind", "checkbox"}, {"text", ""}, {"on", false}}));
    EXPECT_EQ(controls["scelta(0)"], with({{"kind", "option"}, {"text", ""}, {"on", true}}));
    EXPECT_EQ(controls["lista"],
              with({{"kind", "list"}, {"index", -1}, {"count", 2}, {"text", ""}}));
    EXPECT_EQ(controls["tendina"],
              with({{"kind", "dropdown"}, {"index", -1}, {"count", 2}, {"text", ""}}));
    EXPECT_EQ(controls["barra"],
              with({{"kind", "scrollbar"}, {"min", 1}, {"max", 9}, {"value", 1}}));
    EXPECT_EQ(controls["avanzamento"],
              with({{"kind", "progressbar"}, {"min", 0}, {"max", 100}, {"value", 0}}));
    EXPECT_EQ(controls["data"], with({{"kind", "datepicker"}, {"text", "01/01/2000"}}));
    EXPECT_EQ(
        controls["elenco"],
        with({{"kind", "grid"}, {"rows", 4}, {"cols", 2}, {"row", 0}, {"col", 0}, {"toprow", 1}}));
}

TEST(script, QueriesTellWhatIsThere) {
    EXPECT_EQ(value_of({"items prova.lista"}), (json{"b", "a"}));
    EXPECT_EQ(value_of({"rows prova.elenco 0 1"}), json::parse(R"([["uno", "due"], ["à", ""]])"));
    EXPECT_EQ(value_of({"rows prova.elenco"}).size(), 4U);
    EXPECT_EQ(value_of({"rows prova.elenco 3 99"}).size(), 1U);
    EXPECT_EQ(value_of({"colors prova.elenco 1 2"}), (json{16777215, 255}));
    EXPECT_EQ(value_of({"screens"}),
              (json{{{"name", "prova"}, {"title", "Città"}, {"visible", true}}}));
}

TEST(script, ABoxBlocksItsCommandUntilItIsAnswered) {
    const auto replies = run({"click prova.bottone(0)", "set prova.testo \"x\"",
                              "get prova.scritta", "answer ok", "answer yes", "get prova.scritta"});
    EXPECT_EQ(replies[0]["box"], (json{{"text", "Sicuro?"},
                                       {"title", "Domanda"},
                                       {"icon", "question"},
                                       {"buttons", "yesno"}}));
    EXPECT_EQ(replies[1]["ok"], false);
    EXPECT_EQ(replies[2]["value"]["text"], "perché") << "queries are always allowed";
    EXPECT_EQ(replies[3]["ok"], false);
    EXPECT_FALSE(replies[4].contains("box"));
    EXPECT_EQ(replies[5]["value"]["text"], "sì");
}

TEST(script, QueuedAnswersAreTold) {
    const auto replies = run({"answer no", "click prova.bottone(0)", "get prova.scritta"});
    ASSERT_EQ(replies[1]["boxes"].size(), 1U);
    EXPECT_EQ(replies[1]["boxes"][0]["answer"], "no");
    EXPECT_EQ(replies[1]["boxes"][0]["text"], "Sicuro?");
    EXPECT_FALSE(replies[1].contains("box"));
    EXPECT_EQ(replies[2]["value"]["text"], "no");
}

TEST(script, AWaitingLoopLetsTheUserWork) {
    const auto replies = run({"click prova.bottone(3)", "set prova.testo \"intanto\"",
                              "click prova.figura", "get prova.testo"});
    EXPECT_EQ(replies[0]["waiting"], true);
    EXPECT_EQ(replies[1]["ok"], true);
    EXPECT_FALSE(replies[2].contains("waiting"));
    EXPECT_EQ(replies[3]["value"]["text"], "passata");
}

TEST(script, PrintsAndLaunchesAreKept) {
    const auto replies =
        run({"printer orientation=2 copies=3", "click prova.bottone(4)", "prints", "prints",
             "launched", "launch fail", "click prova.bottone(4)", "get prova.testo", "launched"});
    const json& jobs = replies[2]["value"];
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0]["orientation"], 2);
    EXPECT_EQ(jobs[0]["copies"], 3);
    ASSERT_EQ(jobs[0]["pages"].size(), 1U) << "nothing behind the last new page";
    EXPECT_EQ(jobs[0]["pages"][0][0], (json{{"op", "text"},
                                            {"x", 10},
                                            {"y", 20},
                                            {"text", "Città"},
                                            {"font", "Arial"},
                                            {"size", 12},
                                            {"bold", true},
                                            {"italic", false},
                                            {"color", 255}}));
    EXPECT_EQ(jobs[0]["pages"][0][2]["filled"], true);
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
    // The input may end while the program waits for an answer.
    EXPECT_EQ(run({"click prova.bottone(0)"}).size(), 1U);
    EXPECT_EQ(run({"click prova.bottone(0)", "quit", "get prova.testo"}).size(), 2U);
}

}  // namespace
}  // namespace vantora::ui
