// SPDX-License-Identifier: Apache-2.0
// The bench that most tests start from.

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
inline void plug(Machine& machine, int link, bool whole = true) {
    machine.picBOARD2_RXD[linkConnector[static_cast<std::size_t>(link - 1)]].plugged = whole;
}

inline void unplug(Machine& machine, int link) {
    plug(machine, link, false);
}

inline int byteAt(const Machine& machine, int index) {
    return machine.chipMemory[static_cast<std::size_t>(index)];
}

inline void setByte(Machine& machine, int index, int value) {
    machine.chipMemory[static_cast<std::size_t>(index)] = static_cast<std::uint8_t>(value);
}

// The switches and signals on the port of a slot, as one word.
inline void setInput(Machine& machine, int slot, int word) {
    const auto low = static_cast<std::size_t>(2 * (slot - 1));
    machine.diImage[low] = static_cast<std::uint8_t>(word);
    machine.diImage[low + 1] = static_cast<std::uint8_t>(word >> 8);
}

// The DO word last delivered to a slot.
inline std::uint32_t latchOf(const Machine& machine, int slot) {
    return slot == slotQDA52 ? machine.doLatch52 : machine.doLatch[static_cast<std::size_t>(slot)];
}

// The first output pin of a slot, bit 0 of its word.
inline Pin* outputsOf(Machine& machine, int slot) {
    const auto group = static_cast<std::size_t>(16 * (slot - 1));
    return slot == slotQDA52 ? &machine.picPI[group] : &machine.picPO[group];
}

// A row of a table of numbers that needs no type of its own.
template <std::size_t columns>
using Row = std::array<int, columns>;
template <std::size_t columns>
using Rows = std::initializer_list<Row<columns>>;
