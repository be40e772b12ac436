// SPDX-License-Identifier: Apache-2.0
#include "boards/views/frmHard.h"

#include "access/views/frmMemoryRead.h"
#include "boards/portPins.h"
#include "boards/views/frmOsiro.h"
#include "memwin/views/MemoryWindows.h"
#include "tests/views/benchFixture.h"

#include <QAccessible>
#include <QGraphicsSimpleTextItem>
#include <QSignalSpy>

#include <algorithm>
#include <set>

namespace {

TEST_F(Bench, comes_up_as_the_settings_say) {
    startBench();
    EXPECT_EQ(bench().pos(), QPoint(0, 0));
    EXPECT_EQ(width(), 13320) << "888 pixels: the cascade card is fitted";
    EXPECT_TRUE(visible("picBridge") && visible("picPI", 16) && !visible("picPWM"));
    EXPECT_TRUE(picture("picIOS") == 6 && picture("picScanLed") == 2 && picture("picCableUp", 0) == 2);
    EXPECT_EQ(part("picCableUp", 0).scenePos().y(), 24);
    std::string captions;
    for (const LabelRow& row : benchLabels()) {
        const BenchLabel& label = *bench().label(row.name, row.index);
        captions += label.isVisible() ? label.text().toStdString() + " " : "";
    }
    EXPECT_EQ(captions,
              "Center-Board Board-1 Board-2 Board-3 Board-4 QDA60 QDA73 QDA41 QDA41 QDA52 48MHz 48MHz 48MHz 48MHz "
              "JMP-F JMP-F JMP-F JMP-F Rt Rt BPSS-L SSA SSB STB2 ");
    EXPECT_TRUE(bench().label("lblRt", 0)->isVisible() && bench().label("lblRt", 4)->isVisible());
    for (const std::size_t connector : {0U, 1U}) {
        const auto* print = dynamic_cast<QGraphicsSimpleTextItem*>(part("picBOARD1_RXD", connector).childItems().value(0));
        ASSERT_NE(print, nullptr);
        EXPECT_TRUE(print->isVisible() && print->text() == QStringLiteral("RXD%1").arg(connector + 1));
    }
    std::size_t counters = 0;
    for (const BenchPart* shown : bench().view().parts()) {
        EXPECT_GT(place(*shown).width(), 8) << "no picture: " << shown->objectName().toStdString();
        counters += shown->objectName().startsWith("picCounter") ? 1 : 0;
    }
    EXPECT_EQ(counters, 14U) << "six buttons on Board No2 and No3 each, and two on Board No4";
    // The register window, which stands 440 pixels from the left at the start, covers nothing that tells the scan.
    for (const char* name : {"picMON_LED73", "picCPU", "picScanLed"}) {
        const QPoint right = bench().view().mapFromScene(place(part(name)).topRight());
        EXPECT_LT(viewport()->mapTo(&main(), right).x(), 440) << name;
    }
}

// What a click at the very edge of a picture meets.
TEST_F(Bench, every_part_answers_over_its_whole_picture) {
    startBench();
    cmbIOS_LostFocus(machine(), 7);
    fire();
    for (const BenchPart* candidate : bench().view().parts()) {
        // Cables lie over connectors and over their own lower halves; outputs overlap, and a click does nothing there.
        const QString name = candidate->objectName();
        const bool beneath = name.startsWith("picCableDn") || name.startsWith("picBOARD") || name.startsWith("picFConn");
        const bool output = candidate->shown().images == std::string_view("ilsLED_G");
        if (!candidate->isVisible() || !candidate->reactions().any() || beneath || output) {
            continue;
        }
        const QRectF whole = place(*candidate);
        const QPointF middle = whole.center();
        for (const QPointF edge : {QPointF(whole.left(), middle.y()), QPointF(whole.right() - 1, middle.y()),
                                   QPointF(middle.x(), whole.top()), QPointF(middle.x(), whole.bottom() - 1)}) {
            const auto met = bench().view().items(bench().view().mapFromScene(edge));
            const auto first = std::find_if(met.begin(), met.end(), [](const QGraphicsItem* item) {
                return item->acceptedMouseButtons() != Qt::NoButton && dynamic_cast<const BenchPart*>(item) != nullptr;
            });
            EXPECT_TRUE(first != met.end() && dynamic_cast<BenchPart*>(*first) == candidate)
                << name.toStdString() << " at " << edge.x() - whole.x() << ", " << edge.y() - whole.y();
        }
    }
    clickAt(place(part("picPI", 37)).bottomRight() - QPointF(1, 1));
    EXPECT_EQ(machine().diImage[4], 0x20) << "the last pixel of a switch";
}

TEST_F(Bench, toggles_show_their_state) {
    startBench();
    const std::vector<Touched> rows{
        {"picBPSS", 0, true, 3, [&] { return machine().boardClock[clockQDA52] == 1 && labelText("lblPBPSS") == "BPSS-H"; }},
        {"picPI", 37, false, 1, [&] { return machine().diImage[4] == 0x20; }},
        {"picSSA", 1, true, 3, [&] { return machine().picSSA[1].on; }},
        {"picSSB", 2, true, 3, [&] { return machine().picSSB[2].on; }},
        {"picCableUp", 2, false, 2, [&] { return !machine().picBOARD2_RXD[3].plugged && picture("picCableDn", 2) == 3; }},
        {"picCableDn", 1, false, 4, [&] { return !machine().picBOARD2_RXD[1].plugged && picture("picCableUp", 1) == 1; }},
    };
    for (const Touched& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << row.index);
        EXPECT_TRUE(picture(row.name, row.index) == row.before && !row.state());
        for (const bool there : {true, false}) {
            row.twice ? doubleClick(row.name, row.index) : click(row.name, row.index);
            EXPECT_TRUE((picture(row.name, row.index) != row.before) == there && row.state() == there);
        }
        if (row.twice) {
            click(row.name, row.index);
            EXPECT_EQ(picture(row.name, row.index), row.before) << "one click does nothing";
        }
    }
    doubleClick("picBOARD1_RXD", 1);
    EXPECT_TRUE(part("picCableUp", 0).scenePos().y() == 62 && picture("picCableUp", 0) == 2) << "moved, not unplugged";
    doubleClick("picBOARD2_RXD", 0);
    EXPECT_TRUE(picture("picCableDn", 0) == 3 && !visible("picTermR", 1));
}

