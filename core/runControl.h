// SPDX-License-Identifier: Apache-2.0
// The run modes and what one firing of the main timer does.
//
//   mode   caption    timer    ticks a firing   bar
//   0      " RUN "    20 ms    67               51
//   1      "STOP"     off      -                 9
//   2      "SLOW"     300 ms   1                 9
//   3      "1-Time"   off      1 for each click  9
//   4      none: the machine restarts and a firing does nothing

#pragma once

#include "core/mduMain.h"

#include <string_view>

enum RunModeIndex : std::int16_t { modeRun = 0, modeStop = 1, modeSlow = 2, modeOneTime = 3, modeRestart = 4 };

struct RunMode {
    std::string_view caption;
    int interval;  // of timTick in milliseconds, 0 is off
    int ticks;     // made by one firing
    int barWidth;  // of shpTick, on a track of 153
};

inline constexpr std::array<RunMode, 4> runModes{{
    {" RUN ", 20, 67, 51},
    {"STOP", 0, 0, 9},
    {"SLOW", 300, 1, 9},
    {"1-Time", 0, 0, 9},
}};

// The bar that shows that ticks are being made, in pixels of its track.
struct TickBar {
    int left = 0;
    int width = runModes[modeRun].barWidth;
};

inline constexpr int tickTrackWidth = 153;

// One step to the right, and from the end back to the left.
void stepTickBar(TickBar& bar);

// What follows a firing or a click on a run mode.
struct Firing {
    bool ticked = false;   // ticks were made, the bar has stepped
    bool refresh = false;  // the register and memory windows are to be refreshed
    bool beep = false;
};

// A firing of timTick: the ticks of the mode.
Firing timTick_Timer(Machine& machine, TickBar& bar);

// A click on a run mode, 0 to 3. A click on 1-Time makes one tick with a beep, also the click that chooses it.
Firing lblRunMode_Click(Machine& machine, TickBar& bar, int index);
