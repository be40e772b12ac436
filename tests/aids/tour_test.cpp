// SPDX-License-Identifier: Apache-2.0
// The language of a tour's third line, and the eye on what it promises.

#include "aids/tourWatch.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>

namespace {

// A bench of three things.
struct Desk : SeenByLearner {
    std::map<std::string, int> pictures{{"picA", 1}, {"picPO", 1}};
    bool visible = true;
    std::string value;
    std::string down;  // the caption of the one button that is down

    std::optional<bool> shown(const std::string& name, std::size_t /*index*/) const override {
        return pictures.contains(name) || name == "lblA" ? std::optional(visible) : std::nullopt;
    }
    std::optional<int> picture(const std::string& name, std::size_t index) const override {
        return pictures.contains(name) ? std::optional(pictures.at(name) + static_cast<int>(index)) : std::nullopt;
    }
    std::optional<std::string> label(const std::string& name, std::size_t /*index*/) const override {
        return name == "lblA" ? std::optional<std::string>("  two   words ") : std::nullopt;
    }
    std::optional<bool> ticked(const std::string& window, const std::string& caption) const override {
        return window == "control" ? std::optional(caption == down) : std::nullopt;
    }
    std::string readValue() const override { return value; }
};

struct TourLanguage : testing::Test {
    Machine machine;
    Desk desk;
    TourWatch watch;

    void page(std::string_view line) { watch = watchPage(line, machine, desk); }
    TourSign sign(int milliseconds = 0) {
        lookAgain(watch, machine, desk, milliseconds);
        return watch.sign;
    }
    void register_(int address, int word) { setMemoryWord(machine, address, word); }
    std::string now(std::string_view promise) {
        return present(readScript(promise).statements.at(0), machine, desk).value_or("nothing");
    }
};

// The lines of a section of the examples, parted at the arrow.
std::vector<std::pair<std::string, std::string>> rowsOf(const std::string& section) {
    std::ifstream file(VRB_SCENES "tourLanguage.txt");
    std::vector<std::pair<std::string, std::string>> rows;
    std::string inside;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('[')) {
            inside = line;
        } else if (inside == section && !line.empty() && line[0] != '#') {
            const auto arrow = line.find(" => ");
            rows.emplace_back(line.substr(0, arrow), arrow == std::string::npos ? "" : line.substr(arrow + 4));
        }
    }
    EXPECT_FALSE(rows.empty()) << section;
    return rows;
}

constexpr auto none = TourSign::none;
constexpr auto open = TourSign::open;
constexpr auto done = TourSign::done;

TEST_F(TourLanguage, tells_a_statement_from_a_slip) {
    EXPECT_EQ(readScript(" ;  ; release ; ").wrong, "");
    for (const auto& row : rowsOf("[right]")) {
        EXPECT_EQ(readScript(row.first).wrong, "") << row.first;
    }
    for (const auto& row : rowsOf("[wrong]")) {
        EXPECT_EQ(readScript("silent ; " + row.first + " ; silent").wrong, row.first);
    }
}

TEST_F(TourLanguage, sees_what_a_promise_speaks_of) {
    register_(reg::scrLow, 0x1234);
    machine.picChkLED[1].lit = machine.picSE[1].lit = machine.picPower[3].lit = true;
    machine.picPO[9].level = true;
    machine.picPI[70] = {true, true};
    machine.cmbSA[saQDA73].listIndex = 9;
    machine.cmbSA[saQDA41].listIndex = 30;
    machine.cpuType = 2;
    desk.pictures = {{"picChkLED", 1}, {"picSE", 1}, {"picPower", 1}, {"picPO", 1}, {"picPI", 1}, {"picA", 7}};
    desk.value = "5A";
    desk.down = "Byte";
    EXPECT_EQ(now("sa 3 20"), "hidden") << "the card isn't there";
    machine.picBridge.visible = true;
    for (const auto& [promise, seen] : rowsOf("[seen]")) {
        EXPECT_EQ(now(promise), seen) << promise;
    }
    desk.visible = false;
    for (const char* promise : {"lit picPO 9", "image picA = 7", "hidden picA", "label lblA = two words", "still picA"}) {
        EXPECT_EQ(now(promise), "hidden") << promise;
    }
}

TEST_F(TourLanguage, a_promise_that_was_seen_stays_seen_and_keeps_its_place_behind_the_deeds) {
    machine.picPO[15].level = true;
    page("hold picA ; wait 1 ; dark picPO 15 ; image picA = 2 ; release ; wait 1 ; lit picPO 15");
    EXPECT_EQ(sign(), open) << "lit, but not yet again";
    machine.picPO[15].level = false;
    EXPECT_EQ(sign(), open);
    machine.picPO[15].level = true;
    EXPECT_EQ(sign(), open) << "the button's picture is still missing";
    machine.picPO[15].level = false;
    desk.pictures["picA"] = 2;
    EXPECT_EQ(sign(), open) << "dark once, pressed now: one after the other";
    machine.picPO[15].level = true;
    EXPECT_EQ(sign(), done);
    machine.picPO[15].level = false;
    EXPECT_EQ(sign(), done);
}

TEST_F(TourLanguage, shows_no_sign_where_there_is_nothing_to_wait_for) {
    for (const char* line : {"", "ふつうの文です。", "reg SCR 0000 ; lit picLamp", "reg SCR 0001 ; image picX = 1",
                             "click picA ; wait 1", "write SCR 0000 ; reg SCR 0000 ; silent"}) {
        page(line);
        EXPECT_EQ(watch.sign, none) << line;
    }
    register_(reg::scrLow, 1);
    EXPECT_EQ(sign(), none);
    page("reg SCR 0001 ; click picA ; reg SCR 0002");
    EXPECT_EQ(watch.sign, open) << "only the first one holds";
}

TEST_F(TourLanguage, sees_what_takes_its_time) {
    page("differs SCR 0000 ; moves SSR");
    register_(reg::ssrLow, 1);
    EXPECT_EQ(sign(), open);
    register_(reg::scrLow, 4);
    EXPECT_EQ(sign(), done);

    page("still picA");
    EXPECT_EQ(sign(stillMilliseconds - 100), open);
    desk.pictures["picA"] = 3;
    EXPECT_EQ(sign(100), open) << "it moved";
    EXPECT_EQ(sign(stillMilliseconds - 100), open);
    EXPECT_EQ(sign(0), open) << "a look in between takes no time";
    EXPECT_EQ(sign(100), done);

    page("cycle SSR.L 81 82 83");
    for (const int value : {0x82, 0x81, 0x82, 0x84, 0x82, 0x82, 0x83}) {
        register_(reg::ssrLow, value);
        EXPECT_EQ(sign(), open) << value;
    }
    register_(reg::ssrLow, 0x81);
    EXPECT_EQ(sign(), done) << "from wherever it stands";
}

TEST_F(TourLanguage, hears_what_is_said_while_its_turn_is) {
    page("dblclick picA ; says 警告 一 ; ok ; says 二 ; ok ; reg SCR 0001");
    EXPECT_EQ(watch.sign, open);
    hear(watch, "二です");
    hear(watch, "これは\n警告\n一 です");
    EXPECT_EQ(sign(), open) << "the second one came too early";
    hear(watch, "二です");
    EXPECT_EQ(sign(), open);
    register_(reg::scrLow, 1);
    EXPECT_EQ(sign(), done);
    page("reg SCR 0001");
    hear(watch, "x");
    EXPECT_EQ(watch.sign, none);
}

}  // namespace
