// SPDX-License-Identifier: Apache-2.0
// What the register window shows beyond the bytes themselves: which halves changed of late, and for how long they stay
// marked.

#pragma once

#include "access/registers.h"
#include "core/mduMain.h"

struct RegisterHalf {
    int countdown = 0;  // seconds until the mark goes
    bool red = false;
};

struct RegisterView {
    // By row, 1 to 8; 0 high half, 1 low half.
    std::array<std::array<RegisterHalf, 2>, registerRows + 1> halves;

    RegisterHalf& at(int row, Half half) { return halves[static_cast<std::size_t>(row)][static_cast<std::size_t>(half)]; }
    const RegisterHalf& at(int row, Half half) const {
        return halves[static_cast<std::size_t>(row)][static_cast<std::size_t>(half)];
    }
};

// The byte of a half. Row 9 has no register and reads 0.
std::uint8_t registerByte(const Machine& machine, int row, Half half);

// Marks the halves that differ from what was shown last, and takes them as shown. SSR's low byte follows the scan from
// station to station and is never marked.
void refreshRegisters(Machine& machine, RegisterView& view);

// One second: counts the marks down and takes off those that are over.
void timRegister_Timer(RegisterView& view);

// Colours the two halves of a row by hand, as the write dialog does; the countdowns stay.
void colourRow(RegisterView& view, int row, bool highRed, bool lowRed);
