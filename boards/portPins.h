// SPDX-License-Identifier: Apache-2.0
// The parallel port of the boards: DI switches, CLR buttons, the setting switches SSA and SSB, and the IOS modes of Board No4.
//
//   IOS mode   pins 15 to 0          I input, O output, * taken away from the port (PWM and counter)
//   0          IIIIIIIIIIIIIIII
//   1          OOOOIIIIIIIIIIII
//   2          OOOOOOOOIIIIIIII
//   3          OOOOOOOOOOOOIIII
//   4          OOOOOOOOOOOOOOII
//   5          OOOOOOOOOOOOOOOO
//   6          ****OOOOIIIIIIII
//   7          ****OOOO****IIII      the four switches feed bits 12 to 15 of the DI word
//
// A switch changes the board's image and nothing else: the word reaches memory when the scan visits the station.
//
// Not modelled: SSA. It chooses a timing chart and has no effect on the scan; SSB has (see simulation.h).

#pragma once

#include "core/answer.h"
#include "core/mduMain.h"

#include <string_view>

struct IOSMode {
    std::string_view caption;  // of cmbIOS
    std::string_view pattern;  // pin 15 on the left
};

inline constexpr std::array<IOSMode, 8> iosModes{{
    {"0 DI=16bit", "IIIIIIIIIIIIIIII"},
    {"1 DI=12bit DO= 4bit", "OOOOIIIIIIIIIIII"},
    {"2 DI= 8bit DO= 8bit", "OOOOOOOOIIIIIIII"},
    {"3 DI= 4bit DO=12bit", "OOOOOOOOOOOOIIII"},
    {"4 DI= 2bit DO=14bit", "OOOOOOOOOOOOOOII"},
    {"5 DO=16bit", "OOOOOOOOOOOOOOOO"},
    {"6 DI= 8bit DO= 4bit & PWM ", "****OOOOIIIIIIII"},
    {"7 DI= 4bit DO= 4bit & PWM + Counter", "****OOOO****IIII"},
}};

// All pins low inputs, SSA and SSB at "0".
void initPins(Machine& machine);

// A click on pin 0 to 79: flips an input, anything else ignores it.
void picPI_Click(Machine& machine, std::size_t index);

// The CLR button of a slot, by slot-1 (0 to 4): while it is down the outputs stay dark. The release waits for the next visit.
void picCLR_DblClick(Machine& machine, std::size_t index);
void picCLR_MouseUp(Machine& machine, std::size_t index);

// The setting switches, by slot-1 (0 to 4). The timing chart of the group is to be shown after either.
void picSSA_DblClick(Machine& machine, std::size_t index);
void picSSB_DblClick(Machine& machine, std::size_t index);

// The timing chart of a group of strobes, slot-1: 1 to 4 by SSA and SSB, 5 to 8 for the QDA73.
int timingChart(const Machine& machine, std::size_t group);

// Rebuilds slot 5 for the mode in ios52; a number outside 0 to 7 takes the pins of mode 0. The answer is chkSADup's, since the
// bench may get wider.
Answer setIOSMode(Machine& machine);

// The commit of the IOS selector, list index 0 to 7: the new mode drops every input of slot 5 and its outputs show the latch at
// once. The answer is setIOSMode's.
Answer cmbIOS_LostFocus(Machine& machine, int listIndex);
