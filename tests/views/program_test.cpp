// SPDX-License-Identifier: Apache-2.0
// The program as a whole: its start, its run modes, the restart of the machine, the end; also under hasty hands, with gestures
// while it still starts and everything twice in one batch of events.

#include "boards/boardSet.h"
#include "tests/views/desk.h"

#include <QMdiSubWindow>
#include <QSignalSpy>

namespace {

using Running = Desk;

TEST_F(Running, comes_up_without_a_settings_file) {
    start("");
    EXPECT_TRUE(machine().startupDone);
    EXPECT_FALSE(up("register"));
    EXPECT_NE(std::count(machine().chipMemory.begin(), machine().chipMemory.begin() + registerBase, 0), registerBase)
        << "memory is random";
    fire();
    for (const int sa : {1, 2, 3, 4}) {
        EXPECT_EQ(machine().chipMemory[static_cast<std::size_t>(2 * sa + 1)] & 0x7C, 0x7C) << "no cable is plugged";
    }
}

TEST_F(Running, each_run_mode_makes_its_ticks) {
    startAtBench();
    // A LED's timer counts the ticks down.
    static constexpr std::int16_t full = 5000;
    const auto ticks = [this] { return full - std::exchange(machine().chkLed2Timer, full); };
    machine().chkLed2Timer = full;
    using Row = std::array<int, 5>;
    for (const auto& [mode, atClick, atFiring, interval, barWidth] :
         {Row{modeStop, 0, 0, 0, 9}, Row{modeSlow, 0, 1, 300, 9}, Row{modeOneTime, 1, 0, 0, 9}, Row{modeRun, 0, 67, 20, 51}}) {
        SCOPED_TRACE(mode);
        click(main().lblRunMode(mode));
        EXPECT_EQ(ticks(), atClick);
        fire();
        EXPECT_EQ(ticks(), atFiring);
        EXPECT_EQ(main().timTick().interval(), interval);
        EXPECT_EQ(main().tickBar().width, barWidth);
    }
    ToolLabel& oneTime = main().lblRunMode(modeOneTime);
    batch::clicks(&oneTime, 2);
    settle();
    EXPECT_EQ(ticks(), 2) << "a double click is two presses";
    QTest::keyClick(&oneTime, Qt::Key_Return);
    QTest::keyClick(&oneTime, Qt::Key_Space);
    EXPECT_EQ(ticks(), 2);
    machine().runMode = modeRestart;
    fire();
    EXPECT_EQ(ticks(), 0) << "nothing moves while the machine restarts";
}

// Each label opens its window, leaves an open one open, and tells by pointer and speech that it is.
TEST_F(Running, a_label_tells_whether_its_window_is_open) {
    startAtBench();
    registers().close();
    for (const auto& [tool, name] :
         {std::pair{Tool::registerWindow, "register"}, {Tool::registerHint, "hint"}, {Tool::defaultSet, "settings"}}) {
        SCOPED_TRACE(name);
        const ToolLabel& label = main().label(tool);
        const auto tells = [&] { return label.cursor().shape() == Qt::ArrowCursor && !label.accessibleDescription().isEmpty(); };
        for (int time = 0; time < 2; ++time) {
            EXPECT_EQ(tells(), time != 0);
            click(tool);
            EXPECT_TRUE(up(name) && tells());
        }
        window(name).close();
        settle();
        EXPECT_TRUE(label.cursor().shape() == Qt::BitmapCursor && label.accessibleDescription().isEmpty());
    }
}

TEST_F(Running, ends_when_the_learner_says_so_once_or_twice) {
    start();
    QSignalSpy finished(program.get(), &Program::finished);
    main().close();
    main().close();
    EXPECT_EQ(main().findChildren<QMessageBox*>("exitQuestion").size(), 1) << "one question is enough";
    const int before = machine().scanAddr;
    fire();
    EXPECT_NE(machine().scanAddr, before) << "the scan goes on behind it";
    click(*exitQuestion()->button(QMessageBox::Cancel));
    settle();
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(finished.count(), 0);

    main().close();
    ASSERT_NE(exitQuestion(), nullptr);
    exitQuestion()->setDefaultButton(QMessageBox::Ok);
    batch::key(exitQuestion(), Qt::Key_Return);
    batch::key(exitQuestion(), Qt::Key_Return);
    settle();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_FALSE(main().isVisible() || up("register"));
    fire();  // what is still on its way finds everything whole
}

// --- hasty hands -------------------------------------------------------------------------------------------------------------

TEST_F(Running, every_label_may_be_clicked_while_it_starts) {
    int turn = 0;
    start(makersFile, [&] {
        emit main().toolActivated(static_cast<Tool>(turn % static_cast<int>(toolCount)));
        emit main().toolActivated(Tool::registerHint);
        if (program->registers().window() != nullptr) {
            openRegister(1, 0);
        }
        if (turn++ == 5) {
            program->restartMachine();
        }
    });
    EXPECT_TRUE(program->aids().hintOpen() && program->registers().isOpen());
    EXPECT_EQ(machine().chipMemory[reg::scrLow], 4);
}

class Hasty : public Desk {
protected:
    void startWithTour() {
        makeFile("NaviData/NaviIndex.txt", "a.txt\tA\tx\n");
        makeFile("NaviData/a.txt", "1\n1\n\n2\n2\n\n");
        startAtBench();
        startTour(0);
    }
    bool anyIsLeft() {
        const AidWindows& aids = program->aids();
        return program->settings().isOpen() || aids.versionPanel() != nullptr || aids.navigation() != nullptr ||
               aids.naviListOpen();
    }
};

TEST_F(Hasty, a_window_that_is_closed_twice_in_one_batch_is_gone_once) {
    startWithTour();
    for (int time = 0; time < 2; ++time) {
        play("open register ; open settings ; open hint ; open version");
        AidWindows& aids = program->aids();
        for (QWidget* closed :
             QWidgetList{&registers(), program->settings().dialog(), aids.versionPanel(), aids.hints(), aids.navigation()}) {
            ASSERT_TRUE(isUp(closed));
            batch::close(closed);
            batch::close(closed);
        }
        settle();
        EXPECT_FALSE(anyIsLeft() || program->registers().isOpen() || aids.hintOpen());
        startTour(0);
    }
}

TEST_F(Hasty, a_button_that_closes_is_double_clicked) {
    startWithTour();
    const auto twice = [this](QWidget& button, int times = 2) {
        batch::clicks(&button, times);
        settle();
    };
    twice(program->aids().navigation()->cmdAction(frmNavigation::actionMenu));
    ASSERT_TRUE(program->aids().naviListOpen());
    twice(program->aids().naviList()->cmdStart(), 3);
    EXPECT_FALSE(program->aids().naviListOpen());
    twice(program->aids().navigation()->cmdAction(frmNavigation::actionEnd), 3);
    EXPECT_FALSE(anyIsLeft());
    click(Tool::version);
    twice(*program->aids().versionPanel());
    EXPECT_FALSE(anyIsLeft());
    for (const auto action : {frmDefault::actionApply, frmDefault::actionClose}) {
        program->settings().open();
        twice(program->settings().dialog()->cmdAction(action));
        EXPECT_FALSE(anyIsLeft());
    }
    twice(main().label(Tool::memoryWindow));
    EXPECT_TRUE(up("chooser")) << "it opens once";
    EXPECT_TRUE(machine().startupDone);
}

// --- restart -----------------------------------------------------------------------------------------------------------------

// Whatever a gesture has begun ends with the machine that it was meant for.
TEST_F(Running, nothing_under_way_reaches_the_new_machine) {
    startAtBench();
    BenchCombo& box = *bench().combo("cmbSA", saQDA73);
    box.open(0);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    box.showPopup();
    play("hold picCounter 0");
    program->aids().ask({.text = "x"}, [](bool) { FAIL() << "an answer to the old machine"; });
    openRegister(1, 0);
    program->aids().say(Popup{"x"});
    Mdef_Set(machine());
    restart();
    EXPECT_EQ(machine().boardSA[saQDA73], 1);
    EXPECT_FALSE(machine().picCounter[0].down);
    EXPECT_EQ(machine().counterImage[0], 0);
    EXPECT_FALSE(isUp(program->registers().writeDialog()) || bench().combo("cmbSA", saQDA73)->isOpen());
    play("silent");
}

TEST_F(Running, fifty_restarts_with_every_window_open) {
    start();
    for (int time = 0; time < 50; ++time) {
        Mdef_Set(machine());
        machine().openWindowDefault = {0, 1, 1, 1, 1, 1};
        machine().ios52 = static_cast<std::int16_t>(time % 8);
        restart();
        fire();
        EXPECT_EQ(machine().ios52, time % 8);
        EXPECT_EQ(main().area().subWindowList().size(), 5) << "none of the old windows is left";
        EXPECT_TRUE(up("control") && up("c1c7") && up("drc"));
    }
}

}  // namespace
