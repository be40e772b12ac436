// SPDX-License-Identifier: Apache-2.0
// The tours that come with the program, played from their first page to the last: what a page tells the learner to do is done,
// and what it promises is checked. What is played stands in the third line of each page, which is never shown. The worked
// values of the hint pages are played the same way, and so are the scenes of windows.play, which no tour comes to.

#include "platform/textFile.h"
#include "tests/views/desk.h"

#include <QRegularExpression>

namespace {

const fs::path naviData = VRB_ASSETS "/NaviData";

std::vector<NaviRecord> toursOfIndex() {
    return readNaviIndex(readTextFile(naviData / "NaviIndex.txt").value_or(""),
                         [](const std::string& name) { return fs::is_regular_file(naviData / name); });
}

class Played : public Desk {
protected:
    void startPlay(Eyes eyes = Eyes::open) {
        for (const fs::path& given : {naviData, fs::path(VRB_BIN "/HintData"), fs::path(VRB_BIN "/Kairozu")}) {
            giveFolder(given);  // pictures give their windows the size that covers others
        }
        startAtBench(withDump);
        player.emplace(*program, eyes);
    }
    frmNavigation& tour() { return *program->aids().navigation(); }
};

// What a page promises is red: each of its numbers must have been checked by the page's script.
void promisesAreChecked(const NaviLine& line, const std::vector<std::string>& checked) {
    static const QRegularExpression number("[0-9A-F]{2,4}(?=H)");
    for (const TextRun& run : line.runs()) {
        if (run.colour != TextColour::red) {
            continue;
        }
        EXPECT_FALSE(checked.empty()) << run.text << " is promised, and nothing is checked";
        for (auto found = number.globalMatch(QString::fromStdString(run.text)); found.hasNext();) {
            const std::string digits = found.next().captured().toStdString();
            EXPECT_TRUE(std::any_of(checked.begin(), checked.end(),
                                    [&](const std::string& statement) { return statement.find(digits) != std::string::npos; }))
                << digits << "H is promised, and not checked";
        }
    }
}

class Tours : public Played, public testing::WithParamInterface<std::size_t> {};

TEST_P(Tours, keep_what_they_promise) {
    startPlay();
    SCOPED_TRACE(toursOfIndex()[GetParam()].fileName);
    startTour(static_cast<int>(GetParam()) - 1);
    ASSERT_NE(program->aids().navigation(), nullptr) << "its file is missing";
    EXPECT_TRUE(tour().tour().naviPages >= 8 && tour().tour().naviPages <= 20) << tour().tour().naviPages;
    EXPECT_EQ(tour().tour().naviLines.size() % linesAPage, 0U);
    std::size_t checks = 0;
    int signs = 0;
    play("wait 1");
    while (true) {
        SCOPED_TRACE("page " + tour().lblIndex().toStdString());
        player->forgetChecked();
        signs += tour().picSign().sign() == TourSign::open ? 1 : 0;
        play(std::string(shownLine(tour().tour(), linesShown)));
        checks += player->checked().size();
        play("wait 0.1");
        EXPECT_NE(tour().picSign().sign(), TourSign::open) << "the page's sign didn't see it";
        for (std::size_t row = 0; row < linesShown; ++row) {
            promisesAreChecked(tour().picNav(row), player->checked());
            EXPECT_LE(tour().picNav(row).textWidth(), tour().picNav(row).width()) << "line " << row << " is cut off";
        }
        if (!hasPageBehind(tour().tour())) {
            break;
        }
        tour().activateWindow();  // a click there takes the keyboard along
        QApplication::processEvents();
        click(tour().cmdAction(frmNavigation::actionNext));
    }
    EXPECT_GE(checks, 5U) << "a tour shows something";
    EXPECT_GE(signs, 5) << "and sees it";
}

INSTANTIATE_TEST_SUITE_P(Navigator, Tours, testing::Range<std::size_t>(1, toursOfIndex().size()));

TEST_F(Played, the_page_for_teachers_has_every_word_and_its_example_holds) {
    const std::string text = bytesOf(VRB_ASSETS "/../docs/writing-a-tour.md");
    for (const TourWord& word : tourWords()) {
        EXPECT_NE(text.find("`" + std::string(word.verb)), std::string::npos) << word.verb;
    }
    const std::string fence = "```tour\n";
    const auto from = text.find(fence) + fence.size();
    const Tour example = readTour(text.substr(from, text.find("```", from) - from));
    ASSERT_EQ(example.naviPages, 1);
    startPlay();
    play(std::string(shownLine(example, linesShown)));
    EXPECT_GE(player->checked().size(), 2U);
}

TEST_F(Played, worked_values_of_the_hint_pages_hold) {
    std::set<std::string> pages;
    std::ifstream plays(VRB_ASSETS "/hints/hints.play");
    startPlay(Eyes::closed);
    for (std::string line; std::getline(plays, line);) {
        if (line.empty() || line.front() == ';') {
            continue;
        }
        SCOPED_TRACE(line);
        const auto end = line.find(']');
        ASSERT_TRUE(line.front() == '[' && end != std::string::npos);
        pages.insert(line.substr(1, end - 1));
        Mdef_Set(machine());
        program->restartMachine();
        player->forgetChecked();
        play("wait 1");
        play(line.substr(end + 1));
        EXPECT_FALSE(player->checked().empty());
    }
    EXPECT_EQ(pages.size(), 16U) << "a page without a worked value";
}

// --- scenes on the windows ---------------------------------------------------------------------------------------------------

using Scene = std::pair<std::string, std::string>;  // name and text

std::vector<Scene> scenesOfFile() {
    std::vector<Scene> scenes;
    std::ifstream file(VRB_ASSETS "/../tests/views/windows.play");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('[')) {
            scenes.emplace_back(line.substr(1, line.find(']') - 1), "");
        } else if (line.starts_with(' ')) {
            scenes.back().second += line;
        }
    }
    return scenes;
}

class Scenes : public Desk, public testing::WithParamInterface<Scene> {};

TEST_P(Scenes, hold) {
    giveFolder(VRB_BIN "/HintData");
    startAtBench(withDump);
    play(GetParam().second);
    EXPECT_FALSE(player->checked().empty());
}

INSTANTIATE_TEST_SUITE_P(, Scenes, testing::ValuesIn(scenesOfFile()), [](const auto& scene) { return scene.param.first; });

}  // namespace
