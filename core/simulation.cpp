// SPDX-License-Identifier: Apache-2.0
#include "core/simulation.h"

#include "core/boardTick.h"

namespace {

constexpr std::int16_t chkLedTicks = 5000;
constexpr std::int16_t monLedTicks = 2000;

constexpr std::uint8_t statusSerial = 0x01;
constexpr std::uint8_t statusChanged = 0x02;
constexpr std::uint8_t statusFailed = 0x04;
constexpr std::uint8_t statusFailedOften = 0x08;
constexpr int mostFailures = 7;

constexpr std::uint8_t passEndRequest = 0x08;
constexpr std::uint8_t scanEndRequest = 0x80;

// --- commands ----------------------------------------------------------------------------------------------------------

enum class Source { input, counter, counterCleared, serial };
enum class Afterwards { step, stepAfterLast, finish };

// What a command transfers, from where to where, and what becomes of the command byte.
struct Command {
    int base;
    Source source;
    int counter;  // 0 to 5 for C1 to C6
    Afterwards afterwards;
};

constexpr Command counterRead(int counter, Afterwards afterwards) {
    return {counterBase + areaSize * counter, Source::counter, counter, afterwards};
}

constexpr Command counterClear(int counter) {
    return {counterBase + areaSize * counter, Source::counterCleared, counter, Afterwards::finish};
}

constexpr std::array<Command, 16> commands{{
    {diBase, Source::input, 0, Afterwards::step},
    counterRead(0, Afterwards::step),
    counterRead(1, Afterwards::step),
    counterRead(2, Afterwards::step),
    counterRead(3, Afterwards::step),
    counterRead(4, Afterwards::step),
    counterRead(5, Afterwards::stepAfterLast),
    {serialBase, Source::serial, 0, Afterwards::finish},
    {diBase, Source::input, 0, Afterwards::finish},
    counterClear(0),
    counterClear(1),
    counterClear(2),
    counterClear(3),
    counterClear(4),
    counterClear(5),
    {serialBase, Source::serial, 0, Afterwards::finish},
}};

constexpr int keepUpperBits = 0xC0;  // what ends a command: bits 0 to 5 go
constexpr int keepStepMode = 0xF0;   // what sends the count-up back to command 0

int stepModeOf(int commandByte) {
    return commandByte >> 4 & 3;
}

// The command byte after C6, the last one of the count-up, by step mode.
int afterLastCommand(int commandByte) {
    constexpr std::array<int, 4> kept{0xFF, keepUpperBits, keepStepMode, keepUpperBits};
    return commandByte & kept[static_cast<std::size_t>(stepModeOf(commandByte))];
}

struct Word {
    std::uint8_t low = 0;
    std::uint8_t high = 0;
};

Word wordAt(const std::uint8_t* image) {
    return {image[0], image[1]};
}

// The word that the responder delivers. Only slots 1 and 2 have counters and serial words; the others deliver 0 for them.
Word takeWord(Machine& machine, const Command& command) {
    const auto place = static_cast<std::size_t>(machine.responder - 1);
    if (command.source == Source::input) {
        return wordAt(&machine.diImage[2 * place]);
    }
    if (machine.responder > slotCascade) {
        return {};
    }
    if (command.source == Source::serial) {
        machine.picSE[place].lit = false;
        machine.serialReady[place] = false;
        return wordAt(&machine.serialData[2 * place]);
    }
    std::uint8_t* counter = &machine.counterImage[12 * place + 2 * static_cast<std::size_t>(command.counter)];
    if (command.source == Source::counterCleared) {
        counter[0] = 0;
        counter[1] = 0;
    }
    return wordAt(counter);
}

void stepAfter(Machine& machine, Afterwards afterwards, bool accepted) {
    std::uint8_t& commandByte = memoryAt(machine, machine.stationPtr);
    switch (afterwards) {
        case Afterwards::step:
            if (accepted) {
                stepCommand(machine);
            }
            break;
        case Afterwards::stepAfterLast: commandByte = static_cast<std::uint8_t>(afterLastCommand(commandByte)); break;
        case Afterwards::finish: commandByte &= keepUpperBits; break;
    }
}

// --- a visit -------------------------------------------------------------------------------------------------------------

void countEvent(Machine& machine, int counterAddress) {
    std::uint8_t& counter = memoryAt(machine, counterAddress);
    if (counter != 0xFF) {
        ++counter;
    }
}

void lightMonitor(Machine& machine) {
    if (machine.responder == slotQDA73) {
        machine.picMON_LED73.lit = true;
        machine.monLed73Timer = monLedTicks;
    } else if (machine.responder == slotQDA52) {
        machine.picMON_LED52.lit = true;
        machine.monLed52Timer = monLedTicks;
    }
}

int failuresIn(int status) {
    return status >> 4 & 7;
}

void countFailure(Machine& machine) {
    std::uint8_t& status = memoryAt(machine, machine.stationPtr + 1);
    if (failuresIn(status) != mostFailures) {
        status = static_cast<std::uint8_t>((status & 0x71) + 0x10);
        const int failures = failuresIn(status);
        if (failures != mostFailures) {
            machine.ssrErrorSeen = true;
        }
        if (failures == 1) {
            chk1Event(machine);
        } else if (failures == 3) {
            chk2Event(machine);
        }
    }
    status |= statusFailed;
    if (failuresIn(status) > 2) {
        status |= statusFailedOften;
    }
}

void raise(Machine& machine, int requestAddress, int bits) {
    memoryAt(machine, requestAddress) |= static_cast<std::uint8_t>(memoryAt(machine, requestAddress + 1) & bits);
}

// Writes a DI word where it differs, and reports a difference under the mask of the station.
void writeInput(Machine& machine, int address, Word word, bool& changed) {
    const Word old = wordAt(&machine.chipMemory[static_cast<std::size_t>(address)]);
    memoryAt(machine, address) = word.low;
    memoryAt(machine, address + 1) = word.high;
    const int mask = drcBase + 2 * machine.responderSA;
    changed =
        ((old.low ^ word.low) & memoryAt(machine, mask)) != 0 || ((old.high ^ word.high) & memoryAt(machine, mask + 1)) != 0;
}

void reportChange(Machine& machine, std::uint8_t& status) {
    status |= statusChanged;
    machine.ssrDataChanged = true;
    if ((memoryAt(machine, reg::int0Enable) & 1) != 0) {
        memoryAt(machine, reg::int0Request) |= 1;
        updateIntLed(machine);
    }
}

void takeAnswer(Machine& machine) {
    const Command& command = commands[machine.cmdNibble];
    const auto slotIndex = static_cast<std::size_t>(machine.responder - 1);
    // After a failure the first good DI word is dropped, unless the station's handshake switch is on.
    const bool accepted = command.source != Source::input || machine.picSSB[slotIndex].on || machine.stationErrorBit == 0;

    const Word word = takeWord(machine, command);
    stepAfter(machine, command.afterwards, accepted);

    const int address = command.base + 2 * machine.responderSA;
    bool changed = false;
    if (command.source != Source::input) {
        memoryAt(machine, address) = word.low;
        memoryAt(machine, address + 1) = word.high;
    } else if (accepted) {
        writeInput(machine, address, word, changed);
    }

    std::uint8_t& status = memoryAt(machine, machine.stationPtr + 1);
    const bool serialWaits = machine.serialPending && command.source != Source::serial;
    if (serialWaits && (status & statusSerial) == 0) {
        machine.ssrSerialData = true;
    }
    status = serialWaits ? statusSerial : 0;
    if (changed) {
        reportChange(machine, status);
    }
}

// --- the pass --------------------------------------------------------------------------------------------------------------

void endScanIndication(Machine& machine) {
    memoryAt(machine, reg::ssrLow) = 0;
    machine.picScanLed.lit = false;
    raise(machine, reg::int0Request, scanEndRequest);
    raise(machine, reg::int1Request, scanEndRequest);
}

void passEnd(Machine& machine) {
    passEndInterrupts(machine);
    memoryAt(machine, reg::ssrHigh) = static_cast<std::uint8_t>((machine.ssrDataChanged ? 1 : 0) |
                                                                (machine.ssrSerialData ? 2 : 0) | (machine.ssrErrorSeen ? 4 : 0));
    machine.ssrDataChanged = false;
    machine.ssrSerialData = false;
    machine.ssrErrorSeen = false;
    machine.chk1Seen = false;
    machine.chk2Seen = false;
}

void stepToNext(Machine& machine) {
    ++machine.scanAddr;
    memoryAt(machine, reg::ssrLow) = machine.scanAddr | 0x80;
}

void advanceSingle(Machine& machine) {
    if (machine.scanAddr != machine.scanLastAddr) {
        stepToNext(machine);
        return;
    }
    machine.scanOneShot = false;
    memoryAt(machine, reg::scrHigh) = 0;
    endScanIndication(machine);
    passEnd(machine);
}

void advanceContinuous(Machine& machine) {
    if (machine.scanAddr != machine.scanLastAddr) {
        stepToNext(machine);
        return;
    }
    const std::uint8_t nextLast = memoryAt(machine, reg::scrLow);
    if (nextLast != 0) {
        machine.scanAddr = 1;
        machine.scanLastAddr = nextLast;
        memoryAt(machine, reg::ssrLow) = 0x81;
    } else {
        machine.scanRunning = false;
        machine.scanAddr = 0;
        endScanIndication(machine);
    }
    passEnd(machine);
}

}  // namespace

