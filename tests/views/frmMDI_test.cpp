#include "tests/views/startedProgram.h"

#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>

#include <algorithm>

namespace {

using MainWindow = StartedProgram;

// Ticks are counted by a LED timer: it counts them down.
class TickCount {
public:
    explicit TickCount(Machine& machine) : machine_(machine) { machine_.chkLed2Timer = start; }
    int since() {
        const int made = start - machine_.chkLed2Timer;
        machine_.chkLed2Timer = start;
        return made;
    }

private:
    static constexpr std::int16_t start = 5000;
    Machine& machine_;
};

QRect tickBar(frmMDI& main) {
    return {main.tickBar().left, 0, main.tickBar().width, 4};
}

TEST_F(MainWindow, comes_up_without_a_settings_file) {
    start("");
    EXPECT_TRUE(machine().startupDone);
    EXPECT_FALSE(isUp(program->registers().window()));
    EXPECT_EQ(main().label(Tool::registerWindow).cursor().shape(), Qt::BitmapCursor);
    EXPECT_NE(std::count(machine().chipMemory.begin(), machine().chipMemory.begin() + registerBase, 0), registerBase)
        << "memory is random";
    fire();
    for (const int sa : {1, 2, 3, 4}) {
        EXPECT_EQ(machine().chipMemory[static_cast<std::size_t>(2 * sa + 1)] & 0x7C, 0x7C) << "no cable is plugged";
    }
}

TEST_F(MainWindow, each_run_mode_makes_its_ticks) {
    start();
    TickCount ticks(machine());
    struct Row {
        RunModeIndex mode;
        int ticksAtClick, ticksAFiring, interval, barWidth;
    };
    for (const Row& row :
         {Row{modeStop, 0, 0, 0, 9}, Row{modeSlow, 0, 1, 300, 9}, Row{modeOneTime, 1, 0, 0, 9}, Row{modeRun, 0, 67, 20, 51}}) {
        SCOPED_TRACE(row.mode);
        QTest::mouseClick(&main().lblRunMode(row.mode), Qt::LeftButton);
        EXPECT_EQ(ticks.since(), row.ticksAtClick);
        fire();
        EXPECT_EQ(ticks.since(), row.ticksAFiring);
        EXPECT_EQ(main().timTick().interval(), row.interval);
        EXPECT_EQ(tickBar(main()).width(), row.barWidth);
        for (int mode = 0; mode < 4; ++mode) {
            EXPECT_EQ(main().lblRunMode(mode).isChecked(), mode == row.mode);
        }
    }
    machine().runMode = modeRestart;
    fire();
    EXPECT_EQ(ticks.since(), 0) << "nothing moves while the machine restarts";
}

TEST_F(MainWindow, one_time_makes_a_tick_a_press_however_fast) {
    start();
    TickCount ticks(machine());
    ToolLabel& oneTime = main().lblRunMode(modeOneTime);
    const auto ssr = [this] { return registers().cell(rowSSR, frmRegister::valLow).text(); };
    QString before = ssr();
    for (int click = 0; click < 2; ++click) {
        QTest::mouseClick(&oneTime, Qt::LeftButton);
        EXPECT_EQ(ticks.since(), 1);
        EXPECT_NE(std::exchange(before, ssr()), ssr()) << "shown at once";
    }
    QTest::mousePress(&oneTime, Qt::LeftButton);
    QTest::mouseRelease(&oneTime, Qt::LeftButton);
    QTest::mouseDClick(&oneTime, Qt::LeftButton);  // the second press, whose release is one more mouse-up
    QTest::mouseRelease(&oneTime, Qt::LeftButton);
    EXPECT_EQ(ticks.since(), 2) << "a double click is two presses";
    QTest::keyClick(&oneTime, Qt::Key_Return);
    QTest::keyClick(&oneTime, Qt::Key_Space);
    EXPECT_EQ(ticks.since(), 2);
}

// Each label opens its window by its own gesture, leaves an open one open, and tells by pointer and speech that it is.
TEST_F(MainWindow, a_label_tells_whether_its_window_is_open) {
    start();
    program->aids().versionPanel()->hideVersion();
    registers().close();
    const auto topWindow = [](const char* name) -> QWidget* {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (widget->objectName() == name && widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    };
    for (const auto& [tool, name] : {std::pair{Tool::registerWindow, "frmRegister"},
                                     {Tool::registerHint, "frmHint"},
                                     {Tool::defaultSet, "frmDefault"},
                                     {Tool::navigator, "frmNaviList"}}) {
        SCOPED_TRACE(name);
        ToolLabel& label = main().label(tool);
        EXPECT_EQ(label.cursor().shape(), Qt::BitmapCursor);
        EXPECT_EQ(label.accessibleDescription(), "");
        QTest::mouseClick(&label, Qt::LeftButton);
        EXPECT_EQ(topWindow(name) != nullptr, tool != Tool::navigator) << "that one wants a double click";
        for (int time = 0; time < 2; ++time) {
            tool == Tool::navigator ? QTest::mouseDClick(&label, Qt::LeftButton) : QTest::mouseClick(&label, Qt::LeftButton);
            ASSERT_NE(topWindow(name), nullptr);
            EXPECT_EQ(label.cursor().shape(), Qt::ArrowCursor);
            EXPECT_NE(label.accessibleDescription(), "");
        }
        topWindow(name)->close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(label.cursor().shape(), Qt::BitmapCursor);
    }
    QTest::mouseClick(&main().label(Tool::version), Qt::LeftButton);
    EXPECT_NE(topWindow("frmVersion"), nullptr);
    QTest::mouseDClick(&main().label(Tool::navigator), Qt::LeftButton);
    EXPECT_EQ(topWindow("frmNaviList"), nullptr) << "it waits for the panel";
}

TEST_F(MainWindow, and_the_others_come_back_when_a_screen_has_left_them_outside) {
    start();
    QScreen& screen = *QApplication::primaryScreen();
    main().showNormal();
    for (QWidget* window : QWidgetList{&main(), &registers()}) {
        window->move(5000, 4000);  // on a second screen, say
    }
    emit screen.availableGeometryChanged(screen.availableGeometry());
    QApplication::processEvents();
    EXPECT_TRUE(screen.availableGeometry().contains(registers().frameGeometry()));
    EXPECT_EQ(main().frameGeometry().topLeft(), screen.availableGeometry().topLeft()) << "larger than the screen";
}

TEST_F(MainWindow, asks_before_the_program_ends) {
    start();
    QSignalSpy finished(program.get(), &Program::finished);
    const auto question = [this] { return main().findChild<QMessageBox*>("exitQuestion"); };

    main().close();
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(question()->windowTitle(), "VRBTS終了確認");
    EXPECT_EQ(question()->text(), "アプリケーションを終了します。よろしいですか？");
    main().close();
    EXPECT_EQ(main().findChildren<QMessageBox*>("exitQuestion").size(), 1) << "one question is enough";
    QTest::mouseClick(question()->button(QMessageBox::Cancel), Qt::LeftButton);
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(finished.count(), 0);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    main().close();
    ASSERT_NE(question(), nullptr);
    const int before = machine().scanAddr;
    fire();
    EXPECT_NE(machine().scanAddr, before) << "the scan goes on behind the question";
    QTest::mouseClick(question()->button(QMessageBox::Ok), Qt::LeftButton);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_FALSE(main().isVisible());
    EXPECT_FALSE(isUp(program->registers().window()));
}

}  // namespace
