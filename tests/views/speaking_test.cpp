// SPDX-License-Identifier: Apache-2.0
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

TEST_F(Speaking, the_dialog_takes_its_measure_from_its_text) {
    start();
    program->aids().say(Warning{"短い"});
    frmDialog& messages = *program->aids().dialog();
    const auto button = [&](int index) { return messages.findChild<QPushButton*>(QStringLiteral("cmdAction%1").arg(index)); };
    EXPECT_EQ(messages.width(), 404);
    EXPECT_NEAR(button(0)->geometry().center().x(), 202, 1);
    EXPECT_FALSE(button(1)->isVisible());
    EXPECT_EQ(messages.findChild<QLabel*>("lblDialogTitle")->text(), "   警 告");
    button(0)->click();

    messages.warningDialog({std::string(300, 'w'), "切り替え確認", Warning::Kind::okCancel});
    const auto* text = messages.findChild<QLabel*>("lblMessage");
    EXPECT_EQ(messages.width(), text->width() + 32);
    EXPECT_EQ(messages.height(), text->height() + 30 + 46);
    EXPECT_EQ(button(0)->geometry().bottom() + 1, messages.height() - 8);
    EXPECT_TRUE(button(1)->isVisible());
    EXPECT_LT(button(0)->geometry().right(), messages.width() / 2);
    EXPECT_GT(button(1)->geometry().left(), messages.width() / 2);
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

TEST(StartPanel, the_bar_uncovers_the_message_in_eight_steps) {
    Machine machine;
    frmVersion panel(machine);
    panel.showProcess();
    panel.open();
    const auto* line = panel.findChild<QLabel*>("lblProcess0");
    const auto* bar = panel.findChild<QLabel*>("lblProcess1");
    EXPECT_EQ(bar->width(), 0);
    for (const int step : {1, 2, 3, 4, 5, 6, 7, 8, 8}) {
        panel.showProgress("メモリ処理中です。");
        EXPECT_EQ(bar->width(), line->width() * step / 8);
        EXPECT_EQ(bar->text(), line->text());
        EXPECT_EQ(bar->text(), QString(12, QChar(0x3000)) + "メモリ処理中です。");
    }
}

TEST_F(Speaking, the_version_label_opens_the_panel_and_the_window_goes_with_it) {
    start();
    program->aids().versionPanel()->hideVersion();
    EXPECT_EQ(program->aids().versionPanel(), nullptr);
    QTest::mouseClick(&main().label(Tool::version), Qt::LeftButton);
    ASSERT_NE(program->aids().versionPanel(), nullptr);
    EXPECT_TRUE(program->aids().versionPanel()->isVisible());
    EXPECT_EQ(program->aids().versionPanel()->findChild<QLabel*>("lblVer")->text(), "Ver,2.00");
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
