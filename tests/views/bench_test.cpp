// SPDX-License-Identifier: Apache-2.0
// The bench under the learner's hands, as far as the tours don't play it: the edges of its pictures, held buttons, the boxes over
// its settings, the walk by keyboard, and what stands beside it.

#include "boards/boardSet.h"
#include "boards/views/frmEditSerial.h"
#include "tests/views/desk.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLineEdit>

#include <set>

namespace {

class Bench : public Desk {
protected:
    QWidget* viewport() { return hand().viewport(); }
    QPoint inView(QPointF place) { return bench().view().mapFromScene(place); }
    static QRectF place(const BenchPart& part) { return part.mapRectToScene(part.shape().boundingRect()); }
    void clickAt(QPointF place) { QTest::mouseClick(viewport(), Qt::LeftButton, {}, inView(place)); }
    void doubleClick(const char* name, std::size_t index = 0) { hand().doubleClick(part(name, index)); }
    void walkTo(const char* name, std::size_t index = 0) { part(name, index).setFocus(Qt::TabFocusReason); }
    BenchPart* atWork() { return dynamic_cast<BenchPart*>(bench().view().scene()->focusItem()); }

    const QPointF outside{440, 300};
};

// What a click at the very edge of a picture meets.
TEST_F(Bench, every_part_answers_over_its_whole_picture) {
    startAtBench();
    play("dblclick picIOS ; pick cmbIOS = 7 DI= 4bit DO= 4bit & PWM + Counter ; wait 0.1");
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
        const QPointF top(middle.x(), whole.top());
        const QPointF left(whole.left(), middle.y());
        for (const QPointF edge : {top, left, top + QPointF(0, whole.height() - 1), left + QPointF(whole.width() - 1, 0)}) {
            const auto met = bench().view().items(inView(edge));
            const auto first = std::find_if(met.begin(), met.end(), [](const QGraphicsItem* item) {
                return item->acceptedMouseButtons() != Qt::NoButton && dynamic_cast<const BenchPart*>(item) != nullptr;
            });
            EXPECT_TRUE(first != met.end() && dynamic_cast<BenchPart*>(*first) == candidate)
                << name.toStdString() << " at " << edge.x() - whole.x() << ", " << edge.y() - whole.y();
        }
    }
}

TEST_F(Bench, held_buttons_stay_down_until_the_mouse_button_comes_up_wherever_it_is) {
    startAtBench();
    using Button = std::pair<const char*, std::size_t>;
    for (const auto& [name, index] : {Button{"picReset", 3}, Button{"picReset", 5}, Button{"picReset", 0}, Button{"picCLR", 1},
                                      Button{"picCLR", 4}, Button{"picCounter", 8}, Button{"picNoise", 0}}) {
        SCOPED_TRACE(testing::Message() << name << index);
        BenchPart& button = part(name, index);
        const int released = button.shown().number;
        const auto down = [&] { return button.shown().number == released + 1; };
        button.reactions().heldByDouble ? hand().doublePress(button) : hand().press(button);
        EXPECT_TRUE(down());
        const QPointF away = inView(outside);
        QMouseEvent move(QEvent::MouseMove, away, viewport()->mapToGlobal(away), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport(), &move);
        fire();
        EXPECT_TRUE(down());
        hand().release(inView(outside));
        EXPECT_EQ(button.shown().number, released);
        walkTo(name, index);
        QTest::keyPress(&bench().view(), Qt::Key_Space);
        fire();
        EXPECT_TRUE(down()) << "as long as the key is";
        QTest::keyRelease(&bench().view(), Qt::Key_Space);
        EXPECT_EQ(button.shown().number, released);
    }
    EXPECT_EQ(machine().counterImage[16], 2) << "one pulse a press, by mouse and by key";
    hand().doublePress(part("picReset", 1));
    part("picReset", 1).ungrabMouse();
    EXPECT_FALSE(machine().resetHeld[1]) << "a dialog took the mouse away";
    hand().press(part("picPI", 3));
    hand().release(inView(outside));
    EXPECT_FALSE(machine().picPI[3].level) << "a click that was taken back";
}

// --- boxes -------------------------------------------------------------------------------------------------------------------

