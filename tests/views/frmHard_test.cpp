#include "boards/views/frmHard.h"

#include "access/views/frmMemoryRead.h"
#include "boards/portPins.h"
#include "boards/views/BenchCombo.h"
#include "boards/views/frmOsiro.h"
#include "memwin/views/MemoryWindows.h"
#include "tests/views/BenchHand.h"
#include "tests/views/startedProgram.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QMdiArea>
#include <QPushButton>
#include <QSignalSpy>

#include <algorithm>
#include <set>

namespace {

class Bench : public StartedProgram {
protected:
    void startBench(const std::string& file = makersFile) {
        start(file);
        fire();  // the scan of stations 1 to 4 runs
        // Nothing lies over the bench: clicks are to reach it.
        registers().hide();
        program->aids().versionPanel() != nullptr ? program->aids().versionPanel()->hide() : void();
        main().showNormal();
        main().resize(1280, 994);
        main().move(-500, -300);  // room for what stands beside the bench, on a small test screen
        main().activateWindow();
        main().area().setActiveSubWindow(&bench());
        bench().view().setFocus();
        QApplication::processEvents();
    }

    frmHard& bench() { return *program->bench().bench(); }
    BenchHand hand() { return BenchHand(bench()); }
    BenchPart& part(const char* name, std::size_t index = 0) { return hand().part(name, index); }
    QWidget* viewport() { return hand().viewport(); }
    QPoint at(const BenchPart& part) { return hand().at(part); }
    QPoint outside() { return bench().view().mapFromScene(QPointF(440, 300)); }

