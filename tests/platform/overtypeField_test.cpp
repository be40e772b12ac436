// SPDX-License-Identifier: Apache-2.0
#include "platform/OvertypeField.h"

#include "platform/Timer.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class Overtyping : public testing::Test {
protected:
    Overtyping() {
        field.setMaxLength(4);
        field.setValue("1234");
        field.show();
        field.setFocus();
    }

    // The value with its selected character in brackets.
    QString shown() {
        QString text = field.text();
        text.insert(field.selectionStart() + static_cast<int>(field.selectedText().size()), ']');
        return text.insert(field.selectionStart(), '[');
    }

    OvertypeField field{OvertypeField::Case::upper};
};

TEST_F(Overtyping, a_digit_takes_the_place_of_the_selected_one_and_nothing_is_ever_deleted) {
    struct Row {
        QKeySequence keys;
        const char* shown;
    };
    for (const Row& row :
         {Row{Qt::Key_Left, "[1]234"},        Row{Qt::Key_Right, "1[2]34"},     Row{Qt::Key_Right, "12[3]4"},
          Row{Qt::Key_Backspace, "1[2]34"},   Row{Qt::Key_Delete, "1[2]34"},    Row{Qt::Key_Up, "1[2]34"},
          Row{Qt::Key_Down, "1[2]34"},        Row{Qt::Key_PageUp, "1[2]34"},    Row{Qt::Key_PageDown, "1[2]34"},
          Row{Qt::Key_End, "123[4]"},         Row{Qt::Key_Right, "123[4]"},     Row{Qt::Key_Home, "[1]234"},
          Row{Qt::Key_Backspace, "[1]234"},   Row{QKeySequence::Cut, "[1]234"}, Row{QKeySequence::SelectAll, "[1]234"},
          Row{QKeySequence::Undo, "[1]234"},  Row{Qt::Key_A, "A[2]34"},         Row{Qt::Key_G, "A[2]34"},
          Row{Qt::ALT | Qt::Key_B, "A[2]34"}, Row{Qt::Key_Space, "A[2]34"},     Row{Qt::Key_0, "A0[3]4"},
          Row{Qt::Key_F, "A0F[4]"},           Row{Qt::Key_9, "A0F[9]"},         Row{Qt::Key_B, "A0F[B]"}}) {
        QTest::keySequence(&field, row.keys);
        EXPECT_EQ(shown(), row.shown) << row.keys.toString().toStdString();
    }
}

TEST_F(Overtyping, a_click_selects_the_character_at_the_caret) {
    QTest::mouseClick(&field, Qt::LeftButton, {}, {field.width() - 3, field.height() / 2});
    EXPECT_EQ(shown(), "123[4]");
    QTest::mouseDClick(&field, Qt::LeftButton, {}, {1, field.height() / 2});
    EXPECT_EQ(shown(), "[1]234");
    QTest::mousePress(&field, Qt::LeftButton, {}, {1, field.height() / 2});
    QTest::mouseMove(&field, {field.width() - 3, field.height() / 2});
    QTest::mouseRelease(&field, Qt::LeftButton, {}, {field.width() - 3, field.height() / 2});
    EXPECT_EQ(field.selectedText().size(), 1) << "dragging selects no more than one";
}

TEST_F(Overtyping, a_paste_is_typed) {
    QApplication::clipboard()->setText("0x5a3c9");
    QTest::keySequence(&field, QKeySequence::Paste);
    EXPECT_EQ(field.text(), "05A9");
    EXPECT_EQ(field.selectedText().size(), 1);
}

TEST(OvertypingAsTyped, keeps_the_case) {
    OvertypeField field(OvertypeField::Case::asTyped);
    field.setMaxLength(3);
    field.setValue("???");
    QTest::keyClicks(&field, "aB");
    EXPECT_EQ(field.text(), "aB?");
}

TEST(PlatformTimer, interval_0_is_silence) {
    Timer timer;
    timer.setInterval(20);
    EXPECT_TRUE(timer.running());
    timer.setEnabled(false);
    timer.setInterval(30);
    EXPECT_FALSE(timer.running());
    timer.setEnabled(true);
    EXPECT_TRUE(timer.running());
    timer.setInterval(0);
    EXPECT_FALSE(timer.running());
}

}  // namespace
