// SPDX-License-Identifier: Apache-2.0
#include "aids/views/frmNaviList.h"
#include "aids/views/frmNavigation.h"
#include "platform/screen.h"
#include "tests/views/BenchHand.h"
#include "tests/views/startedProgram.h"

#include <QDir>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

namespace {

class Navigator : public StartedProgram {
protected:
    void makeFile(const char* name, const QByteArray& bytes) {
        QDir().mkpath(folder.filePath("NaviData"));
        QFile file(folder.filePath("NaviData/") + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    // Six lines, seven lines, none; one that is missing; a folder; one that is too large.
    void startWithTours() {
        makeFile("NaviIndex.txt",
                 "; tours\r\nsix.txt\tSix\t-\r\nSEVEN.TXT\tSeven\t-\r\nempty.txt\tEmpty\t-\r\ngone.txt\tGone\t-\r\n"
                 "folder\tFolder\t-\r\nhuge.txt\tHuge\t-\r\nno title\r\n");
        makeFile("six.txt", "a#b&c\r\nlower\r\nno\r\nd\r\n\\e\r\nno\r\n");
        makeFile("seven.txt", "\x88\xea\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n");  // the Japanese code page
        makeFile("empty.txt", "");
        makeFile("huge.txt", QByteArray(5 << 20, '\n'));
        QDir().mkpath(folder.filePath("NaviData/folder"));
        start();
        fire();
        closePanel();
    }
    void closePanel() {
        if (program->aids().versionPanel() != nullptr) {
            program->aids().versionPanel()->hide();
        }
    }
    void pointNavigator() { QTest::mouseDClick(&main().label(Tool::navigator), Qt::LeftButton); }
    frmNaviList& list() { return *program->aids().naviList(); }
    bool listUp() { return program->aids().naviList() != nullptr && list().isVisible(); }
    frmNavigation& tour() { return *program->aids().navigation(); }
    bool tourUp() { return program->aids().navigation() != nullptr && tour().isVisible(); }
    void startTour(int row) {
        pointNavigator();
        list().lstTitle().setCurrentRow(row);
        QTest::mouseClick(&list().cmdStart(), Qt::LeftButton);
        main().timTick().setEnabled(false);
    }
    void press(frmNavigation::Action action) { QTest::mouseClick(&tour().cmdAction(action), Qt::LeftButton); }
    TourSign sign() { return tour().picSign().sign(); }
    // What is drawn at the end of the lower line, without its colours.
    QImage drawnSign() {
        const NaviSign& place = tour().picSign();
        return tour().grab(place.geometry()).toImage().convertToFormat(QImage::Format_Grayscale8);
    }
    // "b" black, "B" blue, "R" red, before each run.
    std::string shown(std::size_t row) {
        std::string text;
        for (const TextRun& run : tour().picNav(row).runs()) {
            text += std::string(1, "bBR"[static_cast<int>(run.colour)]) + run.text;
        }
        return text;
    }
    std::string notice() {
        auto* box = list().findChild<QMessageBox*>("naviNotice");
        if (box == nullptr || !box->isVisible()) {
            return "";
        }
        const std::string text = box->windowTitle().toStdString() + ": " + box->text().toStdString();
        QTest::keyClick(box, Qt::Key_Return);
        QApplication::processEvents();
        return text;
    }
};

TEST_F(Navigator, a_tour_starts_on_the_makers_bench_and_turns_its_pages) {
    startWithTours();
    machine().boardSA[saQDA73] = 9;
    machine().openWindowDefault[1] = 0;
    pointNavigator();
    ASSERT_TRUE(listUp());
    EXPECT_EQ(list().windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(main().label(Tool::navigator).cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(list().lstTitle().count(), 6);
    EXPECT_EQ(list().lstTitle().currentRow(), 0);
    EXPECT_NEAR(list().frameGeometry().right() + 1, list().screen()->geometry().right() + 1 - 3, 4) << "less its frame";
    QTest::mouseClick(&list().cmdCancel(), Qt::LeftButton);
    EXPECT_FALSE(listUp() || tourUp());
    EXPECT_EQ(main().label(Tool::navigator).cursor().shape(), Qt::BitmapCursor);
    EXPECT_EQ(machine().boardSA[saQDA73], 9) << "Cancel does nothing else";

    const frmHard* bench = program->bench().bench();
    startTour(0);
    EXPECT_FALSE(listUp());
    ASSERT_TRUE(tourUp());
    EXPECT_EQ(machine().boardSA[saQDA73], 1);
    EXPECT_EQ(machine().runMode, modeRun);
    EXPECT_NE(program->bench().bench(), bench) << "the machine started anew";
    EXPECT_TRUE(tour().windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(tour().lblIndex(), "1/2");
    EXPECT_EQ(shown(0), "baBbbc");
    EXPECT_EQ(shown(1), "blower");
    EXPECT_FALSE(tour().cmdAction(frmNavigation::actionBack).isEnabled());
    press(frmNavigation::actionNext);
    EXPECT_EQ(tour().lblIndex(), "2/2");
    EXPECT_EQ(shown(0), "bd");
    EXPECT_EQ(shown(1), "Re");
    EXPECT_FALSE(tour().cmdAction(frmNavigation::actionNext).isEnabled());
    press(frmNavigation::actionNext);
    EXPECT_EQ(tour().lblIndex(), "2/2");
    QTest::keyClick(&tour(), Qt::Key_PageUp);
    EXPECT_EQ(tour().lblIndex(), "1/2");

    press(frmNavigation::actionMenu);
    EXPECT_TRUE(listUp());
    EXPECT_FALSE(tourUp());
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(listUp() || tourUp()) << "paused";
    bench = program->bench().bench();
    startTour(1);
    EXPECT_NE(program->bench().bench(), bench) << "every tour starts the machine anew";
    EXPECT_EQ(tour().lblIndex(), "1/2") << "of seven lines";
    EXPECT_EQ(shown(0), "b一") << "found in any case, and read in its code page";
    press(frmNavigation::actionEnd);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(program->aids().navigation(), nullptr);
    startTour(0);
    tour().close();
    EXPECT_EQ(program->aids().navigation(), nullptr);
}

TEST_F(Navigator, the_sign_follows_what_the_page_promises) {
    makeFile("sign.txt",
             "1\r\n2\r\nreg SCR 0004\r\n1\r\n2\r\nclick picPI 32 ; wait 1 ; image picPI 32 = 2 ; mem 102 0001\r\n"
             "1\r\n2\r\nsays hello ; bus 8bit-Bus Little\r\n1\r\n2\r\nlit nothing\r\n");
    makeFile("NaviIndex.txt", "other.txt\tOther\t-\r\nsign.txt\tSign\t-\r\n");
    start();
    fire();
    closePanel();
    startTour(1);
    EXPECT_EQ(sign(), TourSign::none) << "that is so already";
    const QImage without = drawnSign();
    EXPECT_FALSE(tour().timWatch().running()) << "nothing to look for";

    press(frmNavigation::actionNext);
    EXPECT_EQ(sign(), TourSign::open);
    const QImage ring = drawnSign();
    const BenchHand hand(*program->bench().bench());
    hand.click(hand.part("picPI", 32));
    EXPECT_EQ(sign(), TourSign::open) << "the scan hasn't brought it yet";
    fire();
    EXPECT_EQ(sign(), TourSign::done);
    const QImage check = drawnSign();
    EXPECT_TRUE(ring != without && check != without && ring != check) << "told apart by shape";
    EXPECT_EQ(tour().cmdAction(frmNavigation::actionNext).accessibleDescription(), tour().picSign().accessibleName());
    EXPECT_NE(tour().picSign().accessibleName(), "");
    hand.click(hand.part("picPI", 32));
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

    const auto mark = [this](int row) { return list().lstTitle().item(row)->data(Qt::AccessibleTextRole).toString(); };
    EXPECT_EQ(mark(1), "");
    press(frmNavigation::actionNext);
    EXPECT_EQ(sign(), TourSign::none) << "a slip is prose";
    EXPECT_EQ(tour().cmdAction(frmNavigation::actionNext).accessibleDescription(), "");
    press(frmNavigation::actionMenu);
    EXPECT_TRUE(mark(1).startsWith("Sign ") && mark(0).isEmpty()) << "finished";
    const auto picture = [this](int row) { return list().lstTitle().item(row)->icon().pixmap(NaviSign::size).toImage(); };
    EXPECT_NE(picture(0), picture(1));
    startTour(1);
    press(frmNavigation::actionNext);
    EXPECT_EQ(sign(), TourSign::open) << "a new start";
    tour().hide();
    EXPECT_FALSE(tour().timWatch().running());
}

TEST_F(Navigator, the_sign_hides_no_text_and_moves_no_control) {
    makeFile("NaviIndex.txt", "sign.txt\tSign\t-\r\n");
    makeFile("sign.txt", QByteArray("1\r\n") + QByteArray(80, 'w') + "\r\nreg SCR 0001\r\n1\r\n2\r\n\r\n");
    start();
    fire();
    closePanel();
    startTour(0);
    const QRect line = tour().picNav(1).geometry();
    const int textEnd = line.left() + tour().picNav(1).textWidth() - 6;
    EXPECT_GT(textEnd, line.right()) << "cut off";
    EXPECT_FALSE(tour().picSign().isVisible());
    tour().resize(tour().width() + textEnd - line.right() + 6, tour().height());
    EXPECT_TRUE(tour().picSign().isVisible());
    EXPECT_GT(tour().picSign().geometry().left(), textEnd - 1);
    press(frmNavigation::actionNext);
    EXPECT_FALSE(tour().picSign().isVisible());
    EXPECT_EQ(tour().picNav(1).geometry().right(), tour().width() - 1 - 7);
}

TEST_F(Navigator, files_that_are_no_tours_do_no_harm) {
    startWithTours();
    const frmHard* bench = program->bench().bench();
    for (const int missing : {3, 4}) {
        startTour(missing);
        EXPECT_EQ(notice(), "確認: ファイルが見つかりません。");
        EXPECT_TRUE(listUp()) << "the learner stays in the list";
    }
    EXPECT_EQ(program->bench().bench(), bench);
    startTour(2);
    EXPECT_EQ(tour().lblIndex(), "1/0");
    EXPECT_EQ(shown(0), "");
    startTour(5);
    EXPECT_EQ(shown(0), "bhuge.txt を読めません。");
    QFile::remove(folder.filePath("NaviData/six.txt"));
    startTour(0);
    EXPECT_EQ(shown(0), "bsix.txt を読めません。") << "it has gone since the index was read";
    EXPECT_FALSE(tour().cmdAction(frmNavigation::actionNext).isEnabled());
}

TEST_F(Navigator, waits_for_the_version_panel_and_lives_without_an_index) {
    start();
    fire();
    program->aids().versionPanel()->open();
    pointNavigator();
    EXPECT_EQ(program->aids().naviList(), nullptr);
    closePanel();
    pointNavigator();
    ASSERT_TRUE(listUp());
    EXPECT_EQ(list().lstTitle().count(), 0);
    QTest::mouseClick(&list().cmdStart(), Qt::LeftButton);
    EXPECT_EQ(notice(), "確認: ファイルが見つかりません。");
}

TEST_F(Navigator, the_tour_window_keeps_to_its_corner) {
    startWithTours();
    startTour(0);
    EXPECT_EQ(tour().width(), 747);
    const int right = tour().frameGeometry().right();
    const int bottom = tour().frameGeometry().bottom();
    const int next = tour().cmdAction(frmNavigation::actionNext).width();
    tour().resize(780, tour().height());
    EXPECT_EQ(tour().frameGeometry().right(), right);
    EXPECT_EQ(tour().frameGeometry().bottom(), bottom);
    EXPECT_EQ(tour().cmdAction(frmNavigation::actionNext).width(), next + 33) << "Next takes what there is";
    EXPECT_EQ(tour().picNav(0).width(), 780 - 14);
    EXPECT_EQ(tour().cmdAction(frmNavigation::actionEnd).geometry().right() + 1, 780 - 14);
}

}  // namespace