    void press(const BenchPart& part) { hand().press(part); }
    void release(QPoint place) { hand().release(place); }
    void click(const char* name, std::size_t index = 0) { hand().click(part(name, index)); }
    void doublePress(const BenchPart& part) { hand().doublePress(part); }
    void doubleClick(const char* name, std::size_t index = 0) { hand().doubleClick(part(name, index)); }
    int picture(const char* name, std::size_t index = 0) { return part(name, index).shown().number; }
    bool visible(const char* name, std::size_t index = 0) { return part(name, index).isVisible(); }
    std::string labelText(const char* name, std::size_t index = 0) { return bench().label(name, index)->text().toStdString(); }
    int width() { return bench().width() * 15; }
    frmDialog& question() { return *program->aids().dialog(); }
    std::string questionText() {
        return isUp(program->aids().dialog()) ? question().findChild<QLabel*>("lblMessage")->text().mid(1).toStdString() : "";
    }
    void answerQuestion(Qt::Key key) {
        QTest::keyClick(&question(), key);
        QApplication::processEvents();
        main().activateWindow();
        QApplication::processEvents();
    }
};

TEST_F(Bench, comes_up_as_the_settings_say) {
    startBench();
    EXPECT_EQ(bench().pos(), QPoint(0, 0));
    EXPECT_EQ(width(), 13320) << "888 pixels: the cascade card is fitted";
    EXPECT_TRUE(visible("picBridge"));
    EXPECT_TRUE(visible("picPI", 16)) << "on the cascade card";
    EXPECT_EQ(picture("picSA", 4), 1);
    EXPECT_EQ(picture("picSA", 5), 5) << "Board No4 stands at 04H";
    EXPECT_EQ(picture("picIOS"), 6);
    EXPECT_EQ(picture("picScanLed"), 2);
    EXPECT_EQ(picture("picCableUp", 0), 2);
    EXPECT_EQ(part("picCableUp", 0).scenePos().y(), 24);
    EXPECT_EQ(labelText("lblClock", 3), "48MHz");
    EXPECT_FALSE(visible("picPWM"));
    EXPECT_FALSE(bench().label("lblRt", 0) == nullptr);
    EXPECT_TRUE(bench().label("lblRt", 4)->isVisible());
    EXPECT_FALSE(bench().label("lblRt", 3)->isVisible());
    // All pictures exist.
    for (const BenchPart* shown : bench().view().parts()) {
        EXPECT_GT(shown->boundingRect().width(), 8) << shown->objectName().toStdString();
    }
}

// Every gesture that toggles: the state, and the picture before and after.
TEST_F(Bench, toggles_show_their_state) {
    startBench();
    struct Row {
        const char* name;
        std::size_t index;
        bool twice;
        int before, after;
        std::function<bool()> state;
    };
    const std::vector<Row> rows{
        {"picBPSS", 0, true, 3, 4, [&] { return machine().boardClock[clockQDA52] == 1 && labelText("lblPBPSS") == "BPSS-H"; }},
        {"picPI", 37, false, 1, 2, [&] { return machine().diImage[4] == 0x20; }},
        {"picSSA", 1, true, 3, 4, [&] { return machine().picSSA[1].on; }},
        {"picSSB", 2, true, 3, 4, [&] { return machine().picSSB[2].on; }},
        {"picCableUp", 2, false, 2, 1, [&] { return !machine().picBOARD2_RXD[3].plugged && picture("picCableDn", 2) == 3; }},
        {"picCableDn", 1, false, 4, 3, [&] { return !machine().picBOARD2_RXD[1].plugged && picture("picCableUp", 1) == 1; }},
        {"picCableUp", 0, false, 2, 1,
         [&] { return !machine().picBOARD1_RXD[0].plugged && !machine().picBOARD2_RXD[0].plugged; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << row.index);
        EXPECT_EQ(picture(row.name, row.index), row.before);
        EXPECT_FALSE(row.state());
        for (const bool there : {true, false}) {
            row.twice ? doubleClick(row.name, row.index) : click(row.name, row.index);
            EXPECT_EQ(picture(row.name, row.index), there ? row.after : row.before);
            EXPECT_EQ(row.state(), there);
        }
        if (row.twice) {
            click(row.name, row.index);
            EXPECT_EQ(picture(row.name, row.index), row.before) << "one click does nothing";
        }
    }
}

TEST_F(Bench, connectors_move_and_unplug_the_cable) {
    startBench();
    doubleClick("picBOARD1_RXD", 1);
    EXPECT_EQ(part("picCableUp", 0).scenePos().y(), 62) << "moved, not unplugged";
    EXPECT_EQ(picture("picCableUp", 0), 2);
    EXPECT_FALSE(visible("picTermR", 0));
    EXPECT_TRUE(visible("picTermR", 1));
    fire();
    EXPECT_EQ(memoryWord(machine(), reg::c1crLow), 0) << "no visit failed";
    for (const auto& [connector, cable] : {std::pair<std::size_t, std::size_t>{0, 0}, {2, 1}, {4, 2}}) {
        doubleClick("picBOARD2_RXD", connector);
        EXPECT_EQ(picture("picCableDn", cable), 3) << cable;
    }
    for (std::size_t terminator = 0; terminator < 5; ++terminator) {
        EXPECT_FALSE(visible("picTermR", terminator));
    }
    doubleClick("picBOARD2_RXD", 5);
    EXPECT_EQ(picture("picCableDn", 2), 3) << "nothing plugs there";
    doubleClick("picBOARD2_RXD", 0);
    EXPECT_EQ(part("picCableUp", 0).scenePos().y(), 62) << "the connector it came from";
}

TEST_F(Bench, held_buttons_stay_down_until_the_mouse_button_comes_up_wherever_it_is) {
    startBench();
    struct Row {
        const char* name;
        std::size_t index;
        bool twice;
        int up;
        std::function<bool()> held;
    };
    const std::vector<Row> rows{
        {"picReset", 3, true, 1, [&] { return machine().resetHeld[3]; }},
        {"picReset", 5, true, 1, [&] { return machine().resetHeld52; }},
        {"picReset", 0, true, 1, [&] { return machine().picReset[0].down; }},
        {"picCLR", 1, true, 3, [&] { return machine().clrHeld[2]; }},
        {"picCLR", 4, true, 3, [&] { return machine().clrHeld52; }},
        {"picCounter", 8, false, 1, [&] { return machine().picCounter[8].down; }},
        {"picNoise", 0, false, 1, [&] { return machine().noiseOn; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << row.index);
        BenchPart& button = part(row.name, row.index);
        row.twice ? doublePress(button) : press(button);
        EXPECT_TRUE(row.held());
        EXPECT_EQ(button.shown().number, row.up + 1);
        const QPointF away = outside();
        QMouseEvent move(QEvent::MouseMove, away, viewport()->mapToGlobal(away), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport(), &move);
        fire();
        EXPECT_TRUE(row.held());
        release(outside());
        EXPECT_FALSE(row.held());
        EXPECT_EQ(button.shown().number, row.up);
        // By keyboard: as long as the key is down.
        button.setFocus(Qt::TabFocusReason);
        QTest::keyPress(&bench().view(), Qt::Key_Space);
        EXPECT_TRUE(row.held());
        fire();
        QTest::keyRelease(&bench().view(), Qt::Key_Space);
        EXPECT_FALSE(row.held());
    }
    EXPECT_EQ(machine().counterImage[16], 2) << "one pulse a press, by mouse and by key";
}

TEST_F(Bench, a_dialog_that_takes_the_mouse_away_lets_the_button_go) {
    startBench();
    doublePress(part("picReset", 1));
    EXPECT_TRUE(machine().resetHeld[1]);
    bench().part("picReset", 1)->ungrabMouse();
    EXPECT_FALSE(machine().resetHeld[1]);
}

TEST_F(Bench, fast_clicks_on_a_switch_or_counter_button_lose_no_press) {
    startBench();
    for (const int presses : {2, 3, 4, 7}) {
        machine().diImage = {};
        machine().counterImage = {};
        const bool before = machine().picPI[0].level;
        for (const char* name : {"picPI", "picCounter"}) {
            for (int done = 1; done < presses; done += 2) {
                doubleClick(name, 0);
            }
            if (presses % 2 != 0) {
                click(name, 0);
            }
        }
        EXPECT_EQ(machine().picPI[0].level != before, presses % 2 != 0) << presses;
        EXPECT_EQ(machine().counterImage[0], presses);
    }
    press(part("picPI", 3));
    release(outside());
    EXPECT_FALSE(machine().picPI[3].level) << "a click that was taken back";
}

TEST_F(Bench, center_reset_stops_the_scan_and_leaves_the_memory) {
    startBench();
    setMemoryWord(machine(), doBase + 2, 0x1234);
    doubleClick("picReset", 0);
    EXPECT_FALSE(machine().scanRunning);
    EXPECT_EQ(picture("picScanLed"), 1);
    EXPECT_EQ(memoryWord(machine(), reg::bcrLow), 0x0013);
    EXPECT_EQ(memoryWord(machine(), doBase + 2), 0x1234);
    EXPECT_EQ(registers().cell(1, 1).text(), "04") << "a hidden register window keeps its text";
}

// A whole scene: what a learner sees when he pulls cable 1 out.
TEST_F(Bench, a_pulled_cable_fails_the_stations_behind_it_and_they_recover) {
    startBench();
    registers().show();
    fire();
    QTest::mouseClick(&main().lblRunMode(modeStop), Qt::LeftButton);
    click("picCableUp", 1);
    for (int tick = 0; tick < 8; ++tick) {
        QTest::mouseClick(&main().lblRunMode(modeOneTime), Qt::LeftButton);
    }
    EXPECT_EQ(registers().cell(2, 0).text(), "04") << "SSR says that a station failed";
    QTest::mouseClick(&main().lblRunMode(modeRun), Qt::LeftButton);
    fire(2);
    for (const int sa : {2, 3, 4}) {
        EXPECT_EQ(machine().chipMemory[static_cast<std::size_t>(2 * sa + 1)] & 0x7C, 0x7C) << sa;
    }
    EXPECT_EQ(machine().chipMemory[3] & 0x04, 0) << "station 1 is before the cable";
    EXPECT_EQ(picture("picChkLED", 0), 2);
    EXPECT_EQ(picture("picChkLED", 1), 2);
    EXPECT_EQ(picture("picMON_LED73"), 2);
    EXPECT_EQ(registers().cell(6, 1).text(), "03") << "C1CR";
    EXPECT_EQ(registers().cell(7, 1).text(), "03") << "C2CR";
    click("picCableUp", 1);
    fire(1);
    for (const int sa : {2, 3, 4}) {
        EXPECT_EQ(machine().chipMemory[static_cast<std::size_t>(2 * sa + 1)] & 0x7C, 0) << sa;
    }
    fire(80);
    EXPECT_EQ(picture("picChkLED", 0), 1);
    EXPECT_EQ(registers().cell(6, 1).text(), "03") << "the count stays";
}

// --- combo boxes -----------------------------------------------------------------------------------------------------------

TEST_F(Bench, combo_boxes_commit_by_their_rules) {
    startBench();
    BenchCombo& box = *bench().combo("cmbSA", saQDA73);
    const auto pointer = [&](std::size_t index) { return part("picSA", index).cursor().pixmap().toImage(); };
    const QImage two = pointer(2);
    doubleClick("picSA", 2);
    EXPECT_TRUE(box.isVisible());
    EXPECT_FALSE(box.hasFocus());
    EXPECT_EQ(box.currentText(), "0x01");
    EXPECT_NE(pointer(2), two);
    EXPECT_NE(pointer(3), two) << "both switches of the board";
    box.setCurrentIndex(8);
    click("picSA", 3);
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(machine().boardSA[saQDA73], 1) << "it never had the focus";
    EXPECT_EQ(pointer(2), two);

    doubleClick("picSA", 2);
    box.setFocus();
    box.showPopup();
    EXPECT_TRUE(box.isOpen()) << "a list that drops down is no commit";
    EXPECT_EQ(machine().boardSA[saQDA73], 1);
    box.hidePopup();
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    click("picScanLed");
    bench().view().setFocus();
    EXPECT_EQ(machine().boardSA[saQDA73], 2) << "a click elsewhere";
    EXPECT_EQ(picture("picSA", 3), 3);
    EXPECT_EQ(questionText(), "ボード1と、ボード3のＳＡが重複しています｡正常な通信が行えません｡ ");
    answerQuestion(Qt::Key_Return);

    doubleClick("picSA", 3);
    box.setFocus();
    emit box.activated(1);
    EXPECT_FALSE(box.isVisible());
    EXPECT_NE(questionText(), "") << "the same item commits again";
    answerQuestion(Qt::Key_Return);

    part("picSA", 2).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&bench().view(), Qt::Key_Return);
    EXPECT_TRUE(box.isOpen());
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(machine().boardSA[saQDA73], 2) << "Escape takes nothing over";
    EXPECT_TRUE(part("picSA", 2).hasFocus());
}

TEST_F(Bench, every_combo_box_brings_its_setting_to_the_board) {
    startBench();
    struct Row {
        const char* box;
        std::size_t index;
        const char* picture;
        std::size_t pictureIndex;
        int item;
        std::function<bool()> state;
    };
    const std::vector<Row> rows{
        {"cmbClock41", 0, "picClock", 1, 2,
         [&] { return machine().boardClock[clockQDA41] == 2 && labelText("lblClock", 1) == "12MHz"; }},
        {"cmbClock52", 0, "picClock", 3, 1,
         [&] { return machine().boardClock[clockQDA52] == 1 && labelText("lblClock", 3) == "24MHz"; }},
        {"cmbBPS73", 0, "picBPS73", 0, 3, [&] { return machine().boardClock[clockQDA73] == 3 && picture("picBPS73") == 4; }},
        {"cmbCPUType", 0, "picCPU", 0, 3, [&] { return machine().cpuType == 3; }},
        {"cmbIOS", 0, "picIOS", 0, 7, [&] { return machine().ios52 == 7 && visible("picPWM") && picture("picIOS") == 8; }},
        {"cmbMode", 0, "picMode", 0, 2, [&] { return machine().mode52 == 0 && questionText().find("ＱＤＡ５２") == 0; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.box);
        BenchCombo& box = *bench().combo(row.box, row.index);
        doubleClick(row.picture, row.pictureIndex);
        ASSERT_TRUE(box.isVisible());
        box.setFocus();
        EXPECT_FALSE(row.state());
        box.setCurrentIndex(row.item);
        emit box.activated(row.item);
        EXPECT_FALSE(box.isVisible());
        EXPECT_TRUE(row.state());
    }
    doubleClick("picClock", 2);
    EXPECT_EQ(labelText("lblClock", 2), "48MHz") << "a fixed clock";
}

// --- width, modes, duplex ------------------------------------------------------------------------------------------------

TEST_F(Bench, width_follows_card_and_panel) {
    startBench();
    const auto setMode = [&](int mode) {
        BenchCombo& box = *bench().combo("cmbIOS");
        doubleClick("picIOS");
        box.setFocus();
        emit(box.setCurrentIndex(mode), box.activated(mode));
    };
    const int height = bench().height();
    doubleClick("picBridge");
    EXPECT_EQ(width(), 7890);
    EXPECT_FALSE(visible("picPI", 16));
    setMode(6);
    EXPECT_EQ(width(), 13320);
    EXPECT_TRUE(visible("picPWMBridge") && visible("picCW", 3) && visible("imgBelt"));
    EXPECT_FALSE(visible("picTriangle") || visible("picSTB", 9) || visible("picSSA", 4) || visible("picCounter", 24));
    EXPECT_TRUE(visible("picSTB", 8));
    setMode(7);
    EXPECT_TRUE(visible("picTriangle") && visible("picCounter", 24));
    doubleClick("picFConn");
    doubleClick("picBridge");
    EXPECT_EQ(width(), 13320) << "the panel keeps it wide";
    setMode(2);
    EXPECT_EQ(width(), 7890);
    EXPECT_EQ(bench().height(), height);
    // Outputs are LEDs below the row of inputs; a click on them does nothing.
    EXPECT_EQ(std::string(part("picPI", 72).shown().images), "ilsLED_G");
    EXPECT_EQ(part("picPI", 72).toolTip(), "IO端子接続 LED(緑）");
    EXPECT_EQ(part("picPI", 64).toolTip(), "IO端子接続 入力ディップ・スイッチ");
    click("picPI", 72);
    EXPECT_EQ(machine().diImage[9], 0);
    click("picPI", 64);
    EXPECT_EQ(machine().diImage[8], 1);
}

TEST_F(Bench, lamp_and_motor_follow_the_output_word) {
    startBench();
    const auto send = [&](int word) {
        setMemoryWord(machine(), doBase + 2 * 4, word);
        fire();
    };
    cmbIOS_LostFocus(machine(), 6);
    for (const int level : {0, 3, 7}) {
        send(0x40 | level * 8 | 1);
        EXPECT_EQ(picture("imgBelt"), 4 + level);
        EXPECT_EQ(picture("picPower", 0), 2);
        EXPECT_EQ(picture("picPower", 3), level % 2 != 0 ? 2 : 1);
    }
    send(0x80 | 0x3F);
    EXPECT_EQ(picture("imgBelt"), 4) << "the lamp answers to one direction only";
    EXPECT_EQ(picture("picPower", 5), 1);

    cmbIOS_LostFocus(machine(), 7);
    fire();
    const auto pictures = [&] {
        std::vector<std::pair<int, int>> seen;
        for (int step = 0; step < 3; ++step) {
            seen.emplace_back(picture("imgBelt"), picture("picTriangle"));
            bench().timMotor().fire();
        }
        return seen;
    };
    EXPECT_EQ(bench().timMotor().interval(), 125);
    EXPECT_EQ(pictures(), (std::vector<std::pair<int, int>>{{1, 1}, {2, 2}, {3, 3}}));
    send(0x40 | 0x20);
    EXPECT_EQ(bench().timMotor().interval(), 550);
    EXPECT_EQ(pictures(), (std::vector<std::pair<int, int>>{{1, 8}, {3, 7}, {2, 6}}));
    doublePress(part("picCLR", 4));
    EXPECT_FALSE(bench().timMotor().running());
    EXPECT_EQ(picture("picPower", 5), 1);
    release(outside());
    fire();
    EXPECT_EQ(bench().timMotor().interval(), 550) << "the word comes back with the next visit";
    send(0xC0 | 0x20);
    EXPECT_FALSE(bench().timMotor().running()) << "no direction";
    cmbIOS_LostFocus(machine(), 5);
    fire();
    EXPECT_FALSE(bench().timMotor().running());
    EXPECT_EQ(width(), 13320) << "the card is still there";
}

TEST_F(Bench, duplex_is_asked_for_and_refused_in_a_scan) {
    startBench();
    doubleClick("picJumper", 2);
    EXPECT_EQ(popupText(), "スキャン中の変更は禁止です。");
    EXPECT_EQ(questionText(), "");
    doubleClick("picReset", 0);
    doubleClick("picJumper", 2);
    EXPECT_EQ(questionText(), "すべてのボードの通信方式を切り替えます。\nよろしいですか？");
    answerQuestion(Qt::Key_Escape);
    EXPECT_EQ(questionText(), "") << "cancelled, and BCR still agrees";
    EXPECT_EQ(labelText("lblHF", 3), "JMP-F");
    doubleClick("picJumper", 0);
    answerQuestion(Qt::Key_Return);
    EXPECT_EQ(questionText(), "設定がＱＤＡ６０のレジスタ設定と一致していません。");
    answerQuestion(Qt::Key_Return);
    for (const std::size_t jumper : {0U, 1U, 2U, 3U}) {
        EXPECT_EQ(picture("picJumper", jumper), 2);
        EXPECT_EQ(labelText("lblHF", jumper), "JMP-H");
    }
    EXPECT_TRUE(visible("picPTR", 4));
    EXPECT_FALSE(visible("picPTR", 5));
}

TEST_F(Bench, timing_charts_stand_beside_their_port) {
    startBench();
    struct Row {
        const char* name;
        std::size_t index;
        int chart, left, top;
    };
    for (const Row& row : {Row{"picSSA", 0, 2, 7900, 7100}, Row{"picSSB", 0, 4, 7900, 7100}, Row{"picSTB", 3, 1, 13300, 7100},
                           Row{"picSSA", 2, 6, 7900, 4000}, Row{"picSTB", 9, 1, 7900, 9000}, Row{"picSTB", 4, 6, 7900, 4000}}) {
        SCOPED_TRACE(testing::Message() << row.name << row.index);
        doubleClick(row.name, row.index);
        frmOsiro& chart = *program->bench().timingChartWindow();
        EXPECT_TRUE(chart.isVisible());
        EXPECT_EQ(chart.chart(), row.chart);
        const QPoint wanted = bench().mapToGlobal(QPoint()) + QPoint(row.left / 15, row.top / 15);
        EXPECT_EQ(chart.frameGeometry().y(), wanted.y());
        const int rightmost = chart.screen()->availableGeometry().right() - chart.width();
        EXPECT_NEAR(chart.frameGeometry().x(), std::min(wanted.x(), rightmost), 6) << "kept on the screen";
    }
}

// What the bench asks of other windows, by the argument of its signal.
TEST_F(Bench, diagrams_and_serial_input_are_asked_for_by_their_chip) {
    startBench();
    const auto argument = [](QSignalSpy& spy) { return spy.isEmpty() ? -1 : spy.takeLast().at(0).toInt(); };
    QSignalSpy wanted(&bench(), &frmHard::diagramWanted);
    QSignalSpy follows(&bench(), &frmHard::diagramChanged);
    QSignalSpy gone(&bench(), &frmHard::diagramGone);
    for (const int chip : {0, 1, 2, 3, 4}) {
        doubleClick("picQDA", static_cast<std::size_t>(chip));
        EXPECT_EQ(argument(wanted), chip);
    }
    doubleClick("picBridge");
    EXPECT_EQ(gone.count(), 1);
    doubleClick("picFConn");
    EXPECT_EQ(argument(follows), 1);
    const auto choose = [&](const char* name, const char* picture, int item) {
        BenchCombo& box = *bench().combo(name);
        doubleClick(picture);
        box.setFocus();
        box.setCurrentIndex(item);
        emit box.activated(item);
        return argument(follows);
    };
    EXPECT_EQ(choose("cmbIOS", "picIOS", 7), 4);
    doubleClick("picPWM");
    EXPECT_EQ(argument(wanted), 4);
    EXPECT_EQ(choose("cmbCPUType", "picCPU", 1), 0);
    // The bus type reaches the memory windows; the read dialog goes with an 8-bit bus.
    chooseMemory(frmDumpSel::memoryRead);
    EXPECT_EQ(choose("cmbCPUType", "picCPU", 3), 0);
    EXPECT_TRUE(isUp(program->memory().readDialog()));
    EXPECT_EQ(choose("cmbCPUType", "picCPU", 2), 0);
    EXPECT_FALSE(isUp(program->memory().readDialog()));
}

// --- keyboard, zoom, speed -------------------------------------------------------------------------------------------------

TEST_F(Bench, the_keyboard_reaches_every_part_that_answers) {
    startBench();
    std::set<const BenchPart*> reached;
    bench().view().setFocus(Qt::TabFocusReason);
    for (std::size_t steps = 0; steps < bench().view().parts().size(); ++steps) {
        if (const auto* here = dynamic_cast<BenchPart*>(bench().view().scene()->focusItem())) {
            reached.insert(here);
        }
        QTest::keyClick(&bench().view(), Qt::Key_Tab);
    }
    for (const BenchPart* candidate : bench().view().parts()) {
        EXPECT_EQ(reached.count(candidate) != 0, candidate->isVisible() && candidate->answers().any())
            << candidate->objectName().toStdString();
    }
    part("picPI", 40).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&bench().view(), Qt::Key_Right);
    EXPECT_TRUE(part("picPI", 39).hasFocus());
    QTest::keyClick(&bench().view(), Qt::Key_Space);
    EXPECT_TRUE(machine().picPI[39].level);
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&bench().view())->focusChild();
    ASSERT_NE(heard, nullptr);
    EXPECT_TRUE(heard->text(QAccessible::Name).startsWith("Board-1 picPI(39)"));
    EXPECT_EQ(heard->text(QAccessible::Value), "ON");
    EXPECT_TRUE(heard->rect().contains(viewport()->mapToGlobal(at(part("picPI", 39)))));
    heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(machine().picPI[39].level);
    part("picSSB", 2).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&bench().view(), Qt::Key_Return);
    EXPECT_TRUE(machine().picSSB[2].on) << "Enter stands for the double click";
}

TEST_F(Bench, zoom_keeps_gestures_and_boxes_in_their_places) {
    startBench();
    const int before = bench().width();
    QTest::keyClick(&bench().view(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(bench().width(), before);
    click("picPI", 47);
    EXPECT_TRUE(machine().picPI[47].level);
    doubleClick("picBPS73");
    EXPECT_TRUE(bench().combo("cmbBPS73")->geometry().contains(at(part("picBPS73"))));
    QTest::keyClick(&bench().view(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(bench().width(), before);
}

TEST_F(Bench, a_firing_that_changes_nothing_repaints_nothing) {
    startBench();
    fire(40);
    QApplication::processEvents();
    for (int firing = 0; firing < 3; ++firing) {
        main().timTick().fire();
        EXPECT_EQ(bench().refresh(), 0);
    }
    class Paints : public QObject {
    public:
        int count = 0;
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } paints;
    viewport()->installEventFilter(&paints);
    fire(5);
    QApplication::processEvents();
    EXPECT_EQ(paints.count, 0);
    click("picPI", 0);
    QApplication::processEvents();
    EXPECT_GT(paints.count, 0);
}

}  // namespace
