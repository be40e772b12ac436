#include "boards/views/frmHard.h"

#include "access/views/frmMemoryRead.h"
#include "boards/portPins.h"
#include "boards/views/BenchCombo.h"
#include "boards/views/BenchLabel.h"
#include "boards/views/frmOsiro.h"
#include "memwin/views/MemoryWindows.h"
#include "tests/views/BenchHand.h"
#include "tests/views/startedProgram.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QGraphicsSimpleTextItem>
#include <QLineEdit>
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
    BenchPart* atWork() { return dynamic_cast<BenchPart*>(bench().view().scene()->focusItem()); }
    // Opens a box at its picture and clicks an item of its list.
    BenchCombo& choose(const char* name, std::size_t index, const char* picture, std::size_t pictureIndex, int item) {
        BenchCombo& box = *bench().combo(name, index);
        doubleClick(picture, pictureIndex);
        EXPECT_TRUE(box.isVisible()) << name;
        box.setFocus(Qt::MouseFocusReason);
        box.showPopup();
        const QModelIndex row = box.model()->index(item, 0);
        box.view()->scrollTo(row);
        QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, box.view()->visualRect(row).center());
        EXPECT_FALSE(box.isVisible()) << name;
        return box;
    }
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
    EXPECT_FALSE(visible("picPWM"));
    std::string captions;
    for (const LabelRow& row : benchLabels()) {
        const BenchLabel& label = *bench().label(row.name, row.index);
        captions += label.isVisible() ? label.text().toStdString() + " " : "";
    }
    EXPECT_EQ(captions,
              "Center-Board Board-1 Board-2 Board-3 Board-4 QDA60 QDA73 QDA41 QDA41 QDA52 48MHz 48MHz 48MHz 48MHz "
              "JMP-F JMP-F JMP-F JMP-F Rt Rt BPSS-L SSA SSB STB2 ")
        << "the terminators at the center's first connector and on Board No4";
    for (const std::size_t connector : {0U, 1U}) {
        const auto* print = dynamic_cast<QGraphicsSimpleTextItem*>(part("picBOARD1_RXD", connector).childItems().value(0));
        ASSERT_NE(print, nullptr);
        EXPECT_TRUE(print->isVisible() && print->text() == QStringLiteral("RXD%1").arg(connector + 1));
    }
    // All pictures exist; six counter buttons on Board No2 and No3 each, and two on Board No4.
    std::size_t counters = 0;
    for (const BenchPart* shown : bench().view().parts()) {
        EXPECT_GT(shown->shape().boundingRect().width(), 8) << shown->objectName().toStdString();
        counters += shown->objectName().startsWith("picCounter") ? 1 : 0;
    }
    EXPECT_EQ(counters, 14U);
}

