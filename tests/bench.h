// The bench that most tests start from.

#pragma once

#include "boards/boardSet.h"
#include "config/settings.h"
#include "core/mduMain.h"
#include "core/simulation.h"

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

inline int commandOf(const Machine& machine, int sa) {
    return machine.chipMemory[static_cast<std::size_t>(controlBase + 2 * sa)];
}

inline int statusOf(const Machine& machine, int sa) {
    return machine.chipMemory[static_cast<std::size_t>(controlBase + 2 * sa + 1)];
}

inline void setCommand(Machine& machine, int sa, int commandByte) {
    machine.chipMemory[static_cast<std::size_t>(controlBase + 2 * sa)] = static_cast<std::uint8_t>(commandByte);
}

inline void unplug(Machine& machine, int link) {
    machine.picBOARD2_RXD[linkConnector[static_cast<std::size_t>(link - 1)]].plugged = false;
}

inline void plug(Machine& machine, int link) {
    machine.picBOARD2_RXD[linkConnector[static_cast<std::size_t>(link - 1)]].plugged = true;
}
