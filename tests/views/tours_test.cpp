// SPDX-License-Identifier: Apache-2.0
// The tours that come with the program, played from their first page to the last: what a page tells the learner to do is done,
// and what it promises is checked. What is played stands in the third line of each page, which is never shown. The worked
// values of the hint pages are played the same way.

#include "aids/views/frmNaviList.h"
#include "aids/views/frmNavigation.h"
#include "platform/textFile.h"
#include "tests/views/TourPlayer.h"
#include "tests/views/startedProgram.h"

#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>

namespace {

const std::filesystem::path naviData = VRB_ASSETS "/NaviData";
const std::filesystem::path hintPlays = VRB_ASSETS "/hints/hints.play";

std::vector<NaviRecord> toursOfIndex() {
    return readNaviIndex(readTextFile(naviData / "NaviIndex.txt").value_or(""),
                         [](const std::string& name) { return std::filesystem::is_regular_file(naviData / name); });
}

class Played : public StartedProgram {
protected:
    void startPlay(Eyes eyes = Eyes::open) {
        const std::filesystem::path here = folder.path().toStdString();
        std::filesystem::copy(naviData, here / "NaviData");
        for (const char* pictures : {"HintData", "Kairozu"}) {  // they give their windows the size that covers others
            std::filesystem::copy(std::filesystem::path(VRB_BIN) / pictures, here / pictures);
        }
        start(makersFile + "OPENWINDOW3=1\r\n");
        fire();
        program->aids().versionPanel() != nullptr ? program->aids().versionPanel()->hide() : void();
        player.emplace(*program, eyes);
    }
    frmNavigation& tour() { return *program->aids().navigation(); }

    std::optional<TourPlayer> player;
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
    const std::vector<NaviRecord> tours = toursOfIndex();
    SCOPED_TRACE(tours[GetParam()].fileName);
    QTest::mouseDClick(&main().label(Tool::navigator), Qt::LeftButton);
    ASSERT_NE(program->aids().naviList(), nullptr);
    program->aids().naviList()->lstTitle().setCurrentRow(static_cast<int>(GetParam()) - 1);
    QTest::mouseClick(&program->aids().naviList()->cmdStart(), Qt::LeftButton);
    ASSERT_NE(program->aids().navigation(), nullptr) << "its file is missing";
    main().timTick().setEnabled(false);
    ASSERT_GE(tour().tour().naviPages, 8);
    EXPECT_LE(tour().tour().naviPages, 20);
    EXPECT_EQ(tour().tour().naviLines.size() % linesAPage, 0U);
    int checks = 0;
    int signs = 0;
    player->play("wait 1");
    while (true) {
        SCOPED_TRACE("page " + tour().lblIndex().toStdString());
        player->forgetChecked();
        signs += tour().picSign().sign() == TourSign::open ? 1 : 0;
        player->play(std::string(shownLine(tour().tour(), linesShown)));
        checks += static_cast<int>(player->checked().size());
        player->play("wait 0.1");
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
        QTest::mouseClick(&tour().cmdAction(frmNavigation::actionNext), Qt::LeftButton);
    }
    EXPECT_GE(checks, 5) << "a tour shows something";
    EXPECT_GE(signs, 5) << "and sees it";
}

INSTANTIATE_TEST_SUITE_P(Navigator, Tours, testing::Range<std::size_t>(1, toursOfIndex().size()));

TEST_F(Played, the_page_for_teachers_has_every_word_and_its_example_holds) {
    const std::string text = readTextFile(VRB_ASSETS "/../docs/writing-a-tour.md").value_or("");
    for (const TourWord& word : tourWords()) {
        EXPECT_NE(text.find("`" + std::string(word.verb)), std::string::npos) << word.verb;
    }
    const std::string fence = "```tour\n";
    const auto from = text.find(fence);
    ASSERT_NE(from, std::string::npos);
    Tour example = readTour(text.substr(from + fence.size(), text.find("```", from + 1) - from - fence.size()));
    ASSERT_EQ(example.naviPages, 1);
    startPlay();
    player->play(std::string(shownLine(example, linesShown)));
    EXPECT_GE(player->checked().size(), 2U);
}

TEST_F(Played, worked_values_of_the_hint_pages_hold) {
    const std::optional<std::string> plays = readTextFile(hintPlays);
    ASSERT_TRUE(plays.has_value());
    std::set<QString> pages;
    for (const QString& line : QString::fromStdString(*plays).split('\n')) {
        const QString text = line.trimmed();
        if (text.isEmpty() || text.startsWith(';')) {
            continue;
        }
        SCOPED_TRACE(text.toStdString());
        const auto end = text.indexOf(']');
        ASSERT_TRUE(text.startsWith('[') && end > 0);
        pages.insert(text.mid(1, end - 1));
        if (program == nullptr) {
            startPlay(Eyes::closed);
        } else {
            Mdef_Set(machine());
            program->restartMachine();
        }
        player->forgetChecked();
        player->play("wait 1");
        player->play(text.mid(end + 1).toStdString());
        EXPECT_FALSE(player->checked().empty());
    }
    EXPECT_EQ(pages.size(), 16U) << "a page without a worked value";
}

}  // namespace
