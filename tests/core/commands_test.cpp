// SPDX-License-Identifier: Apache-2.0
// The sixteen commands: which word goes where, and what becomes of the command byte.

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr int pattern = 0xEE;  // stands in all areas from DI to C7 before the visit

// The boards offer DI words 1D0nH, counter words C0nkH (slot n, counter k) and serial words 5E0nH.
Machine offeringMachine() {
    Machine machine = makersMachine();
    std::fill(machine.chipMemory.begin() + diBase, machine.chipMemory.begin() + drcBase, std::uint8_t{pattern});
    machine.counterImage.fill(0xC0);
    for (std::size_t slot = 1; slot <= 5; ++slot) {
        setInput(machine, static_cast<int>(slot), 0x1D00 + static_cast<int>(slot));
        for (std::size_t counter = 1; slot <= 4 && counter <= 6; ++counter) {
            machine.counterImage[12 * (slot - 1) + 2 * (counter - 1)] = static_cast<std::uint8_t>(slot << 4 | counter);
        }
    }
    machine.serialData = {0x01, 0x5E, 0x02, 0x5E, 0x03, 0x5E, 0x04, 0x5E};
    machine.serialReady.fill(true);
    machine.picSE.fill({.lit = true});
    return machine;
}

// One visit: the running scan stands at the station.
void visit(Machine& machine, int sa) {
    setByte(machine, reg::scrLow, 63);
    machine.scanRunning = true;
    machine.scanLastAddr = 63;
    machine.scanAddr = static_cast<std::uint8_t>(sa);
    ticks(machine, 1);
}

void expectOnlyThisWord(const Machine& machine, int address, int word) {
    EXPECT_EQ(memoryWord(machine, address), word);
    Machine rest = machine;
    setMemoryWord(rest, address, pattern << 8 | pattern);
    EXPECT_EQ(std::count(rest.chipMemory.begin() + diBase, rest.chipMemory.begin() + drcBase, pattern), drcBase - diBase);
}

// The boards keep what they offer, but for a cleared counter and a collected serial word.
void expectBoards(const Machine& machine, int command, int slot) {
    Machine expected = offeringMachine();
    if (slot <= 2 && command >= 9 && command <= 14) {
        std::fill_n(expected.counterImage.begin() + 12 * (slot - 1) + 2 * (command - 9), 2, std::uint8_t{0});
    } else if (slot <= 2 && command % 8 == 7) {
        expected.serialReady[static_cast<std::size_t>(slot - 1)] = false;
    }
    EXPECT_EQ(machine.counterImage, expected.counterImage);
    EXPECT_EQ(machine.serialReady, expected.serialReady);
    EXPECT_EQ(machine.serialData, expected.serialData);
    for (std::size_t place = 0; place < 4; ++place) {
        EXPECT_EQ(machine.picSE[place].lit, expected.serialReady[place]) << "slot " << place + 1;
    }
}

// The word that a command brings from a slot: every board has inputs, only the QDA41 counters and serial words.
int wordOf(int command, int slot) {
    const int counter = command & 7;
    return counter == 0   ? 0x1D00 + slot
           : slot > 2     ? 0
           : counter == 7 ? 0x5E00 + slot
           : command > 7  ? 0
                          : 0xC000 + 16 * slot + counter;
}

TEST(Commands, every_command_with_every_step_mode_at_every_station) {
    const Machine offering = offeringMachine();
    // By command, 0 to 6: the command byte afterwards in step mode 0, 2 and 3. All else ends.
    constexpr std::array<Row<3>, 7> counting{{{0x00, 0x21, 0x31},
                                              {0x01, 0x22, 0x32},
                                              {0x02, 0x23, 0x33},
                                              {0x03, 0x24, 0x34},
                                              {0x04, 0x25, 0x35},
                                              {0x05, 0x26, 0x36},
                                              {0x06, 0x20, 0x00}}};
    for (int number = 0; number < 16 * 16 && !HasFailure(); ++number) {
        const int command = number / 16;
        const int sa = number / 4 % 4 + 1;
        const int mode = number % 4;
        const bool counts = command < 7 && mode != 1;
        for (const int upper : {0x00, 0x40, 0x80, 0xC0}) {
            SCOPED_TRACE(testing::Message() << "command " << command << " station " << sa << " mode " << mode);
            Machine machine = offering;
            setCommand(machine, sa, upper | mode << 4 | command);
            visit(machine, sa);
            const std::size_t column = mode == 0 ? 0 : static_cast<std::size_t>(mode - 1);
            EXPECT_EQ(commandOf(machine, sa), upper | (counts ? counting[static_cast<std::size_t>(command)][column] : 0));
            expectOnlyThisWord(machine, 0x100 + 0x80 * (command & 7) + 2 * sa, wordOf(command, slotAt(sa)));
            expectBoards(machine, command, slotAt(sa));
            EXPECT_EQ(statusOf(machine, sa), sa == 4 || command % 8 == 7 ? 0 : 1) << "serial data waits at slots 1 to 3";
        }
    }
}

TEST(Commands, failed_visit_takes_nothing_and_does_not_step) {
    for (const int commandByte : {0x20, 0x13, 0x21, 0x36, 0x07, 0x08, 0x49, 0x0F}) {
        SCOPED_TRACE(commandByte);
        Machine machine = offeringMachine();
        setCommand(machine, 2, commandByte);
        unplug(machine, 2);
        visit(machine, 2);
        EXPECT_EQ(commandOf(machine, 2), commandByte);
        expectOnlyThisWord(machine, diBase, 0xEEEE);
        expectBoards(machine, 0, slotQDA41);
    }
}

}  // namespace
