// SPDX-License-Identifier: Apache-2.0
// The machines that most tests start from.

#pragma once

#include "boards/boardSet.h"
#include "config/settings.h"
#include "core/mduMain.h"
#include "core/simulation.h"

#include <initializer_list>

// The maker's bench after start-up, memory cleared: stations 1 to 4 on the line, SCR still 0, so no scan.
inline Machine makersMachine() {
    Machine machine;
    Mdef_Set(machine);
    setUpBench(machine);
    clearMemory(machine);
    resetRegisters(machine);
    machine.startupDone = true;
    return machine;
}

// The same with a continuous scan up to `last`, which the first tick starts.
inline Machine scanningMachine(std::uint8_t last = 4) {
    Machine machine = makersMachine();
    machine.chipMemory[reg::scrLow] = last;
    return machine;
}

inline void ticks(Machine& machine, int count) {
    for (int done = 0; done < count; ++done) {
        simulationTick(machine);
    }
}

// Link 1 to 3.
inline void plug(Machine& machine, int link, bool whole) {
    machine.picBOARD2_RXD[linkConnector[static_cast<std::size_t>(link - 1)]].plugged = whole;
}

inline int byteAt(const Machine& machine, int index) {
    return machine.chipMemory[static_cast<std::size_t>(index)];
}

inline void setByte(Machine& machine, int index, int value) {
    machine.chipMemory[static_cast<std::size_t>(index)] = static_cast<std::uint8_t>(value);
}

// A row of a table of numbers that needs no type of its own.
template <std::size_t columns>
using Row = std::array<int, columns>;
template <std::size_t columns>
using Rows = std::initializer_list<Row<columns>>;