void simulationTick(Machine& machine) {
    boardTick(machine);
    scanStep(machine);
}

void scanStep(Machine& machine) {
    lightMonitor(machine);
    if (!scanOn(machine) || (memoryAt(machine, reg::int0Request) & holdRequest) != 0) {
        return;
    }
    if (machine.responder == 0) {
        countFailure(machine);
    } else {
        takeAnswer(machine);
    }
    machine.responder = 0;
    // Two byte writes of SCR between two ticks can start both scans: each then takes its own step.
    if (machine.scanOneShot) {
        advanceSingle(machine);
    }
    if (machine.scanRunning) {
        advanceContinuous(machine);
    }
}

void stepCommand(Machine& machine) {
    std::uint8_t& commandByte = memoryAt(machine, machine.stationPtr);
    const int stepMode = stepModeOf(commandByte);
    if (stepMode == 1) {
        commandByte &= keepUpperBits;
    } else if (stepMode != 0) {
        ++commandByte;
    }
}

void chk1Event(Machine& machine) {
    countEvent(machine, reg::c1crLow);
    machine.picChkLED[0].lit = true;
    machine.chkLed1Timer = chkLedTicks;
    machine.chk1Seen = true;
}

void chk2Event(Machine& machine) {
    countEvent(machine, reg::c2crLow);
    machine.picChkLED[1].lit = true;
    machine.chkLed2Timer = chkLedTicks;
    machine.chk2Seen = true;
}

void passEndInterrupts(Machine& machine) {
    // SSR still tells of the pass before: serial data only counts when that pass brought no change.
    const bool changeBefore = (memoryAt(machine, reg::ssrHigh) & 1) != 0;
    const int common = passEndRequest | (machine.ssrSerialData && !changeBefore ? 0x10 : 0) | (machine.chk1Seen ? 0x20 : 0) |
                       (machine.chk2Seen ? 0x40 : 0);
    raise(machine, reg::int0Request, common | (machine.ssrDataChanged ? 0x02 | holdRequest : 0));
    raise(machine, reg::int1Request, common);
    updateIntLed(machine);
}

void updateIntLed(Machine& machine) {
    machine.intLedWanted = static_cast<std::int16_t>(1 + (memoryAt(machine, reg::int0Request) != 0 ? 1 : 0) +
                                                     (memoryAt(machine, reg::int1Request) != 0 ? 2 : 0));
    if (machine.intLedWanted != machine.intLedShown) {
        machine.picInt.visible = machine.intLedWanted >= 2;
        machine.intLedShown = machine.intLedWanted;
    }
}
