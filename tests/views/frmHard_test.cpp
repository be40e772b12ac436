#include "boards/views/frmHard.h"

#include "boards/portPins.h"
#include "boards/views/BenchCombo.h"
#include "boards/views/BenchLabel.h"
#include "boards/views/frmOsiro.h"
#include "platform/screen.h"
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
    std::string labelText(const char* name, std::size_t index = 0) { return bench().label(name, index)->text().toStdString(); }
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
    // A dialog that takes the mouse away lets the button go.
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

TEST_F(Bench, every_combo_box_opens_at_its_picture_and_closes_by_a_click_on_it) {
    startBench();
    struct Row {
        const char* box;
        std::size_t index;
        const char* picture;
        std::size_t pictureIndex;
        int item;
        std::function<int()> setting;
    };
    for (const Row& row : {Row{"cmbSA", saQDA41, "picSA", 1, 0x0F, [&] { return machine().boardSA[saQDA41] - 1; }},
                           {"cmbSA", saQDA52, "picSA", 4, 0x3E, [&] { return machine().boardSA[saQDA52] - 1; }},
                           {"cmbClock41", 0, "picClock", 1, 2, [&] { return machine().boardClock[clockQDA41]; }},
                           {"cmbClock52", 0, "picClock", 3, 1, [&] { return machine().boardClock[clockQDA52]; }},
                           {"cmbBPS73", 0, "picBPS73", 0, 3, [&] { return machine().boardClock[clockQDA73]; }},
                           {"cmbCPUType", 0, "picCPU", 0, 3, [&] { return machine().cpuType; }},
                           {"cmbIOS", 0, "picIOS", 0, 7, [&] { return machine().ios52; }}}) {
        SCOPED_TRACE(row.box);
        choose(row.box, row.index, row.picture, row.pictureIndex, row.item);
        EXPECT_EQ(row.setting(), row.item);
        const QRectF place =
            part(row.picture, row.pictureIndex).mapRectToScene(part(row.picture, row.pictureIndex).shape().boundingRect());
        for (const qreal down : {2.0, place.height() - 6}) {
            doubleClick(row.picture, row.pictureIndex);
            EXPECT_TRUE(bench().combo(row.box, row.index)->isOpen());
            EXPECT_EQ(bench().combo(row.box, row.index)->currentIndex(), row.item);
            const QPoint hit = bench().view().mapFromScene(QPointF(place.center().x(), place.top() + down));
            EXPECT_EQ(viewport()->childAt(hit), nullptr);
            QTest::mouseClick(viewport(), Qt::LeftButton, {}, hit);
            EXPECT_FALSE(bench().combo(row.box, row.index)->isOpen());
        }
    }
    choose("cmbMode", 0, "picMode", 0, 2);
    EXPECT_EQ(machine().mode52, 0) << "refused";
    EXPECT_TRUE(questionText().starts_with("ＱＤＡ５２"));
}

// --- other windows -------------------------------------------------------------------------------------------------------

TEST_F(Bench, timing_charts_stand_beside_their_port) {
    startBench();
    struct Row {
        const char* name;
        std::size_t index;
        int chart, left, top;
    };
    for (const Row& row : {Row{"picSSA", 0, 2, 7900, 7100}, Row{"picSSB", 0, 4, 7900, 7100}, Row{"picSTB", 3, 1, 13300, 7100},
                           Row{"picSSA", 2, 6, 7900, 4000}, Row{"picSTB", 4, 6, 7900, 4000}}) {
        SCOPED_TRACE(testing::Message() << row.name << row.index);
        doubleClick(row.name, row.index);
        frmOsiro& chart = *program->bench().timingChartWindow();
        EXPECT_TRUE(chart.isVisible());
        EXPECT_EQ(chart.chart(), row.chart);
        const QPoint wanted = bench().mapToGlobal(QPoint()) + QPoint(row.left / 15, row.top / 15);
        EXPECT_EQ(chart.frameGeometry().topLeft(), keptOnScreen({wanted, chart.frameGeometry().size()}).topLeft());
    }
}

// A diagram goes with its card and follows its settings.
TEST_F(Bench, chips_ask_for_their_diagram) {
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
    choose("cmbIOS", 0, "picIOS", 0, 7);
    EXPECT_EQ(argument(follows), 4);
    doubleClick("picPWM");
    EXPECT_EQ(argument(wanted), 4);
    choose("cmbCPUType", 0, "picCPU", 0, 1);
    EXPECT_EQ(argument(follows), 0);
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
    EXPECT_TRUE(heard->state().focused);
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

}  // namespace
