// SPDX-License-Identifier: Apache-2.0
// The line of the start-up display: a message in the middle of 33 full-width places, uncovered by a bar in eight steps.

#pragma once

#include <string>
#include <string_view>

inline constexpr int progressPlaces = 33;
inline constexpr int progressSteps = 8;

// The message with the full-width blanks before it that bring it to the middle; none where it is longer than the line.
std::u16string progressLine(std::u16string_view text);

// The step after `step`; the last one stays.
int nextProgressStep(int step);

// The width of the bar at a step, on a line of this width.
int progressBarWidth(int lineWidth, int step);
