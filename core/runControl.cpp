// SPDX-License-Identifier: Apache-2.0
#include "core/runControl.h"

#include "core/simulation.h"

namespace {

constexpr int lastBarPlace = 144;

const RunMode* modeOf(const Machine& machine) {
    const auto index = static_cast<std::size_t>(machine.runMode);
    return index < runModes.size() ? &runModes[index] : nullptr;
}

void tick(Machine& machine, TickBar& bar, int count) {
    for (int done = 0; done < count; ++done) {
        simulationTick(machine);
    }
    stepTickBar(bar);
}

}  // namespace

void stepTickBar(TickBar& bar) {
    const int next = bar.left + bar.width;
    bar.left = next <= lastBarPlace ? next : 0;
}

Firing timTick_Timer(Machine& machine, TickBar& bar) {
    const RunMode* mode = modeOf(machine);
    if (mode == nullptr) {
        return {};
    }
    if (mode->ticks != 0) {
        tick(machine, bar, mode->ticks);
    }
    return {.ticked = mode->ticks != 0, .refresh = true};
}

Firing lblRunMode_Click(Machine& machine, TickBar& bar, int index) {
    machine.runMode = static_cast<std::int16_t>(index);
    bar.width = runModes[static_cast<std::size_t>(index)].barWidth;
    if (index != modeOneTime) {
        return {};
    }
    tick(machine, bar, 1);
    return {.ticked = true, .refresh = true, .beep = true};
}
