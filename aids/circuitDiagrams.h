// SPDX-License-Identifier: Apache-2.0
// Which circuit diagram fits the bench as it stands. A diagram is a picture file, and for some boards in half duplex a second
// one that is laid over it. The files lie in the folder Kairozu beside the program.
//
//   0 center   1 Board No2   2 Board No3, the cascade card   3 Board No1   4 Board No4
//
// A diagram in the window follows the settings that it shows.

#pragma once

#include "core/mduMain.h"

#include <string>

inline constexpr int diagramCount = 5;

struct Diagram {
    std::string picture;
    std::string overlay;  // empty: none
    bool operator==(const Diagram&) const = default;
};

// The files of diagram 0 to 4; empty names for any other number.
Diagram diagramFor(const Machine& machine, int index);
