// SPDX-License-Identifier: Apache-2.0
// The windows through which the program speaks: popup, message dialog, start panel, timing chart, and the beep.

#include "boards/views/frmOsiro.h"
#include "tests/views/desk.h"

#include <QScreen>
#include <QSignalSpy>

namespace {

class Speaking : public Desk {
protected:
    Speaking() { start(); }
    frmMessage& popup(const char* text) {
        program->aids().say(Popup{text});
        return *program->aids().message();
    }
};

TEST_F(Speaking, a_popup_stays_two_seconds_below_its_point_and_on_the_screen) {
    frmMessage& message = popup("一つ目");
    Timer& seconds = message.timErase();
    EXPECT_EQ(seconds.interval(), 1000);
    seconds.fire();
    popup("二つ目");
    seconds.fire();
    EXPECT_TRUE(message.isVisible() && message.text() == "二つ目") << "its time starts anew";
    seconds.fire();
    EXPECT_FALSE(message.isVisible() || seconds.running());
    click(popup("三つ目"));
    EXPECT_FALSE(message.isVisible());

    message.popup("短い", {400, 300});
    EXPECT_NEAR(message.geometry().center().x(), 400, 1);
    EXPECT_EQ(message.y(), 300 + 3 + message.height());
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    for (const QPoint corner : {screen.topLeft(), screen.bottomRight()}) {
        message.popup("入力された値が不適切であるため、書き込まれません。", corner);
        EXPECT_TRUE(screen.contains(message.geometry())) << corner.x();
    }
}

TEST_F(Speaking, what_follows_an_answer_runs_once_with_it_and_a_second_warning_waits) {
    frmDialog messages(&main());
    std::string order;
    const auto note = [&](frmDialog::Result result) { order += result == frmDialog::resultOk ? 'o' : 'c'; };
    messages.warningDialog({"一", "", Warning::Kind::okCancel}, [&](frmDialog::Result result) {
        note(result);
        messages.warningDialog({"三"}, note);
    });
    messages.warningDialog({"二", "", Warning::Kind::okCancel}, note);
    EXPECT_EQ(order, "");
    for (const auto& [text, answer] : {std::pair{"一", Qt::Key_Return}, {"二", Qt::Key_Escape}, {"三", Qt::Key_Escape}}) {
        ASSERT_TRUE(messages.isVisible());
        EXPECT_EQ(labelOf(messages, "lblMessage").trimmed(), text);
        QTest::keyClick(&messages, answer);
    }
    EXPECT_FALSE(messages.isVisible());
    EXPECT_EQ(order, "oco") << "a warning that is dismissed has been read";
}

TEST_F(Speaking, the_start_panel_stays_until_the_start_is_done) {
    Machine machine;
    frmVersion panel(machine);
    QSignalSpy closed(&panel, &frmVersion::closed);
    panel.showProcess();
    panel.open();
    EXPECT_EQ(panel.timTimer().interval(), 1000);
    click(panel);
    panel.close();
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.timTimer().interval(), 500) << "it looks again soon";
    machine.startupDone = true;
    panel.timTimer().fire();
    panel.timTimer().fire();
    EXPECT_TRUE(panel.isVisible());
    panel.timTimer().fire();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(Speaking, timing_charts_1_to_8_differ_and_there_are_no_others) {
    frmOsiro chart(nullptr);
    std::vector<QImage> seen;
    for (int index = 1; index <= 8; ++index) {
        chart.initPicture(index);
        seen.push_back(chart.grab().toImage());
        EXPECT_EQ(std::count(seen.begin(), seen.end(), seen.back()), 1) << "chart " << index;
    }
    for (const int outside : {0, 9, -1}) {
        chart.initPicture(outside);
        EXPECT_EQ(chart.chart(), 8);
    }
}

TEST_F(Speaking, no_sound_without_its_file_and_a_beep_all_the_same) {
    EXPECT_FALSE(machine().soundAvailable);
    QSignalSpy beeps(&program->aids(), &AidWindows::beepWanted);
    popup("x");
    program->aids().say(Warning{"x"});
    EXPECT_EQ(beeps.count(), 2);
}

}  // namespace