TEST_F(Bench, a_box_commits_when_it_had_the_focus) {
    startAtBench();
    BenchCombo& box = *bench().combo("cmbSA", saQDA73);
    const auto pointer = [this](std::size_t index) { return part("picSA", index).cursor().pixmap().toImage(); };
    const QImage closed = pointer(2);
    doubleClick("picSA", 2);
    EXPECT_TRUE(box.isVisible() && !box.hasFocus() && box.currentText() == "0x01");
    EXPECT_TRUE(pointer(2) != closed && pointer(3) != closed) << "both switches of the board";
    box.setCurrentIndex(8);
    hand().click(part("picSA", 3));
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(machine().boardSA[saQDA73], 1) << "it never had the focus";
    EXPECT_EQ(pointer(2), closed);

    doubleClick("picSA", 2);
    box.setFocus(Qt::MouseFocusReason);
    box.showPopup();
    EXPECT_TRUE(box.isOpen()) << "a list that drops down is no commit";
    EXPECT_EQ(box.view()->font(), box.font());
    EXPECT_EQ(box.view()->viewport()->height() / box.view()->sizeHintForRow(0), 16) << "at the box, not over the whole screen";
    box.hidePopup();
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(machine().boardSA[saQDA73], 1) << "on the way to another item";
    bench().view().setFocus();
    EXPECT_EQ(machine().boardSA[saQDA73], 2) << "a click elsewhere";
    play("says ボード1と、ボード3のＳＡが重複しています｡ ; ok ; silent ; dblclick picSA 3");
    box.setFocus(Qt::MouseFocusReason);
    box.showPopup();
    const QRect same = box.view()->visualRect(box.model()->index(1, 0));
    QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, same.center());
    play("says ボード1と、ボード3のＳＡが重複しています｡ ; ok");  // the same item commits again

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

TEST_F(Bench, one_click_on_its_picture_closes_a_box_wherever_it_hits) {
    startAtBench();
    int boxes = 0;
    for (const char* zoom : {"key Ctrl+-", "key Ctrl+0"}) {
        play(zoom);
        for (const BenchPart* picture : bench().view().parts()) {
            SCOPED_TRACE(picture->objectName().toStdString() + " after " + zoom);
            if (!picture->reactions().click || !picture->reactions().doubleClick) {
                continue;
            }
            const QRectF whole = place(*picture);
            for (const qreal down : {2.0, whole.height() - 6}) {
                hand().doubleClick(*picture);
                const auto all = bench().view().findChildren<BenchCombo*>();
                const auto open = std::find_if(all.begin(), all.end(), [](const BenchCombo* box) { return box->isOpen(); });
                ASSERT_NE(open, all.end());
                EXPECT_NEAR((*open)->y(), inView(whole.bottomLeft()).y(), 5);
                clickAt(whole.topLeft() + QPointF(2, down));
                EXPECT_FALSE((*open)->isOpen());
                ++boxes;
            }
        }
    }
    EXPECT_EQ(boxes, 2 * 2 * 12) << "six switches of addresses and six settings";
    EXPECT_EQ(bench().view().zoom(), 1);
}

TEST_F(Bench, the_keyboard_is_where_it_was_when_a_box_has_gone) {
    startAtBench();
    play("dblclick picSA 2 ; pick cmbSA 1 = 0x30");
    EXPECT_EQ(atWork(), &part("picSA", 2)) << "not on the first cable";
    const QRect above(inView(place(part("picSA", 2)).topLeft()) - QPoint(0, 2), QSize(30, 2));
    const auto ringed = [&] {
        return holds(viewport()->grab(above).toImage(), [](QColor colour) { return colour.red() > colour.blue() + 60; });
    };
    EXPECT_FALSE(part("picSA", 2).byKeyboard() || ringed()) << "no ring after mere mouse use";
    walkTo("picSA", 2);
    key(Qt::Key_Return);
    BenchCombo& box = *bench().combo("cmbSA", saQDA73);
    QTest::keyClick(&box, Qt::Key_Home);
    machine().boardSA[saQDA73] = 0;
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(machine().boardSA[saQDA73], 0x30) << "Escape commits as any loss of the focus, what was there before";
    EXPECT_TRUE(atWork() == &part("picSA", 2) && part("picSA", 2).byKeyboard() && ringed());

    // Some other widget had it.
    QLineEdit elsewhere(&main());
    elsewhere.show();
    doubleClick("picMode");
    bench().view().scene()->setFocusItem(nullptr);
    elsewhere.setFocus();
    bench().combo("cmbMode")->setFocus();
    key(Qt::Key_Return);
    play("ok");
    EXPECT_TRUE(elsewhere.hasFocus());
    elsewhere.hide();
    EXPECT_EQ(atWork(), nullptr) << "it goes to none of the parts";
    key(Qt::Key_Return);
    EXPECT_TRUE(machine().picBOARD2_RXD[0].plugged) << "no Return for nobody pulls the first cable";
}