TEST_F(Bench, held_buttons_stay_down_until_the_mouse_button_comes_up_wherever_it_is) {
    startBench();
    const std::vector<Touched> rows{
        {"picReset", 3, true, 1, [&] { return machine().resetHeld[3]; }},
        {"picReset", 5, true, 1, [&] { return machine().resetHeld52; }},
        {"picReset", 0, true, 1, [&] { return machine().picReset[0].down; }},
        {"picCLR", 1, true, 3, [&] { return machine().clrHeld[2]; }},
        {"picCLR", 4, true, 3, [&] { return machine().clrHeld52; }},
        {"picCounter", 8, false, 1, [&] { return machine().picCounter[8].down; }},
        {"picNoise", 0, false, 1, [&] { return machine().noiseOn; }},
    };
    for (const Touched& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << row.index);
        BenchPart& button = part(row.name, row.index);
        row.twice ? hand().doublePress(button) : hand().press(button);
        EXPECT_TRUE(row.state() && button.shown().number == row.before + 1);
        const QPointF away = outside();
        QMouseEvent move(QEvent::MouseMove, away, viewport()->mapToGlobal(away), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport(), &move);
        fire();
        EXPECT_TRUE(row.state());
        hand().release(outside());
        EXPECT_TRUE(!row.state() && button.shown().number == row.before);
        // By keyboard: as long as the key is down.
        button.setFocus(Qt::TabFocusReason);
        QTest::keyPress(&bench().view(), Qt::Key_Space);
        fire();
        EXPECT_TRUE(row.state());
        QTest::keyRelease(&bench().view(), Qt::Key_Space);
        EXPECT_FALSE(row.state());
    }
    EXPECT_EQ(machine().counterImage[16], 2) << "one pulse a press, by mouse and by key";
    hand().doublePress(part("picReset", 1));
    part("picReset", 1).ungrabMouse();
    EXPECT_FALSE(machine().resetHeld[1]) << "a dialog took the mouse away";
}

