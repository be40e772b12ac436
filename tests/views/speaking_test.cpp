// The windows through which the program speaks: popup, message dialog, start panel, timing chart.

#include "boards/views/frmOsiro.h"
#include "tests/views/startedProgram.h"

#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>

namespace {

using Speaking = StartedProgram;

TEST_F(Speaking, a_popup_stays_two_seconds_and_the_next_one_takes_its_place) {
    start();
    popup("一つ目");
    Timer& seconds = program->aids().message()->timErase();
    EXPECT_EQ(popupText(), "一つ目");
    EXPECT_EQ(seconds.interval(), 1000);
    seconds.fire();
    popup("二つ目");
    seconds.fire();
    EXPECT_EQ(popupText(), "二つ目") << "its time starts anew";
    seconds.fire();
    EXPECT_EQ(popupText(), "");
    EXPECT_FALSE(seconds.running());

    popup("三つ目");
    QTest::mouseClick(program->aids().message(), Qt::LeftButton);
    EXPECT_EQ(popupText(), "");
}

TEST_F(Speaking, a_popup_stands_below_its_point_and_on_the_screen) {
    start();
    popup("短い");
    frmMessage& message = *program->aids().message();
    message.popup("短い", {400, 300});
    EXPECT_NEAR(message.geometry().center().x(), 400, 1);
    EXPECT_EQ(message.y(), 300 + 3 + message.height());
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    for (const QPoint corner : {screen.topLeft(), screen.topRight(), screen.bottomLeft(), screen.bottomRight()}) {
        message.popup("入力された値が不適切であるため、書き込まれません。", corner);
        EXPECT_TRUE(screen.contains(message.geometry())) << corner.x() << ", " << corner.y();
    }
}

TEST_F(Speaking, the_dialog_holds_its_text_and_its_buttons) {
    start();
    frmDialog messages(&main());
    const auto button = [&](int index) { return messages.findChild<QPushButton*>(QStringLiteral("cmdAction%1").arg(index)); };
    messages.warningDialog({"短い"});
    EXPECT_EQ(messages.width(), 404);
    EXPECT_NEAR(button(0)->geometry().center().x(), 202, 1);
    EXPECT_FALSE(button(1)->isVisible());
    button(0)->click();
    messages.warningDialog({std::string(300, 'w'), "切り替え確認", Warning::Kind::okCancel});
    const QRect text = messages.findChild<QLabel*>("lblMessage")->geometry();
    EXPECT_EQ(text.left(), messages.width() - text.right() - 1);
    EXPECT_EQ(text.width(), messages.width() - 32);
    EXPECT_EQ(messages.height() - text.height(), 30 + 46);
    EXPECT_EQ(button(0)->geometry().bottom() + 1, messages.height() - 8);
    EXPECT_EQ(button(1)->x() - messages.width() / 2, messages.width() / 2 - button(0)->geometry().right() - 1);
    const QRect owner = main().frameGeometry();
    EXPECT_TRUE(messages.width() > owner.width() || (messages.geometry().center() - owner.center()).manhattanLength() < 3);
}

TEST_F(Speaking, what_follows_an_answer_runs_once_with_it) {
    start();
    frmDialog messages(&main());
    std::vector<int> answers;
    const auto note = [&](frmDialog::Result result) { answers.push_back(result); };
    const Warning question{"よろしいですか？", "切り替え確認", Warning::Kind::okCancel};

    messages.warningDialog(question, note);
    EXPECT_TRUE(answers.empty()) << "nothing waits";
    QTest::keyClick(&messages, Qt::Key_Return);
    messages.warningDialog(question, note);
    QTest::keyClick(&messages, Qt::Key_Escape);
    messages.warningDialog({"読んでください"}, note);
    QTest::keyClick(&messages, Qt::Key_Escape);
    EXPECT_EQ(answers, (std::vector<int>{frmDialog::resultOk, frmDialog::resultCancel, frmDialog::resultOk}));
}

TEST_F(Speaking, a_second_warning_waits_for_its_turn) {
    start();
    frmDialog messages(&main());
    std::string order;
    messages.warningDialog({"一"}, [&](frmDialog::Result) {
        order += "1";
        messages.warningDialog({"三"}, [&](frmDialog::Result) { order += "3"; });
    });
    messages.warningDialog({"二"}, [&](frmDialog::Result) { order += "2"; });
    for (const char* text : {"\n一", "\n二", "\n三"}) {
        ASSERT_TRUE(messages.isVisible());
        EXPECT_EQ(messages.findChild<QLabel*>("lblMessage")->text(), text);
        QTest::keyClick(&messages, Qt::Key_Return);
    }
    EXPECT_FALSE(messages.isVisible());
    EXPECT_EQ(order, "123");
}

TEST(StartPanel, cannot_be_closed_before_the_start_up_is_done) {
    Machine machine;
    frmVersion panel(machine);
    QSignalSpy closed(&panel, &frmVersion::closed);
    panel.showProcess();
    panel.open();
    EXPECT_EQ(panel.timTimer().interval(), 1000);
    QTest::mouseClick(&panel, Qt::LeftButton);
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

TEST(StartPanel, opened_later_shows_no_progress_and_goes_at_a_click) {
    Machine machine;
    machine.startupDone = true;
    frmVersion panel(machine);
    panel.open();
    EXPECT_FALSE(panel.findChild<QWidget*>("picProgress")->isVisible());
    QTest::mouseClick(panel.findChild<QLabel*>("Label2_3"), Qt::LeftButton);
    EXPECT_FALSE(panel.isVisible());
}

TEST(TimingChart, shows_charts_1_to_8_and_ignores_the_rest) {
    frmOsiro chart(nullptr);
    chart.initPicture(3);
    const QImage third = chart.grab().toImage();
    for (const int outside : {0, 9, -1}) {
        chart.initPicture(outside);
        EXPECT_EQ(chart.chart(), 3);
    }
    EXPECT_EQ(chart.grab().toImage(), third);
    for (int index = 1; index <= 8; ++index) {
        chart.initPicture(index);
        if (index != 3) {
            EXPECT_NE(chart.grab().toImage(), third) << "chart " << index;
        }
    }
}

}  // namespace