// --- keyboard and ear --------------------------------------------------------------------------------------------------------

TEST_F(Bench, the_keyboard_reaches_every_part_that_answers) {
    startAtBench();
    std::set<const BenchPart*> reached;
    for (std::size_t steps = 0; steps < bench().view().parts().size(); ++steps) {
        key(Qt::Key_Tab);
        reached.insert(atWork());
    }
    for (const BenchPart* candidate : bench().view().parts()) {
        EXPECT_EQ(reached.count(candidate) != 0, candidate->isVisible() && candidate->reactions().any())
            << candidate->objectName().toStdString();
    }
    walkTo("picPI", 40);
    play(
        "key Left ; label keyboard = picPI 41 ; key Right ; key Right ; label keyboard = picPI 39 ; "
        "key Up ; label keyboard = picBPS73 0 ; key Down ; label keyboard = picPI 38 ; key Space ; image picPI 38 = 2");
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&bench().view())->focusChild();
    ASSERT_NE(heard, nullptr);
    EXPECT_TRUE(heard->text(QAccessible::Name).startsWith("Board-1 picPI(38)"));
    EXPECT_EQ(heard->text(QAccessible::Value), "ON");
    EXPECT_TRUE(heard->rect().contains(viewport()->mapToGlobal(hand().at(part("picPI", 38)))));
    heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    walkTo("picSSB", 2);
    play("image picPI 38 = 1 ; key Return ; image picSSB 2 = 4");  // Return stands for the double click
}

// --- the dialog of the serial input --------------------------------------------------------------------------------------------

TEST_F(Bench, a_serial_word_goes_out_as_it_was_typed_last) {
    startAtBench();
    doubleClick("picSDI", 1);
    frmEditSerial& serial = *program->bench().serialDialog();
    // Set, Start, Cancel: + for one that can be pressed, * for the default.
    const auto buttons = [&serial] {
        std::string text;
        for (const auto action : {frmEditSerial::actionSet, frmEditSerial::actionStart, frmEditSerial::actionCancel}) {
            const QPushButton& button = serial.cmdAction(action);
            text += button.isEnabled() ? button.isDefault() ? '*' : '+' : '-';
        }
        return text;
    };
    // On a screen of 1280 the dialog stands at its right edge, and the LED of the cascade card is still seen beside it.
    EXPECT_LT(bench().contentsMargins().left() + place(part("picSE", 1)).right(), 1280 - serial.frameGeometry().width());
    EXPECT_EQ(labelOf(serial, "lblAdr") + buttons().c_str(), "2*-+");
    type("5A3C");
    const QImage before = serial.picDREQ_Data().grab().toImage();
    key(Qt::Key_Return);
    EXPECT_NE(serial.picDREQ_Data().grab().toImage(), before);
    EXPECT_EQ(buttons(), "+*+");
    key(Qt::Key_Home);
    type("1234");  // under the waveform of the word before
    key(Qt::Key_Return);
    EXPECT_EQ(buttons(), "---");
    EXPECT_EQ(serial.timEnter().interval(), 100);
    play("shown picSerialInt 1");
    for (int firing = 1; firing <= 32; ++firing) {
        EXPECT_TRUE(serial.isVisible()) << "three seconds and a little";
        serial.timEnter().fire();
    }
    EXPECT_FALSE(serial.isVisible() || serial.timEnter().running());
    EXPECT_EQ(machine().serialData[2] | machine().serialData[3] << 8, 0x1234);
    play("hidden picSerialInt 1 ; image picSE 1 = 2 ; dblclick picSDI 1 ; says SEがローレベル(LED点灯)中は入力できません。");
}

}  // namespace
