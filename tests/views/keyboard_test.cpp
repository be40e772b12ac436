// The ways of the keyboard, where windows stand and what lies over what: nothing is hidden, nothing locked, and a key acts where
// the learner sees it act.

#include "access/views/frmEditMemory.h"
#include "access/views/frmMemoryRead.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmNaviList.h"
#include "aids/views/frmNavigation.h"
#include "boards/views/BenchView.h"
#include "boards/views/frmEditSerial.h"
#include "boards/views/frmHard.h"
#include "config/views/frmDefault.h"
#include "memwin/views/MemoryWindows.h"
#include "memwin/views/frmDump.h"
#include "platform/AreaWindow.h"
#include "platform/screen.h"
#include "tests/tempFolder.h"
#include "tests/views/startedProgram.h"

#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSignalSpy>

namespace {

class Keyboard : public StartedProgram {
protected:
    void startAll() {
        fs::copy(VRB_ASSETS "/NaviData", fs::path(folder.path().toStdString()) / "NaviData");
        fs::copy(VRB_BIN "/HintData", fs::path(folder.path().toStdString()) / "HintData");
        start(makersFile + "OPENWINDOW2=1\r\nOPENWINDOW3=1\r\n");
        program->aids().versionPanel()->hideVersion();
        main().activateWindow();
        main().area().setActiveSubWindow(&bench());
        bench().view().setFocus();
        QApplication::processEvents();
    }
    frmHard& bench() { return *program->bench().bench(); }
    frmDump& dump() { return *program->memory().window(Area::controlDoDi); }
    AreaWindow& frame() { return *qobject_cast<AreaWindow*>(dump().parentWidget()); }
    void openMemory(int cell) {
        QTest::mouseDClick(&dump().grid(), Qt::LeftButton, {}, dump().grid().cellRect(cell, DumpGrid::Side::data).center());
    }
    // The widget that has the keyboard, when the events under way are over.
    static QWidget* atKeys() {
        QApplication::processEvents();
        return QApplication::focusWidget();
    }
    static void key(int key, Qt::KeyboardModifiers modifiers = {}) {
        ASSERT_NE(atKeys(), nullptr) << "nobody has the keyboard";
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
        QApplication::processEvents();
    }
    // Types into the field in focus, walks so many stops on, and presses Return.
    static void enter(const char* digits, int stops) {
        ASSERT_NE(qobject_cast<OvertypeField*>(atKeys()), nullptr);
        QTest::keyClicks(QApplication::focusWidget(), digits);
        for (int stop = 0; stop < stops; ++stop) {
            key(Qt::Key_Tab);
        }
        key(Qt::Key_Return);
    }
    bool chooserUp() { return isUp(program->memory().chooser()); }
    void clickTool(Tool tool) { QTest::mouseClick(&main().label(tool), Qt::LeftButton); }
};

TEST_F(Keyboard, return_presses_the_button_that_has_it) {
    startAll();
    machine().chipMemory[reg::scrLow] = 0;
    const auto hpr = [this] { return memoryWord(machine(), reg::hprLow); };
    // From the field and from Write it writes, from Cancel it doesn't.
    for (const auto& [stops, digits, written] : {std::tuple{0, "1000", 0x1000}, {1, "0010", 0x0010}, {2, "1010", 0x0010}}) {
        SCOPED_TRACE(stops);
        open(rowHPR, frmRegister::valLow);
        enter(digits, stops);
        EXPECT_FALSE(dialog().isVisible());
        EXPECT_EQ(hpr(), written);
        openMemory(0x80);
        enter(digits, stops);
        EXPECT_FALSE(program->memory().writeDialog()->isVisible());
        EXPECT_EQ(memoryWord(machine(), 0x08E), written);
    }
    machine().cpuType = 1;
    for (const auto& [stops, shown, stays] : {std::tuple{2, "???H", false}, {0, "58aH", true}, {1, "58bH", true}}) {
        SCOPED_TRACE(stops);
        chooseMemory(frmDumpSel::memoryRead);
        enter(stops == 1 ? "58b" : "58a", stops);
        EXPECT_EQ(program->memory().readDialog()->findChild<QLabel*>("lblAdr")->text(), shown);
        EXPECT_EQ(program->memory().readDialog()->isVisible(), stays);
    }
}

TEST_F(Keyboard, an_option_chosen_by_arrow_key_leads_on_to_the_value) {
    startAll();
    open(6, frmRegister::valLow);
    EXPECT_EQ(atKeys(), &field());
    option(0).setFocus();
    key(Qt::Key_Down);
    EXPECT_TRUE(option(1).isChecked());
    EXPECT_EQ(atKeys(), &field());
    EXPECT_EQ(field().text().size(), 2);
}

TEST_F(Keyboard, is_where_it_was_when_the_chooser_has_gone) {
    startAll();
    ASSERT_EQ(atKeys(), &bench().view());
    clickTool(Tool::memoryWindow);
    EXPECT_EQ(atKeys(), program->memory().chooser()) << "no ring after a click";
    key(Qt::Key_Up);
    EXPECT_TRUE(program->memory().chooser()->cmdAREA(4).hasFocus());
    key(Qt::Key_Down);
    EXPECT_TRUE(program->memory().chooser()->cmdAREA(0).hasFocus());
    key(Qt::Key_Escape);
    EXPECT_FALSE(chooserUp());
    EXPECT_EQ(atKeys(), &bench().view());
    key(Qt::Key_Return);
    EXPECT_TRUE(machine().picBOARD2_RXD[0].plugged) << "a Return for nobody pulls no cable";
    key(Qt::Key_F6);
    EXPECT_TRUE(main().label(Tool::registerWindow).hasFocus());
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    EXPECT_TRUE(program->memory().chooser()->cmdAREA(0).hasFocus());
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_FALSE(chooserUp());
    EXPECT_TRUE(program->memory().window(Area::c1ToC7)->grid().hasFocus());
}

TEST_F(Keyboard, the_chooser_goes_when_the_learner_turns_elsewhere) {
    startAll();
    const std::vector<std::function<void()>> ways{
        [this] { main().area().setActiveSubWindow(&bench()); },
        [this] { QTest::mouseClick(&main().lblRunMode(modeRun), Qt::LeftButton); },
        [this] { clickTool(Tool::version); },
        [this] { program->restartMachine(); },
        [this] { QTest::mouseDClick(&main().label(Tool::navigator), Qt::LeftButton); },
    };
    for (std::size_t way = 0; way < ways.size(); ++way) {
        program->memory().openArea(Area::controlDoDi);
        clickTool(Tool::memoryWindow);
        ASSERT_TRUE(chooserUp());
        ways[way]();
        EXPECT_FALSE(chooserUp()) << way;
        program->aids().versionPanel() != nullptr ? program->aids().versionPanel()->hideVersion() : void();
    }
}

TEST_F(Keyboard, keys_lead_to_the_strip_through_the_windows_and_to_the_run_modes) {
    startAll();
    key(Qt::Key_F6);
    EXPECT_TRUE(main().label(Tool::registerWindow).hasFocus());
    key(Qt::Key_F6);
    EXPECT_EQ(atKeys(), &bench().view());

    const auto atWork = [this]() -> QWidget* {
        QWidget* active = QApplication::activeWindow();
        return active == &main() ? main().area().activeSubWindow() : active;
    };
    for (const auto& [there, back] : {std::pair{Qt::Key_Tab, Qt::Key_Backtab}, {Qt::Key_F6, Qt::Key_F6}}) {
        const QWidgetList round{&bench(), program->aids().hints(), &frame(), &registers()};
        QWidgetList walked;
        QWidgetList backwards;
        for (qsizetype step = 0; step < round.size(); ++step) {
            walked += atWork();
            key(there, Qt::ControlModifier);
        }
        EXPECT_EQ(walked[0], &bench());
        EXPECT_EQ(QSet<QWidget*>(walked.begin(), walked.end()), QSet<QWidget*>(round.begin(), round.end()));
        EXPECT_EQ(atWork(), &bench()) << "once round";
        for (qsizetype step = 0; step < round.size(); ++step) {
            key(back, Qt::ControlModifier | Qt::ShiftModifier);
            backwards.prepend(atWork());
        }
        EXPECT_EQ(backwards, walked);
    }
    for (const auto& [mode, pressed, modifier] : {std::tuple{modeStop, Qt::Key_F5, Qt::ShiftModifier},
                                                  {modeSlow, Qt::Key_F5, Qt::ControlModifier},
                                                  {modeOneTime, Qt::Key_F10, Qt::NoModifier},
                                                  {modeRun, Qt::Key_F5, Qt::NoModifier}}) {
        key(pressed, modifier);
        EXPECT_TRUE(main().lblRunMode(mode).isChecked()) << mode;
        EXPECT_EQ(machine().runMode, mode);
    }
}

TEST_F(Keyboard, walks_over_cells_and_pages) {
    startAll();
    program->memory().openArea(Area::controlDoDi);
    const QString start = dump().findChild<QLabel*>("lblPointAddress")->text();
    const auto address = [this] { return dump().findChild<QLabel*>("lblPointAddress")->text().mid(20, 3); };
    for (const auto& [pressed, at] : {std::pair{Qt::Key_Down, "01F"},
                                      {Qt::Key_Right, "01E"},
                                      {Qt::Key_Right, "01D"},
                                      {Qt::Key_Left, "01E"},
                                      {Qt::Key_Up, "00E"},
                                      {Qt::Key_Up, "00E"},
                                      {Qt::Key_PageDown, "08E"},
                                      {Qt::Key_End, "080"},
                                      {Qt::Key_Home, "08F"},
                                      {Qt::Key_PageDown, "10F"},
                                      {Qt::Key_PageDown, "17F"},
                                      {Qt::Key_Down, "17F"},
                                      {Qt::Key_PageUp, "0FF"},
                                      {Qt::Key_PageUp, "07F"},
                                      {Qt::Key_PageUp, "00F"},
                                      {Qt::Key_Left, "00F"}}) {
        key(pressed);
        EXPECT_EQ(address(), at) << start.toStdString() << ' ' << pressed;
    }
    registers().activateWindow();
    registers().cell(1, frmRegister::valHigh).setFocus();
    const auto here = [this] { return atKeys()->objectName(); };
    for (const auto& [pressed, at] : {std::pair{Qt::Key_Up, "lblValH1"},
                                      {Qt::Key_Down, "lblValH2"},
                                      {Qt::Key_Right, "lblValL2"},
                                      {Qt::Key_Right, "lblBinH2"},
                                      {Qt::Key_Up, "lblBinH1"},
                                      {Qt::Key_Left, "lblValL1"},
                                      {Qt::Key_Left, "lblValH1"},
                                      {Qt::Key_Left, "lblValH1"}}) {
        key(pressed);
        EXPECT_EQ(here(), at);
    }
    frmHint& hints = *program->aids().hints();
    main().activateWindow();
    hints.bringUp();
    for (const auto& [pressed, page] :
         {std::pair{Qt::Key_PageDown, 1}, {Qt::Key_PageUp, 0}, {Qt::Key_PageUp, 11}, {Qt::Key_PageDown, 0}}) {
        key(pressed);
        EXPECT_EQ(hints.page(), page);
    }
    key(Qt::Key_Escape);
    EXPECT_FALSE(hints.isVisible());
    EXPECT_TRUE(frame().isVisible()) << "Escape closes the one at work";
}

TEST_F(Keyboard, a_window_comes_back_from_its_icon_and_moves_no_other) {
    startAll();
    frame().showMinimized();
    ASSERT_TRUE(frame().isMinimized());
    chooseMemory(frmDumpSel::controlDoDi);
    EXPECT_FALSE(frame().isMinimized());
    EXPECT_TRUE(dump().isVisible() && dump().grid().hasFocus());
    EXPECT_GE(frame().width(), dump().width());

    program->aids().hints()->move(30, 40);
    registers().close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    clickTool(Tool::registerWindow);
    EXPECT_TRUE(registers().isVisible());
    EXPECT_EQ(program->aids().hints()->pos(), QPoint(30, 40));
}

TEST_F(Keyboard, the_list_of_tours_lies_over_the_tour_window) {
    startAll();
    program->aids().openNaviList();
    program->aids().naviList()->cmdStart().click();
    main().timTick().setEnabled(false);
    frmNavigation& tour = *program->aids().navigation();
    ASSERT_TRUE(tour.isVisible() && tour.windowFlags() & Qt::WindowStaysOnTopHint);
    QTest::mouseDClick(&main().label(Tool::navigator), Qt::LeftButton);
    frmNaviList& list = *program->aids().naviList();
    EXPECT_TRUE(list.isVisible() && list.isModal() && list.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(atKeys(), static_cast<QWidget*>(&list.lstTitle()));
}

// Places of frames, in twips, at the first showing as at the next.
TEST_F(Keyboard, windows_stand_where_they_were_told) {
    startAll();
    const auto at = [](int x, int y) { return QPoint(x / 15, y / 15); };
    const QPoint corner = main().frameGeometry().topLeft();
    const auto place = [](const QWidget* window) { return window->frameGeometry().topLeft(); };
    EXPECT_EQ(place(&registers()), corner + at(6600, 1100));
    const QSize room = main().area().viewport()->size() - program->aids().hints()->size();
    EXPECT_EQ(program->aids().hints()->pos(), QPoint(8700 / 15, std::min(6700 / 15, room.height())));
    for (int time = 0; time < 2; ++time) {
        SCOPED_TRACE(time);
        for (const int row : {3, 7}) {
            RegisterCell& cell = registers().cell(row, frmRegister::valLow);
            open(row, frmRegister::valLow);
            EXPECT_EQ(place(&dialog()), place(&registers()) + QPoint(500 / 15, cell.y() + 700 / 15));
            QTest::keyClick(&dialog(), Qt::Key_Escape);
        }
        openMemory(0x21);
        const QPoint cell = dump().grid().mapToGlobal(dump().grid().cellRect(0x21, DumpGrid::Side::data).topLeft());
        EXPECT_EQ(place(program->memory().writeDialog()), cell + QPoint(0, 24));
        QTest::keyClick(program->memory().writeDialog(), Qt::Key_Escape);
        machine().cpuType = 1;
        chooseMemory(frmDumpSel::memoryRead);
        EXPECT_EQ(place(program->memory().readDialog()), main().area().mapToGlobal(at(1800, 2500)));
        program->memory().readDialog()->close();
        program->settings().open();
        EXPECT_EQ(place(program->settings().dialog()), corner + at(4700, 4000));
        program->settings().hide();
        for (const int slot : {0, 1}) {
            emit bench().serialWanted(slot);
            frmEditSerial& serial = *program->bench().serialDialog();
            const QRect told(bench().mapToGlobal(at(7500 + 5100 * slot, 5900)), serial.frameGeometry().size());
            EXPECT_EQ(place(&serial), keptOnScreen(told).topLeft());
            program->bench().serialDialog()->reject();
        }
    }
    // At the foot of the screen a dialog stands above its cell.
    registers().move(400, 780);
    open(9, frmRegister::valLow);
    RegisterCell& last = registers().cell(9, frmRegister::valLow);
    EXPECT_EQ(dialog().frameGeometry().top() + dialog().frameGeometry().height(),
              registers().frameGeometry().top() + last.y() + 700 / 15 - 300 / 15);
    QTest::keyClick(&dialog(), Qt::Key_Escape);
}

TEST_F(Keyboard, the_beep_is_there_with_its_file_alone) {
    start();
    EXPECT_FALSE(machine().soundAvailable);
    fs::copy(VRB_BIN "/BEEP.WAV", fs::path(folder.path().toStdString()));
    program->restartMachine();
    main().timTick().setEnabled(false);
    EXPECT_TRUE(machine().soundAvailable);
    QSignalSpy beeps(&program->aids(), &AidWindows::beepWanted);
    popup("x");
    program->aids().say(Warning{"x"});
    EXPECT_EQ(beeps.count(), 2);
}

TEST(NaviLineInATour, shows_controls_blue_and_results_red) {
    struct Row {
        const char* text;
        bool red, blue;  // whether the darkest of the text keeps the white of its ground in that colour
    };
    for (const Row& row : {Row{"w", false, false}, {"#w", false, true}, {"\\w", true, false}}) {
        NaviLine line(nullptr);
        line.resize(60, 25);
        line.drawMarkedText(row.text);
        const QImage image = line.grab().toImage();
        QColor darkest = Qt::white;
        for (int pixel = 0; pixel < image.width() * image.height(); ++pixel) {
            const QColor colour = image.pixelColor(pixel % image.width(), pixel / image.width());
            darkest = colour.lightness() < darkest.lightness() ? colour : darkest;
        }
        EXPECT_EQ(darkest.red() > 200, row.red) << row.text;
        EXPECT_EQ(darkest.blue() > 200, row.blue) << row.text;
        EXPECT_LT(darkest.green(), 150) << row.text;
    }
}

}  // namespace
