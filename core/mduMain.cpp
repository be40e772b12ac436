// SPDX-License-Identifier: Apache-2.0
#include "core/mduMain.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::string_view chipName = "QDA60 ";
constexpr std::uint8_t firstScanLastAddress = 4;

}  // namespace

void clearBoardState(Machine& machine) {
    static const Machine blank;
    machine.intLedShown = 0;
    machine.intLedWanted = 0;
    machine.chkLed1Timer = 0;
    machine.chkLed2Timer = 0;
    machine.monLed73Timer = 0;
    machine.monLed52Timer = 0;

    machine.ssrDataChanged = false;
    machine.ssrSerialData = false;
    machine.ssrErrorSeen = false;
    machine.chk1Seen = false;
    machine.chk2Seen = false;

    machine.writeTempLow = 0;
    machine.writeTempHigh = 0;
    machine.writeTempLowFull = false;
    machine.writeTempHighFull = false;

    machine.diImage = blank.diImage;
    machine.counterImage = blank.counterImage;
    machine.serialData = blank.serialData;
    machine.serialReady = blank.serialReady;
    machine.serialEditSlot = 0;
    machine.doLatch = blank.doLatch;
    machine.doLatch52 = 0;
    machine.doLow52 = 0;
    machine.clrHeld = blank.clrHeld;
    machine.clrHeld52 = false;
    machine.resetHeld = blank.resetHeld;
    machine.resetHeld52 = false;

    machine.noiseOn = false;
    machine.noiseBurst = 0;
    machine.noiseErrorCount = 0;
    machine.noiseErrorAddr = 0;
    machine.ios52 = 0;
    machine.mode52 = 0;
    machine.motorPhase = 0;
    machine.motorStep = 0;
    machine.motorCounter = 0;
}

void clearMemory(Machine& machine) {
    machine.chipMemory.fill(0);
    machine.memoryShadow.fill(0);
}

void randomizeMemory(Machine& machine, std::uint64_t dateNumber) {
    machine.random.seed(dateNumber);
    std::uniform_int_distribution<int> anyByte(0, 255);
    for (std::size_t index = 0; index < registerBase; ++index) {
        machine.chipMemory[index] = static_cast<std::uint8_t>(anyByte(machine.random));
    }
}

void resetRegisters(Machine& machine) {
    std::fill_n(machine.chipMemory.begin() + registerBase, chipNameBase - registerBase, std::uint8_t{0});
    std::copy(chipName.begin(), chipName.end(), machine.chipMemory.begin() + chipNameBase);
    const bool halfDuplex = machine.transferDefault[0] != 0;
    const std::uint8_t bcr = halfDuplex ? bcrHalfDuplex : bcrFullDuplex;
    machine.chipMemory[reg::bcrLow] = bcr;
    machine.registerShadowLow[8] = bcr;  // so that the register window doesn't show the reset value as a change
    machine.duplexBit = halfDuplex ? 0 : fullDuplexBit;
}

void fillMemory(Machine& machine, std::uint64_t dateNumber) {
    if (machine.memoryClearDefault != 0) {
        clearMemory(machine);
    } else {
        randomizeMemory(machine, dateNumber);
    }
}

void startMachine(Machine& machine) {
    resetRegisters(machine);
    machine.chipMemory[reg::scrLow] = firstScanLastAddress;
}