TEST_F(Bench, fast_clicks_on_a_switch_or_counter_button_lose_no_press) {
    startBench();
    for (const char* name : {"picPI", "picCounter"}) {
        doubleClick(name, 0);
        doubleClick(name, 0);
        click(name, 0);
    }
    EXPECT_TRUE(machine().picPI[0].level);
    EXPECT_EQ(machine().counterImage[0], 5);
    hand().press(part("picPI", 3));
    hand().release(outside());
    EXPECT_FALSE(machine().picPI[3].level) << "a click that was taken back";
}

// --- width, modes, duplex ------------------------------------------------------------------------------------------------

TEST_F(Bench, width_follows_card_and_panel) {
    startBench();
    const auto setMode = [&](int mode) { choose("cmbIOS", 0, "picIOS", 0, mode); };
    const int height = bench().height();
    doubleClick("picBridge");
    EXPECT_TRUE(width() == 7890 && !visible("picPI", 16));
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
    EXPECT_TRUE(width() == 7890 && bench().height() == height);
    // Outputs are LEDs below the row of inputs; a click on them does nothing.
    EXPECT_EQ(part("picPI", 72).toolTip(), "IO端子接続 LED(緑）");
    EXPECT_EQ(part("picPI", 64).toolTip(), "IO端子接続 入力ディップ・スイッチ");
    click("picPI", 72);
    click("picPI", 64);
    EXPECT_TRUE(machine().diImage[9] == 0 && machine().diImage[8] == 1);
}

TEST_F(Bench, lamp_and_motor_follow_the_output_word) {
    startBench();
    const auto send = [&](int mode, int word) {
        cmbIOS_LostFocus(machine(), mode);
        setMemoryWord(machine(), doBase + 2 * 4, word);
        fire();
    };
    for (const int level : {0, 3, 7}) {
        send(6, 0x40 | level * 8 | 1);
        EXPECT_EQ(picture("imgBelt"), 4 + level);
        EXPECT_TRUE(picture("picPower", 0) == 2 && picture("picPower", 3) == 1 + level % 2);
    }
    const auto pictures = [&] {
        std::vector<std::pair<int, int>> seen;
        for (int step = 0; step < 3; ++step, bench().timMotor().fire()) {
            seen.emplace_back(picture("imgBelt"), picture("picTriangle"));
        }
        return seen;
    };
    send(7, 0x80 | 0x3F);
    EXPECT_EQ(bench().timMotor().interval(), 125);
    EXPECT_EQ(pictures(), (std::vector<std::pair<int, int>>{{1, 1}, {2, 2}, {3, 3}}));
    send(7, 0x40 | 0x20);
    EXPECT_EQ(bench().timMotor().interval(), 550);
    EXPECT_EQ(pictures(), (std::vector<std::pair<int, int>>{{1, 8}, {3, 7}, {2, 6}}));
    hand().doublePress(part("picCLR", 4));
    EXPECT_TRUE(!bench().timMotor().running() && picture("picPower", 5) == 1);
    hand().release(outside());
    send(5, 0x20);
    EXPECT_FALSE(bench().timMotor().running());
}

