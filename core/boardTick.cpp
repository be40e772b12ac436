// SPDX-License-Identifier: Apache-2.0
#include "core/boardTick.h"

#include "core/portOutput.h"

#include <cmath>

namespace {

// --- start and timers ------------------------------------------------------------------------------------------------

void startScan(Machine& machine, int scrAddress, bool Machine::*flag) {
    const std::uint8_t last = machine.chipMemory[static_cast<std::size_t>(scrAddress)];
    if (last == 0 || machine.*flag) {
        return;
    }
    machine.*flag = true;
    machine.scanAddr = 1;
    machine.scanLastAddr = last;
    machine.picScanLed.lit = true;
    machine.boardClock[clockCenter] = static_cast<std::int16_t>(~machine.chipMemory[reg::bcrLow] & rateBits);
    // The CHK flags of a pass are left as they are: only the pass end clears them.
    machine.ssrDataChanged = false;
    machine.ssrSerialData = false;
    machine.ssrErrorSeen = false;
}

void countDown(std::int16_t& timer, Led& led) {
    if (timer != 0 && --timer == 0) {
        led.lit = false;
    }
}

// --- the line ----------------------------------------------------------------------------------------------------------

// What a board hears: nothing is address 0, which no board has.
struct Frame {
    int address = 0;
    std::uint32_t word = 0;
};

Frame through(const Machine& machine, std::size_t link, const Frame& frame) {
    return machine.picBOARD2_RXD[linkConnector[link]].plugged ? frame : Frame{};
}

// The slots, in the order in which their outputs change. `link` is the link ahead of the board.
struct SlotRow {
    int slot;
    std::size_t link;
    BoardIndex board;
    int addressOffset;
    ClockIndex clock;
};

constexpr std::array<SlotRow, 4> slotRows{{
    {slotQDA73, 0, saQDA73, 0, clockQDA73},
    {slotQDA41, 1, saQDA41, 0, clockQDA41},
    {slotCascade, 1, saQDA41, 1, clockQDA41},
    {slotQDA52, 2, saQDA52, 0, clockQDA52},
}};

bool resetIsHeld(const Machine& machine, int slot) {
    return slot == slotQDA52 ? machine.resetHeld52 : machine.resetHeld[static_cast<std::size_t>(slot)];
}

bool takesPart(const Machine& machine, const SlotRow& row, int address) {
    return address == machine.boardSA[row.board] + row.addressOffset &&
           machine.boardClock[row.clock] == machine.boardClock[clockCenter] && !resetIsHeld(machine, row.slot) &&
           (row.slot != slotCascade || machine.picBridge.visible);
}

void deliver52(Machine& machine, std::uint32_t word) {
    if (!machine.clrHeld52 && machine.doLatch52 != word) {
        machine.doLatch52 = word;
        machine.doLow52 = static_cast<std::uint8_t>(word);
        showDO52(machine);
    }
}

void deliver(Machine& machine, int slot, std::uint32_t word) {
    if (slot == slotQDA52) {
        deliver52(machine, word);
        return;
    }
    const auto index = static_cast<std::size_t>(slot);
    if (!machine.clrHeld[index] && machine.doLatch[index] != word) {
        machine.doLatch[index] = word;
        showDO(machine, slot);
    }
}

void answer(Machine& machine, int slot, int address) {
    if (machine.responder != 0) {
        machine.responder = collided;
        return;
    }
    machine.responder = static_cast<std::int16_t>(slot);
    machine.responderSA = static_cast<std::int16_t>(address);
    if (slot <= slotQDA73 && machine.serialReady[static_cast<std::size_t>(slot - 1)]) {
        machine.serialPending = true;
    }
}

void visitSlots(Machine& machine, const Frame& sent) {
    const Frame first = through(machine, 0, sent);
    const Frame second = through(machine, 1, first);
    const std::array<Frame, 3> heard{first, second, through(machine, 2, second)};
    for (const SlotRow& row : slotRows) {
        const Frame& frame = heard[row.link];
        if (takesPart(machine, row, frame.address)) {
            deliver(machine, row.slot, frame.word);
            answer(machine, row.slot, frame.address);
        }
    }
    if (machine.responder == collided) {
        machine.responder = 0;
    }
}

// --- noise ---------------------------------------------------------------------------------------------------------------

constexpr std::int16_t randomFailures = 11;  // the station of the last one fails on in the burst phase
constexpr std::int16_t cycleFailures = 15;
constexpr int oftenestOdds = 13;  // one tick in so many at long passes

// The shorter the pass, the rarer a spoiled visit per tick.
bool randomNoiseStrikes(Machine& machine) {
    const int odds = machine.scanLastAddr >= 15 ? oftenestOdds : (20 - machine.scanLastAddr) * oftenestOdds;
    const double r = std::uniform_real_distribution<double>(0.0, 1.0)(machine.random) * odds;
    return std::nearbyint(r) == 1.0;
}

}  // namespace

void noiseStep(Machine& machine) {
    if (!machine.noiseOn || !machine.picBOARD2_RXD[linkConnector[1]].plugged) {
        return;
    }
    if (machine.noiseBurst != 0) {
        if (machine.noiseBurst == noiseQuietTicks) {
            machine.random.seed(machine.systemTimer);
            machine.responder = collided;
            machine.noiseErrorCount = 0;
        }
        --machine.noiseBurst;
        return;
    }
    if (machine.noiseErrorCount < randomFailures) {
        if (randomNoiseStrikes(machine)) {
            machine.responder = collided;
            machine.noiseErrorAddr = machine.visitAddr;
            ++machine.noiseErrorCount;
        }
        return;
    }
    if (machine.visitAddr == machine.noiseErrorAddr) {
        machine.responder = collided;
        if (++machine.noiseErrorCount == cycleFailures) {
            machine.noiseErrorCount = 0;
        }
    }
}

void boardTick(Machine& machine) {
    startScan(machine, reg::scrLow, &Machine::scanRunning);
    startScan(machine, reg::scrHigh, &Machine::scanOneShot);

    countDown(machine.chkLed1Timer, machine.picChkLED[0]);
    countDown(machine.chkLed2Timer, machine.picChkLED[1]);
    countDown(machine.monLed73Timer, machine.picMON_LED73);
    countDown(machine.monLed52Timer, machine.picMON_LED52);

    if (!scanOn(machine) || (machine.chipMemory[reg::int0Request] & holdRequest) != 0) {
        return;
    }
    machine.visitAddr = machine.scanAddr;
    machine.stationPtr = static_cast<std::int16_t>(2 * machine.scanAddr);
    const auto control = static_cast<std::size_t>(machine.stationPtr);
    machine.cmdNibble = machine.chipMemory[control] & 0x0F;
    machine.stationErrorBit = machine.chipMemory[control + 1] & 0x04;
    machine.serialPending = false;
    noiseStep(machine);
    visitSlots(machine, {machine.visitAddr, static_cast<std::uint32_t>(memoryWord(machine, doBase + machine.stationPtr))});
}
