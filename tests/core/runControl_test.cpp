// What a firing of the main timer and a click on a run mode do.

#include "core/runControl.h"

#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

// Ticks are counted by a LED timer, which runs with no scan at all.
Machine countingMachine(int runMode) {
    Machine machine = makersMachine();
    machine.monLed73Timer = 1000;
    machine.runMode = static_cast<std::int16_t>(runMode);
    return machine;
}

TEST(RunControl, firing_makes_the_ticks_of_its_mode) {
    for (const auto& [mode, tickCount, refresh] : Rows<3>{{0, 67, 1}, {1, 0, 1}, {2, 1, 1}, {3, 0, 1}, {4, 0, 0}}) {
        SCOPED_TRACE(mode);
        Machine machine = countingMachine(mode);
        TickBar bar{.left = 9, .width = 51};
        const Firing firing = timTick_Timer(machine, bar);
        EXPECT_EQ(1000 - machine.monLed73Timer, tickCount);
        EXPECT_EQ(bar.left, tickCount != 0 ? 60 : 9);
        EXPECT_EQ(firing.ticked, tickCount != 0);
        EXPECT_EQ(firing.refresh, refresh != 0);
        EXPECT_FALSE(firing.beep);
    }
}

TEST(RunControl, click_chooses_the_mode_and_every_click_on_1_time_ticks) {
    for (const auto& [mode, interval, width] : Rows<3>{{0, 20, 51}, {1, 0, 9}, {2, 300, 9}, {3, 0, 9}}) {
        SCOPED_TRACE(mode);
        Machine machine = countingMachine(modeRestart);
        TickBar bar{.left = 51, .width = 51};
        for (int click = 1; click <= 2; ++click) {
            const Firing firing = lblRunMode_Click(machine, bar, mode);
            const int ticksMade = mode == 3 ? click : 0;
            EXPECT_EQ(machine.runMode, mode);
            EXPECT_EQ(bar.width, width);
            EXPECT_EQ(1000 - machine.monLed73Timer, ticksMade);
            EXPECT_EQ(bar.left, 51 + 9 * ticksMade);
            EXPECT_TRUE(firing.ticked == (mode == 3) && firing.refresh == (mode == 3) && firing.beep == (mode == 3));
        }
        EXPECT_EQ(runModes[static_cast<std::size_t>(mode)].interval, interval);
    }
}

TEST(RunControl, bar_stands_on_3_wide_or_17_narrow_places) {
    TickBar wide;
    for (const int place : {0, 51, 102, 0, 51}) {
        EXPECT_EQ(wide.left, place);
        stepTickBar(wide);
    }
    TickBar narrow{.left = 0, .width = 9};
    for (int step = 0; step < 34; ++step) {
        EXPECT_EQ(narrow.left, 9 * (step % 17));
        stepTickBar(narrow);
    }
}

}  // namespace
