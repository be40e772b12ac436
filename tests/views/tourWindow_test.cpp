// SPDX-License-Identifier: Apache-2.0
// The list of tours and the tour window: pages, the sign that follows what a page promises, and files that are no tours.

#include "tests/views/desk.h"

#include <QScreen>

namespace {

class TourWindow : public Desk {
protected:
    // Tours by file name; the index lists them in this order, and then those that are none.
    void startWith(const std::vector<std::pair<std::string, std::string>>& tours, const std::string& index = {}) {
        std::string lines = "; tours\r\n";
        for (const auto& [name, text] : tours) {
            makeFile("NaviData/" + name, text);
            lines += name + "\tTour\t-\r\n";
        }
        makeFile("NaviData/NaviIndex.txt", lines + index);
        startAtBench();
    }
    frmNaviList& list() { return *program->aids().naviList(); }
    bool listUp() { return program->aids().naviListOpen(); }
    frmNavigation& tour() { return *program->aids().navigation(); }
    bool tourUp() { return isUp(program->aids().navigation()); }
    void press(frmNavigation::Action action) {
        click(tour().cmdAction(action));
        settle();
    }
    TourSign sign() { return tour().picSign().sign(); }
    // What is drawn at the end of the lower line, without its colours.
    QImage drawnSign() { return tour().grab(tour().picSign().geometry()).toImage().convertToFormat(QImage::Format_Grayscale8); }
    // Index and lines; "b" black, "B" blue, "R" red, before each run.
    std::string shown() {
        std::string text = tour().lblIndex().toStdString();
        for (const std::size_t row : {0U, 1U}) {
            text += " ";
            for (const TextRun& run : tour().picNav(row).runs()) {
                text += std::string(1, "bBR"[static_cast<int>(run.colour)]) + run.text;
            }
        }
        return text;
    }
    std::string notice() {
        auto* box = list().findChild<QMessageBox*>("naviNotice");
        const std::string text = isUp(box) ? box->text().toStdString() : "";
        isUp(box) ? QTest::keyClick(box, Qt::Key_Return) : void();
        settle();
        return text;
    }
};

TEST_F(TourWindow, starts_on_the_makers_bench_and_turns_its_pages) {
    startWith(
        {{"six.txt", "a#b&c\r\nlower\r\nno\r\nd\r\n\\e\r\nno\r\n"}, {"SEVEN.TXT", "\x88\xea\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n"}});
    play("dblclick picSA 2 ; pick cmbSA 1 = 0x09 ; open chooser");
    click(Tool::navigator);
    EXPECT_FALSE(listUp()) << "it wants a double click";
    openNaviList();
    EXPECT_FALSE(up("chooser"));
    EXPECT_EQ(main().label(Tool::navigator).cursor().shape(), Qt::ArrowCursor);
    EXPECT_TRUE(listUp() && list().isModal() && list().windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(list().lstTitle().count() == 2 && list().lstTitle().currentRow() == 0);
    EXPECT_EQ(atKeys(), static_cast<QWidget*>(&list().lstTitle()));
    EXPECT_NEAR(list().frameGeometry().right(), list().screen()->geometry().right() - 3, 4) << "less its frame";
    click(list().cmdCancel());
    EXPECT_FALSE(listUp() || tourUp());
    EXPECT_EQ(machine().boardSA[saQDA73], 9) << "Cancel does nothing else";

    const frmHard* bench = program->bench().bench();
    startTour(0);
    EXPECT_TRUE(tourUp() && !listUp());
    EXPECT_NE(program->bench().bench(), bench) << "the machine started anew";
    EXPECT_EQ(machine().boardSA[saQDA73], 1);
    EXPECT_EQ(shown(), "1/2 baBbbc blower");
    press(frmNavigation::actionNext);
    EXPECT_EQ(shown(), "2/2 bd Re");
    EXPECT_FALSE(tour().cmdAction(frmNavigation::actionNext).isEnabled());
    press(frmNavigation::actionNext);
    EXPECT_EQ(tour().lblIndex(), "2/2");
    QTest::keyClick(&tour(), Qt::Key_PageUp);
    EXPECT_EQ(tour().lblIndex(), "1/2");
    EXPECT_FALSE(tour().cmdAction(frmNavigation::actionBack).isEnabled());

    openNaviList();
    EXPECT_TRUE(listUp()) << "over the tour window";
    list().close();
    press(frmNavigation::actionMenu);
    EXPECT_TRUE(listUp() && !tourUp());
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(listUp() || tourUp()) << "paused";
    startTour(1);
    EXPECT_EQ(shown(), "1/2 b一 b2") << "of seven lines, found in any case, and read in the Japanese code page";
    press(frmNavigation::actionEnd);
    EXPECT_EQ(program->aids().navigation(), nullptr);
    startTour(0);
    tour().close();
    EXPECT_EQ(program->aids().navigation(), nullptr);

    program->openTour(2);
    EXPECT_EQ(shown(), "1/2 b一 b2") << "a link leads straight there";
    press(frmNavigation::actionEnd);
    for (const std::size_t none : {0U, 3U}) {
        program->openTour(none);
        EXPECT_TRUE(listUp() && !tourUp()) << none;
        list().close();
    }
}

TEST_F(TourWindow, the_sign_follows_what_the_page_promises) {
    startWith({{"other.txt", ""},
               {"sign.txt",
                "1\r\n2\r\nreg SCR 0004\r\n1\r\n2\r\nclick picPI 32 ; wait 1 ; image picPI 32 = 2 ; mem 102 0001\r\n"
                "1\r\n2\r\nsays hello ; bus 8bit-Bus Little\r\n1\r\n2\r\nlit nothing\r\n"}});
    startTour(1);
    EXPECT_TRUE(sign() == TourSign::none && !tour().timWatch().running()) << "that is so already";
    const QImage without = drawnSign();
    press(frmNavigation::actionNext);
    EXPECT_EQ(sign(), TourSign::open);
    const QImage ring = drawnSign();
    hand().click(part("picPI", 32));
    EXPECT_EQ(sign(), TourSign::open) << "the scan hasn't brought it yet";
    fire();
    EXPECT_EQ(sign(), TourSign::done);
    const QImage check = drawnSign();
    EXPECT_TRUE(ring != without && check != without && ring != check) << "told apart by shape";
    const QString spoken = tour().picSign().accessibleName();
    EXPECT_TRUE(!spoken.isEmpty() && tour().cmdAction(frmNavigation::actionNext).accessibleDescription() == spoken);
    hand().click(part("picPI", 32));
    fire();
    press(frmNavigation::actionNext);
    press(frmNavigation::actionBack);
    EXPECT_EQ(sign(), TourSign::done) << "seen is seen";

    press(frmNavigation::actionNext);
    program->aids().say(Popup{"say hello now"});
    machine().cpuType = 1;
    EXPECT_TRUE(tour().timWatch().running());
    tour().timWatch().fire();
    EXPECT_EQ(sign(), TourSign::done) << "no refresh came";
    EXPECT_FALSE(tour().timWatch().running());

    press(frmNavigation::actionNext);
    EXPECT_EQ(sign(), TourSign::none) << "a slip is prose";
    EXPECT_EQ(tour().cmdAction(frmNavigation::actionNext).accessibleDescription(), "");
    press(frmNavigation::actionMenu);
    const QListWidgetItem* other = list().lstTitle().item(0);
    const QListWidgetItem* finished = list().lstTitle().item(1);
    EXPECT_NE(finished->data(Qt::AccessibleTextRole), other->data(Qt::AccessibleTextRole));
    EXPECT_NE(finished->icon().pixmap(NaviSign::size).toImage(), other->icon().pixmap(NaviSign::size).toImage());
    startTour(1);
    press(frmNavigation::actionNext);
    EXPECT_EQ(sign(), TourSign::open) << "a new start";
    tour().hide();
    EXPECT_FALSE(tour().timWatch().running());
}

TEST_F(TourWindow, keeps_to_its_corner_and_its_sign_hides_no_text) {
    startWith({{"a.txt", "1\r\n" + std::string(80, 'w') + "\r\nreg SCR 0001\r\n1\r\n2\r\n\r\n"}});
    startTour(0);
    const QRect line = tour().picNav(1).geometry();
    const int textEnd = line.left() + tour().picNav(1).textWidth() - 6;
    EXPECT_GT(textEnd, line.right()) << "cut off";
    EXPECT_FALSE(tour().picSign().isVisible());
    const QPoint corner = tour().frameGeometry().bottomRight();
    const int next = tour().cmdAction(frmNavigation::actionNext).width();
    const int more = textEnd - line.right() + 6;
    tour().resize(tour().width() + more, tour().height());
    EXPECT_EQ(tour().frameGeometry().bottomRight(), corner);
    EXPECT_EQ(tour().cmdAction(frmNavigation::actionNext).width(), next + more) << "Next takes what there is";
    EXPECT_EQ(tour().cmdAction(frmNavigation::actionEnd).geometry().right(), tour().width() - 15);
    EXPECT_TRUE(tour().picSign().isVisible());
    EXPECT_GE(tour().picSign().geometry().left(), textEnd);
    press(frmNavigation::actionNext);
    EXPECT_FALSE(tour().picSign().isVisible());
    EXPECT_EQ(tour().picNav(1).geometry().right(), tour().width() - 8);
}

TEST_F(TourWindow, files_that_are_no_tours_do_no_harm) {
    fs::create_directories(folder / "NaviData/folder");
    startWith({{"a.txt", "1\n2\n\n"}, {"empty.txt", ""}, {"huge.txt", std::string(5 << 20, '\n')}},
              "gone.txt\tGone\t-\r\nfolder\tFolder\t-\r\nno title\r\n");
    for (const int missing : {3, 4}) {
        startTour(missing);
        EXPECT_EQ(notice(), "ファイルが見つかりません。");
        EXPECT_TRUE(listUp() && !tourUp()) << "the learner stays in the list";
    }
    startTour(1);
    EXPECT_EQ(shown(), "1/0  ");
    startTour(2);
    EXPECT_NE(shown().find("bhuge.txt を読めません。"), std::string::npos);
    fs::remove(folder / "NaviData/a.txt");
    startTour(0);
    EXPECT_NE(shown().find("ba.txt を読めません。"), std::string::npos) << "it has gone since the index was read";
    EXPECT_FALSE(tour().cmdAction(frmNavigation::actionNext).isEnabled());
}

TEST_F(TourWindow, waits_for_the_version_panel_and_lives_without_an_index) {
    startAtBench();
    click(Tool::version);
    openNaviList();
    EXPECT_EQ(program->aids().naviList(), nullptr);
    hideVersion();
    startTour(-1);
    EXPECT_EQ(notice(), "ファイルが見つかりません。");
}

TEST_F(TourWindow, paints_controls_blue_and_results_red) {
    const auto bluish = [](const QColor& colour) { return colour.blue() > colour.red() + 100; };
    for (const char* text : {"w", "#w", "\\w"}) {
        NaviLine line(nullptr);
        line.resize(60, 25);
        line.drawMarkedText(text);
        const QImage image = line.grab().toImage();
        EXPECT_EQ(holds(image, bluish), text[0] == '#') << text;
        EXPECT_EQ(holds(image, reddish), text[0] == '\\') << text;
        EXPECT_TRUE(holds(image, [](const QColor& colour) { return colour.green() < 150; })) << text;
    }
}

}  // namespace
