// SPDX-License-Identifier: Apache-2.0
// The serial input of the QDA41: one 16-bit word over three wires, from a shift register that the learner loads by hand.
//
//   slot - 1   circuit      word in serialData   waits while    collected by
//   0          picSDI(0)    bytes 0, 1           serialReady    command 7 or 15 at a visit of Board No2
//   1          picSDI(1)    bytes 2, 3           serialReady    the same of Board No3
//
//   SDI  ____/ D15 \__ ... __/ D0 \______________     bit 15 first, steady around the rising edge of SCK
//   SCK  _____|~~|___|~~|... |~~|________________     one pulse a bit
//   SLD  ____________________________|~~|________     loads the word, half a bit after the last one
//
// One word can wait for each slot; while it does SE is low, its LED is lit, and no other can be entered.
//
// Not modelled: time on the wires. The word arrives whole when the picture of the waveform has run out.

#pragma once

#include "core/answer.h"
#include "core/mduMain.h"

#include <string_view>
#include <vector>

// A double click on circuit 0 or 1: refused while a word waits, otherwise the dialog is to open for serialEditSlot.
Answer picSDI_DblClick(Machine& machine, std::size_t index);

// The word begins to go out: the board shows that it is being shifted in.
void beginShift(Machine& machine, std::size_t index);

// The dialog has closed. With four hexadecimal digits the word waits from now on; empty, it was cancelled.
void endShift(Machine& machine, std::size_t index, std::string_view digits);

// --- the picture of the waveform, in pixels -------------------------------------------------------------------------------

struct WavePoint {
    double x, y;
    bool operator==(const WavePoint&) const = default;
};
using Wave = std::vector<WavePoint>;

inline constexpr int waveWidth = 461;
inline constexpr int waveHeight = 115;
inline constexpr int serialBits = 16;

// A row by its level lines.
struct WaveRow {
    std::string_view name;
    int high;
    int low;
};
inline constexpr std::array<WaveRow, 3> waveRows{{{"SDI", 20, 45}, {"SCK", 50, 75}, {"SLD", 80, 105}}};

// Left edge of the cell of a bit, 15 to 0; the label "D15" to "D0" stands there at y 2.
int waveLeftOfBit(int bit);

// A row's line from the left edge to the right: 0 SDI, 1 SCK, 2 SLD. A level that holds over several bits has no point between.
Wave serialWave(std::size_t row, unsigned word);
