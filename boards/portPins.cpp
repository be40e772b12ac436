// SPDX-License-Identifier: Apache-2.0
#include "boards/portPins.h"

#include "boards/counters.h"
#include "boards/stationCheck.h"
#include "core/portOutput.h"
#include "core/pwmOutput.h"

namespace {

constexpr std::size_t pinsOfSlot5 = 64;
constexpr std::size_t indexOfSlot5 = slotQDA52 - 1;

// The pins under the motor are the counter's.
bool counterShown(const Machine& machine) {
    return motorTurns(machine);
}

void setPinPattern(Machine& machine, std::string_view pattern) {
    for (std::size_t bit = 0; bit < pattern.size(); ++bit) {
        const char kind = pattern[pattern.size() - 1 - bit];
        Pin& pin = machine.picPI[pinsOfSlot5 + bit];
        if (kind == '*') {
            pin.visible = false;
        } else {
            pin = {.output = kind == 'O'};
        }
    }
    machine.diImage[8] = 0;
    machine.diImage[9] = 0;
    machine.timMotorInterval = 0;
    machine.lampLevel = 0;
    if (counterShown(machine)) {
        showCounter52(machine);
    }
    showPower(machine);
}

// Where a switch stands in the board images.
struct ImageBit {
    std::size_t byte;
    std::uint8_t mask;
};

ImageBit imageBitOf(const Machine& machine, std::size_t pin) {
    const auto bit = static_cast<unsigned>(pin % 8);
    // Beside the counter the four switches of slot 5 are the upper bits of the word.
    if (pin >= pinsOfSlot5 && counterShown(machine)) {
        return {9, static_cast<std::uint8_t>(16U << bit)};
    }
    return {pin / 8, static_cast<std::uint8_t>(1U << bit)};
}

}  // namespace

void initPins(Machine& machine) {
    machine.picPI = {};
    machine.picPO = {};
    machine.picSSA = {};
    machine.picSSB = {};
}

void picPI_Click(Machine& machine, std::size_t index) {
    Pin& pin = machine.picPI[index];
    if (pin.output || !pin.visible) {
        return;
    }
    pin.level = !pin.level;
    const ImageBit place = imageBitOf(machine, index);
    std::uint8_t& byte = machine.diImage[place.byte];
    byte = static_cast<std::uint8_t>(pin.level ? byte | place.mask : byte & ~place.mask);
}

void picCLR_DblClick(Machine& machine, std::size_t index) {
    machine.picCLR[index].down = true;
    if (index == indexOfSlot5) {
        // doLow52 keeps the motor's direction; its power goes with the latch.
        machine.clrHeld52 = true;
        machine.doLatch52 = 0;
        showDO52(machine);
        return;
    }
    const std::size_t slot = index + 1;
    machine.clrHeld[slot] = true;
    machine.doLatch[slot] = 0;
    showDO(machine, static_cast<int>(slot));
}

void picCLR_MouseUp(Machine& machine, std::size_t index) {
    machine.picCLR[index].down = false;
    (index == indexOfSlot5 ? machine.clrHeld52 : machine.clrHeld[index + 1]) = false;
}

void picSSA_DblClick(Machine& machine, std::size_t index) {
    machine.picSSA[index].on = !machine.picSSA[index].on;
}

void picSSB_DblClick(Machine& machine, std::size_t index) {
    machine.picSSB[index].on = !machine.picSSB[index].on;
}

int timingChart(const Machine& machine, std::size_t group) {
    constexpr std::size_t groupQDA73 = slotQDA73 - 1;
    return 1 + (machine.picSSA[group].on ? 1 : 0) + (machine.picSSB[group].on ? 2 : 0) + (group == groupQDA73 ? 4 : 0);
}

Answer setIOSMode(Machine& machine) {
    const auto mode = static_cast<std::size_t>(machine.ios52);
    setPinPattern(machine, iosModes[mode < iosModes.size() ? mode : 0].pattern);
    return chkSADup(machine);
}

Answer cmbIOS_LostFocus(Machine& machine, int listIndex) {
    machine.cmbIOS.listIndex = static_cast<std::int16_t>(listIndex);
    machine.ios52 = machine.cmbIOS.listIndex;
    Answer answer = setIOSMode(machine);
    showDO52(machine);
    return answer;
}