// What a click at the very edge of a picture meets.
TEST_F(Bench, every_part_answers_over_its_whole_picture) {
    startBench();
    for (const int mode : {5, 7}) {
        cmbIOS_LostFocus(machine(), mode);
        fire();
        for (const BenchPart* candidate : bench().view().parts()) {
            const QRectF place = candidate->mapRectToScene(candidate->shape().boundingRect());
            // Cables lie over connectors and over their own lower halves; outputs overlap, and a click does nothing there.
            const QString name = candidate->objectName();
            const bool beneath = name.startsWith("picCableDn") || name.startsWith("picBOARD") || name.startsWith("picFConn");
            const bool output = candidate->shown().images == std::string_view("ilsLED_G");
            if (!candidate->isVisible() || !candidate->reactions().any() || beneath || output) {
                continue;
            }
            const QPointF last = place.bottomRight() - QPointF(1, 1);
            for (const QPointF edge : {QPointF(place.left(), place.center().y()), QPointF(last.x(), place.center().y()),
                                       QPointF(place.center().x(), place.top()), QPointF(place.center().x(), last.y())}) {
                const auto met = bench().view().items(bench().view().mapFromScene(edge));
                const auto first = std::find_if(met.begin(), met.end(), [](const QGraphicsItem* item) {
                    return item->acceptedMouseButtons() != Qt::NoButton && dynamic_cast<const BenchPart*>(item) != nullptr;
                });
                ASSERT_NE(first, met.end()) << candidate->objectName().toStdString();
                EXPECT_EQ(dynamic_cast<BenchPart*>(*first), candidate)
                    << candidate->objectName().toStdString() << " at " << edge.x() - place.x() << ", " << edge.y() - place.y();
            }
        }
    }
    QTest::mouseClick(viewport(), Qt::LeftButton, {},
                      bench().view().mapFromScene(part("picPI", 37).scenePos() + QPointF(11, 25)));
    EXPECT_EQ(machine().diImage[4], 0x20) << "the last pixel of a switch";
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
    EXPECT_EQ(box.view()->viewport()->height() / box.view()->sizeHintForRow(0), 16) << "at the box, not over the whole screen";
    box.hidePopup();
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(machine().boardSA[saQDA73], 1) << "on the way to another item";
    click("picScanLed");
    bench().view().setFocus();
    EXPECT_EQ(machine().boardSA[saQDA73], 2) << "a click elsewhere";
    EXPECT_EQ(picture("picSA", 3), 3);
    EXPECT_EQ(questionText(), "ボード1と、ボード3のＳＡが重複しています｡正常な通信が行えません｡ ");
    answerQuestion(Qt::Key_Return);
    choose("cmbSA", saQDA73, "picSA", 3, 1);
    EXPECT_NE(questionText(), "") << "the same item commits again";
    answerQuestion(Qt::Key_Return);

    // The wheel turns the box at work, and scrolls the bench over any other.
    BenchCombo& rate = *bench().combo("cmbBPS73");
    const auto wheel = [&rate] {
        QWheelEvent turn({5, 5}, rate.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&rate, &turn);
        return rate.currentIndex();
    };
    doubleClick("picBPS73");
    EXPECT_EQ(wheel(), 0);
    rate.setFocus();
    EXPECT_EQ(wheel(), 1);
}

