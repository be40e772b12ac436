// SPDX-License-Identifier: Apache-2.0
// What a firing of the main timer and a click on a run mode do.

#include "core/runControl.h"

#include "tests/machines.h"

#include <gtest/gtest.h>

namespace {

TEST(RunControl, firing_and_clicks_make_the_ticks_of_their_mode) {
    // Ticks of a firing, whether it refreshes, ticks of a click, timer in milliseconds, width of the bar; last the restart.
    for (const auto& [mode, ticksAFiring, refresh, ticksAClick, interval, width] :
         {Row<6>{0, 67, 1, 0, 20, 51}, Row<6>{1, 0, 1, 0, 0, 9}, Row<6>{2, 1, 1, 0, 300, 9}, Row<6>{3, 0, 1, 1, 0, 9},
          Row<6>{4, 0, 0, 0, 0, 9}}) {
        SCOPED_TRACE(mode);
        Machine machine = makersMachine();
        machine.monLed73Timer = 1000;  // counts the ticks, with no scan at all
        machine.runMode = static_cast<std::int16_t>(mode);
        TickBar bar{.left = 9, .width = 51};
        const Firing firing = timTick_Timer(machine, bar);
        EXPECT_EQ(1000 - machine.monLed73Timer, ticksAFiring);
        EXPECT_EQ(bar.left, ticksAFiring != 0 ? 60 : 9);
        EXPECT_TRUE(firing.ticked == (ticksAFiring != 0) && firing.refresh == (refresh != 0) && !firing.beep);
        for (int click = 1; click <= 2 && mode < 4; ++click) {
            machine.monLed73Timer = 1000;
            bar = {.left = 51, .width = 51};
            const Firing clicked = lblRunMode_Click(machine, bar, mode);
            const bool ticked = ticksAClick != 0;
            EXPECT_EQ(machine.runMode, mode);
            EXPECT_EQ(bar.width, width);
            EXPECT_EQ(1000 - machine.monLed73Timer, ticksAClick);
            EXPECT_EQ(bar.left, 51 + width * ticksAClick);
            EXPECT_TRUE(clicked.ticked == ticked && clicked.refresh == ticked && clicked.beep == ticked);
            EXPECT_EQ(runModes[static_cast<std::size_t>(mode)].interval, interval);
        }
    }
}

TEST(RunControl, bar_stands_on_3_wide_or_17_narrow_places) {
    TickBar wide;
    TickBar narrow{.left = 0, .width = 9};
    for (int step = 0; step < 34; ++step) {
        EXPECT_EQ(wide.left, 51 * (step % 3));
        EXPECT_EQ(narrow.left, 9 * (step % 17));
        stepTickBar(wide);
        stepTickBar(narrow);
    }
}

}  // namespace