TEST_F(Bench, duplex_is_asked_for_and_refused_in_a_scan) {
    startBench();
    doubleClick("picJumper", 2);
    EXPECT_TRUE(popupText() == "スキャン中の変更は禁止です。" && questionText().empty());
    doubleClick("picReset", 0);
    doubleClick("picJumper", 2);
    EXPECT_EQ(questionText(), "すべてのボードの通信方式を切り替えます。\nよろしいですか？");
    answerQuestion(Qt::Key_Escape);
    EXPECT_EQ(questionText(), "") << "cancelled, and BCR still agrees";
    doubleClick("picJumper", 0);
    answerQuestion(Qt::Key_Return);
    EXPECT_EQ(questionText(), "設定がＱＤＡ６０のレジスタ設定と一致していません。");
    answerQuestion(Qt::Key_Return);
    for (const std::size_t jumper : {0U, 1U, 2U, 3U}) {
        EXPECT_TRUE(picture("picJumper", jumper) == 2 && labelText("lblHF", jumper) == "JMP-H") << jumper;
    }
    EXPECT_TRUE(visible("picPTR", 4) && !visible("picPTR", 5));
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
        EXPECT_TRUE(chart.isVisible() && chart.chart() == row.chart);
        const QPoint wanted = bench().mapToGlobal(QPoint()) + QPoint(row.left / 15, row.top / 15);
        EXPECT_EQ(chart.frameGeometry().y(), wanted.y());
        const int rightmost = chart.screen()->availableGeometry().right() - chart.width();
        EXPECT_NEAR(chart.frameGeometry().x(), std::min(wanted.x(), rightmost), 6) << "kept on the screen";
    }
}

// What the bench asks of other windows, by the argument of its signal.
TEST_F(Bench, diagrams_are_asked_for_by_their_chip) {
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
    const auto followed = [&](const char* name, const char* picture, int item) {
        choose(name, 0, picture, 0, item);
        return argument(follows);
    };
    EXPECT_EQ(followed("cmbIOS", "picIOS", 7), 4);
    doubleClick("picPWM");
    EXPECT_EQ(argument(wanted), 4);
    // The read dialog is for an 8-bit bus.
    for (const int bus : {1, 3, 2}) {
        EXPECT_EQ(followed("cmbCPUType", "picCPU", bus), 0);
        EXPECT_EQ(isUp(program->memory().readDialog()), bus == 3);
        chooseMemory(frmDumpSel::memoryRead);
    }
}

// --- keyboard, zoom, speed -------------------------------------------------------------------------------------------------

TEST_F(Bench, the_keyboard_reaches_every_part_that_answers) {
    startBench();
    std::set<const BenchPart*> reached;
    for (std::size_t steps = 0; steps < bench().view().parts().size(); ++steps) {
        key(Qt::Key_Tab);
        reached.insert(atWork());
    }
    for (const BenchPart* candidate : bench().view().parts()) {
        EXPECT_EQ(reached.count(candidate) != 0, candidate->isVisible() && candidate->reactions().any())
            << candidate->objectName().toStdString();
    }
    part("picPI", 40).setFocus(Qt::TabFocusReason);
    for (const auto& [arrow, index] :
         {std::pair<Qt::Key, std::size_t>{Qt::Key_Left, 41}, {Qt::Key_Right, 40}, {Qt::Key_Right, 39}}) {
        key(arrow);
        EXPECT_EQ(atWork(), &part("picPI", index));
    }
    for (const auto& [arrow, name] : {std::pair{Qt::Key_Up, "picBPS73(0)"}, {Qt::Key_Down, "picPI(38)"}}) {
        key(arrow);
        EXPECT_EQ(atWork()->objectName().toStdString(), name);
    }
    part("picPI", 39).setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_TRUE(machine().picPI[39].level);
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&bench().view())->focusChild();
    ASSERT_NE(heard, nullptr);
    EXPECT_TRUE(heard->text(QAccessible::Name).startsWith("Board-1 picPI(39)"));
    EXPECT_EQ(heard->text(QAccessible::Value), "ON");
    EXPECT_TRUE(heard->rect().contains(viewport()->mapToGlobal(at(part("picPI", 39)))));
    heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(machine().picPI[39].level);
    part("picSSB", 2).setFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
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
    EXPECT_EQ(bench().combo("cmbBPS73")->pos(),
              bench().view().mapFromScene(place(part("picBPS73")).bottomLeft() - QPointF(0, 4)));
    QTest::keyClick(&bench().view(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(bench().width(), before);
}

TEST_F(Bench, a_firing_that_changes_nothing_repaints_nothing) {
    startBench();
    fire(40);
    QApplication::processEvents();
    EXPECT_EQ(bench().refresh(), 0);
    struct Paints : QObject {
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
