// SPDX-License-Identifier: Apache-2.0
#include "access/registerView.h"

namespace {

constexpr int markedSeconds = 4;

void follow(RegisterHalf& half, std::uint8_t& shown, std::uint8_t now) {
    if (shown != now) {
        half = {.countdown = markedSeconds, .red = true};
        shown = now;
    }
}

}  // namespace

std::uint8_t registerByte(const Machine& machine, int row, Half half) {
    if (row > lastRegisterRow) {
        return 0;
    }
    const int address = registerBase + 2 * (row - 1) + (half == Half::high ? 1 : 0);
    return machine.chipMemory[static_cast<std::size_t>(address)];
}

void refreshRegisters(Machine& machine, RegisterView& view) {
    for (int row = 1; row <= lastRegisterRow; ++row) {
        const auto index = static_cast<std::size_t>(row);
        follow(view.at(row, Half::high), machine.registerShadowHigh[index], registerByte(machine, row, Half::high));
        if (row != rowSSR) {
            follow(view.at(row, Half::low), machine.registerShadowLow[index], registerByte(machine, row, Half::low));
        }
    }
}

void timRegister_Timer(RegisterView& view) {
    for (auto& row : view.halves) {
        for (RegisterHalf& half : row) {
            if (half.countdown > 0 && --half.countdown == 0) {
                half.red = false;
            }
        }
    }
}

void colourRow(RegisterView& view, int row, bool highRed, bool lowRed) {
    view.at(row, Half::high).red = highRed;
    view.at(row, Half::low).red = lowRed;
}
