// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchCombos.h"

#include "boards/boardSet.h"
#include "tests/views/benchFixture.h"

#include <QLineEdit>

namespace {

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
    key(Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Home);
    machine().boardSA[saQDA73] = 0;
    QTest::keyClick(&box, Qt::Key_Escape);
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
        EXPECT_FALSE(row.state()) << row.box;
        choose(row.box, row.index, row.picture, row.pictureIndex, row.item);
        EXPECT_TRUE(row.state()) << row.box;
    }
    answerQuestion(Qt::Key_Return);
    // One click on the picture closes the box, wherever it is hit.
    for (const Row& row : rows) {
        const QRectF whole = place(part(row.picture, row.pictureIndex));
        for (const qreal down : {2.0, whole.height() - 6}) {
            doubleClick(row.picture, row.pictureIndex);
            EXPECT_TRUE(bench().combo(row.box, row.index)->isOpen()) << row.box;
            const QPointF hit = whole.topLeft() + QPointF(2, down);
            EXPECT_EQ(viewport()->childAt(bench().view().mapFromScene(hit)), nullptr) << row.box << " covers it";
            clickAt(hit);
            EXPECT_FALSE(bench().combo(row.box, row.index)->isOpen()) << row.box;
        }
    }
    doubleClick("picClock", 2);
    EXPECT_EQ(labelText("lblClock", 2), "48MHz") << "a fixed clock";
}

}  // namespace
