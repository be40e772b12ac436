// SPDX-License-Identifier: Apache-2.0
#include "boards/stationCheck.h"

#include "core/portOutput.h"

#include <optional>

namespace {

constexpr int rows = slotCount;

// The address of a slot's station, where it stands on the line.
std::optional<int> stationOf(const Machine& machine, int slot) {
    const auto addressOf = [&machine](BoardIndex board) { return machine.cmbSA[board].listIndex + 1; };
    const auto whole = [&machine](std::size_t link) { return machine.picBOARD2_RXD[linkConnector[link]].plugged; };
    const bool hasStation = (slot == slotQDA41 && whole(0)) || (slot == slotCascade && whole(0) && machine.picBridge.visible) ||
                            (slot == slotQDA73 && whole(1)) || (slot == slotQDA52 && whole(2));
    if (!hasStation) {
        return std::nullopt;
    }
    switch (slot) {
        case slotQDA41: return addressOf(saQDA41);
        case slotCascade: return addressOf(saQDA41) + 1;
        case slotQDA73: return addressOf(saQDA73);
        default: return addressOf(saQDA52);
    }
}

Warning duplicate(int first, int second) {
    return {"ボード" + std::to_string(first) + "と、ボード" + std::to_string(second) +
            "のＳＡが重複しています｡正常な通信が行えません｡ "};
}

void resetCenter(Machine& machine) {
    machine.scanRunning = false;
    machine.scanOneShot = false;
    machine.scanAddr = 0;
    machine.picScanLed.lit = false;
    resetRegisters(machine);
    machine.chipMemory[reg::bcrLow] = bcrFullDuplex;
}

void resetBoard52(Machine& machine) {
    machine.doLatch52 = 0;
    machine.resetHeld52 = true;
    // The 12-bit counter and its bits of the DI word; the upper four bits are switches and stay.
    machine.counterImage[48] = 0;
    machine.counterImage[49] = 0;
    machine.diImage[8] = 0;
    machine.diImage[9] &= 0xF0;
    showDO52(machine);
    machine.picMON_LED52.lit = false;
}

void resetBoard(Machine& machine, std::size_t slot) {
    machine.resetHeld[slot] = true;
    machine.doLatch[slot] = 0;
    showDO(machine, static_cast<int>(slot));
    if (slot == slotQDA73) {
        machine.picMON_LED73.lit = false;
    }
}

}  // namespace

Answer chkSADup(const Machine& machine) {
    if (!machine.startupDone) {
        return {};
    }
    for (int first = 1; first <= rows; ++first) {
        const auto station = stationOf(machine, first);
        for (int second = first + 1; station && second <= rows; ++second) {
            if (station == stationOf(machine, second)) {
                return duplicate(first, second);
            }
        }
    }
    return {};
}

void picReset_DblClick(Machine& machine, std::size_t index) {
    machine.picReset[index].down = true;
    if (index == 0) {
        resetCenter(machine);
    } else if (index == slotQDA52) {
        resetBoard52(machine);
    } else {
        resetBoard(machine, index);
    }
}

void picReset_MouseUp(Machine& machine, std::size_t index) {
    machine.picReset[index].down = false;
    if (index == slotQDA52) {
        machine.resetHeld52 = false;
    } else if (index != 0) {
        machine.resetHeld[index] = false;
    }
}
