// SPDX-License-Identifier: Apache-2.0
// The push buttons of the counters, the counter mode of Board No4, and the noise button.
//
//   button      word of counterImage   what the scan makes of it
//   0 to 5      0 to 5                 C1 to C6 of Board No2
//   6 to 11     6 to 11                C1 to C6 of Board No3
//   24          24                     bits 0 to 11 of Board No4's DI word
//   25          -                      clears word 24, in counter mode 0 only
//
// A pulse counts when the button comes up, once for each press. Words are 16 bits wide and wrap; the DI word shows the
// lower twelve bits of word 24.
//
// Not modelled: the counter modes 1 to 3 of Board No4.

#pragma once

#include "core/answer.h"
#include "core/mduMain.h"

#include <string_view>

// The counter modes of Board No4, by mode.
inline constexpr std::array<std::string_view, 4> modeItems{"0 フリーカウント", "1 内部ゲート1", "2 内部ゲート2", "3 外部ゲート"};

// `index` 0 to 25; of those the buttons 12 to 23 stand on no board.
void picCounter_MouseDown(Machine& machine, std::size_t index);
void picCounter_MouseUp(Machine& machine, std::size_t index);

// The commit of the counter mode's combo box: nothing changes, and the learner is told where to read on.
Answer cmbMode_LostFocus(Machine& machine);

// Noise on the line while the button is down (see boardTick.h).
void picNoise_MouseDown(Machine& machine);
void picNoise_MouseUp(Machine& machine);

// Brings the 12-bit counter into Board No4's DI word, whose upper four bits stay.
void showCounter52(Machine& machine);