TEST_F(Bench, the_keyboard_is_where_it_was_when_a_box_has_gone) {
    startBench();
    BenchCombo& box = choose("cmbSA", saQDA73, "picSA", 2, 0x2F);
    EXPECT_EQ(atWork(), &part("picSA", 2)) << "not on the first cable";
    EXPECT_FALSE(part("picSA", 2).byKeyboard()) << "no ring after mere mouse use";
    part("picSA", 2).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&bench().view(), Qt::Key_Return);
    EXPECT_TRUE(box.isOpen());
    QTest::keyClick(&box, Qt::Key_Home);
    machine().boardSA[saQDA73] = 0;
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_FALSE(box.isOpen());
    EXPECT_EQ(machine().boardSA[saQDA73], 0x30) << "Escape commits as any loss of the focus, what was there before";
    EXPECT_TRUE(atWork() == &part("picSA", 2) && part("picSA", 2).byKeyboard());

    // Some other widget had it.
    QLineEdit elsewhere(&main());
    elsewhere.show();
    doubleClick("picMode");
    bench().view().scene()->setFocusItem(nullptr);
    elsewhere.setFocus();
    bench().combo("cmbMode")->setFocus();
    QTest::keyClick(bench().combo("cmbMode"), Qt::Key_Return);
    answerQuestion(Qt::Key_Return);
    EXPECT_TRUE(elsewhere.hasFocus());
    // A window that goes away with the keyboard leaves it to none of the parts: Return would pull the first cable.
    elsewhere.hide();
    EXPECT_EQ(atWork(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(machine().picBOARD2_RXD[0].plugged);
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
    const auto digits = [&](std::size_t board) {
        return 16 * (picture("picSA", 2 * board) - 1) + picture("picSA", 2 * board + 1) - 1;
    };
    const std::vector<Row> rows{
        {"cmbSA", saQDA41, "picSA", 1, 0x0F, [&] { return machine().boardSA[saQDA41] == 0x10 && digits(saQDA41) == 0x10; }},
        {"cmbSA", saQDA73, "picSA", 2, 0x20, [&] { return machine().boardSA[saQDA73] == 0x21 && digits(saQDA73) == 0x21; }},
        {"cmbSA", saQDA52, "picSA", 4, 0x3E, [&] { return machine().boardSA[saQDA52] == 0x3F && digits(saQDA52) == 0x3F; }},
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
        EXPECT_FALSE(row.state());
        choose(row.box, row.index, row.picture, row.pictureIndex, row.item);
        EXPECT_TRUE(row.state());
    }
    answerQuestion(Qt::Key_Return);
    // One click on the picture closes the box, wherever it is hit.
    for (const Row& row : rows) {
        const QRectF place =
            part(row.picture, row.pictureIndex).mapRectToScene(part(row.picture, row.pictureIndex).shape().boundingRect());
        for (const qreal down : {2.0, place.height() - 6}) {
            doubleClick(row.picture, row.pictureIndex);
            EXPECT_TRUE(bench().combo(row.box, row.index)->isOpen());
            const QPoint hit = bench().view().mapFromScene(QPointF(place.center().x(), place.top() + down));
            EXPECT_EQ(viewport()->childAt(hit), nullptr) << row.box;
            QTest::mouseClick(viewport(), Qt::LeftButton, {}, hit);
            EXPECT_FALSE(bench().combo(row.box, row.index)->isOpen()) << row.box;
        }
    }
    doubleClick("picClock", 2);
    EXPECT_EQ(labelText("lblClock", 2), "48MHz") << "a fixed clock";
}

// --- width, modes, duplex ------------------------------------------------------------------------------------------------

TEST_F(Bench, width_follows_card_and_panel) {
    startBench();
    const auto setMode = [&](int mode) { choose("cmbIOS", 0, "picIOS", 0, mode); };
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
        EXPECT_TRUE(picture("picPower", 0) == 2 && picture("picPower", 3) == 1 + level % 2);
    }
    cmbIOS_LostFocus(machine(), 7);
    const auto pictures = [&] {
        std::vector<std::pair<int, int>> seen;
        for (int step = 0; step < 3; ++step) {
            seen.emplace_back(picture("imgBelt"), picture("picTriangle"));
            bench().timMotor().fire();
        }
        return seen;
    };
    send(0x80 | 0x3F);
    EXPECT_EQ(bench().timMotor().interval(), 125);
    EXPECT_EQ(pictures(), (std::vector<std::pair<int, int>>{{1, 1}, {2, 2}, {3, 3}}));
    send(0x40 | 0x20);
    EXPECT_EQ(bench().timMotor().interval(), 550);
    EXPECT_EQ(pictures(), (std::vector<std::pair<int, int>>{{1, 8}, {3, 7}, {2, 6}}));
    doublePress(part("picCLR", 4));
    EXPECT_TRUE(!bench().timMotor().running() && picture("picPower", 5) == 1);
    release(outside());
    fire();
    EXPECT_EQ(bench().timMotor().interval(), 550) << "the word comes back with the next visit";
    cmbIOS_LostFocus(machine(), 5);
    fire();
    EXPECT_FALSE(bench().timMotor().running());
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
    const auto followed = [&](const char* name, const char* picture, int item) {
        choose(name, 0, picture, 0, item);
        return argument(follows);
    };
    EXPECT_EQ(followed("cmbIOS", "picIOS", 7), 4);
    doubleClick("picPWM");
    EXPECT_EQ(argument(wanted), 4);
    EXPECT_EQ(followed("cmbCPUType", "picCPU", 1), 0);
    // The bus type reaches the memory windows; the read dialog goes with an 8-bit bus.
    chooseMemory(frmDumpSel::memoryRead);
    EXPECT_EQ(followed("cmbCPUType", "picCPU", 3), 0);
    EXPECT_TRUE(isUp(program->memory().readDialog()));
    EXPECT_EQ(followed("cmbCPUType", "picCPU", 2), 0);
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
        EXPECT_EQ(reached.count(candidate) != 0, candidate->isVisible() && candidate->reactions().any())
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
    const QRect box = bench().combo("cmbBPS73")->geometry();
    EXPECT_TRUE(box.intersects(bench().view().mapFromScene(part("picBPS73").sceneBoundingRect()).boundingRect()));
    EXPECT_FALSE(box.contains(at(part("picBPS73"))));
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
