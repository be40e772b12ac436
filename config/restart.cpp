// SPDX-License-Identifier: Apache-2.0
#include "config/restart.h"

#include "core/runControl.h"

void beginRestart(Machine& machine) {
    machine.runMode = modeRestart;
    machine.startupDone = false;
}

void resetMachine(Machine& machine, std::uint64_t dateNumber) {
    fillMemory(machine, dateNumber);
    const std::int16_t ios52 = machine.ios52;
    const std::int16_t mode52 = machine.mode52;
    clearBoardState(machine);
    machine.ios52 = ios52;
    machine.mode52 = mode52;
    startMachine(machine);
}

void endRestart(Machine& machine) {
    machine.scanRunning = false;
    machine.scanOneShot = false;
    machine.startupDone = true;
}
