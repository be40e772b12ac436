#include "config/restart.h"

#include "core/runControl.h"

namespace {

constexpr std::uint8_t firstScanLastAddress = 4;

}  // namespace

void beginRestart(Machine& machine) {
    machine.runMode = modeRestart;
    machine.startupDone = false;
}

void resetMachine(Machine& machine, std::uint64_t dateNumber) {
    if (machine.memoryClearDefault != 0) {
        clearMemory(machine);
    } else {
        randomizeMemory(machine, dateNumber);
    }
    resetRegisters(machine);
    const std::int16_t ios52 = machine.ios52;
    const std::int16_t mode52 = machine.mode52;
    clearBoardState(machine);
    machine.ios52 = ios52;
    machine.mode52 = mode52;
    machine.chipMemory[reg::scrLow] = firstScanLastAddress;
}

void endRestart(Machine& machine) {
    machine.scanRunning = false;
    machine.scanOneShot = false;
    machine.startupDone = true;
}
