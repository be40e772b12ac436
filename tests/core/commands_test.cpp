// The sixteen commands: which word goes where, and what becomes of the command byte.

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr int pattern = 0xEE;  // stands in all areas from DI to C7 before the visit

struct CommandRow {
    int command;
    int area;
    std::array<int, 4> wordByStation;  // slots 3, 1, 2, 5
    std::array<int, 4> after;          // command byte by step mode, bits 6 and 7 clear
};

// The boards offer DI words 1D0nH, counter words C0nkH (slot n, counter k) and serial words 5E0nH.
constexpr std::array<CommandRow, 16> commandRows{{
    {0, 0x100, {0x1D03, 0x1D01, 0x1D02, 0x1D05}, {0x00, 0x00, 0x21, 0x31}},
    {1, 0x180, {0, 0xC011, 0xC021, 0}, {0x01, 0x00, 0x22, 0x32}},
    {2, 0x200, {0, 0xC012, 0xC022, 0}, {0x02, 0x00, 0x23, 0x33}},
    {3, 0x280, {0, 0xC013, 0xC023, 0}, {0x03, 0x00, 0x24, 0x34}},
    {4, 0x300, {0, 0xC014, 0xC024, 0}, {0x04, 0x00, 0x25, 0x35}},
    {5, 0x380, {0, 0xC015, 0xC025, 0}, {0x05, 0x00, 0x26, 0x36}},
    {6, 0x400, {0, 0xC016, 0xC026, 0}, {0x06, 0x00, 0x20, 0x00}},
    {7, 0x480, {0, 0x5E01, 0x5E02, 0}, {}},
    {8, 0x100, {0x1D03, 0x1D01, 0x1D02, 0x1D05}, {}},
    {9, 0x180, {}, {}},
    {10, 0x200, {}, {}},
    {11, 0x280, {}, {}},
    {12, 0x300, {}, {}},
    {13, 0x380, {}, {}},
    {14, 0x400, {}, {}},
    {15, 0x480, {0, 0x5E01, 0x5E02, 0}, {}},
}};

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
    const auto place = static_cast<std::size_t>(slot - 1);
    if (slot <= 2 && command >= 9 && command <= 14) {
        std::fill_n(expected.counterImage.begin() + 12 * (slot - 1) + 2 * (command - 9), 2, std::uint8_t{0});
    } else if (slot <= 2 && (command == 7 || command == 15)) {
        expected.serialReady[place] = false;
    }
    EXPECT_EQ(machine.counterImage, expected.counterImage);
    EXPECT_EQ(machine.serialReady, expected.serialReady);
    EXPECT_EQ(machine.serialData, expected.serialData);
    for (std::size_t other = 0; other < 4; ++other) {
        EXPECT_EQ(machine.picSE[other].lit, expected.serialReady[other]) << "slot " << other + 1;
    }
}

TEST(Commands, every_command_with_every_step_mode_at_every_station) {
    const Machine offering = offeringMachine();
    for (const CommandRow& row : commandRows) {
        for (std::size_t place = 0; place < 16 && !HasFailure(); ++place) {
            const int sa = static_cast<int>(place / 4) + 1;
            const std::size_t mode = place % 4;
            for (const int upper : {0x00, 0x40, 0x80, 0xC0}) {
                SCOPED_TRACE(testing::Message() << "command " << row.command << " station " << sa << " mode " << mode);
                Machine machine = offering;
                setCommand(machine, sa, upper | static_cast<int>(mode) << 4 | row.command);
                visit(machine, sa);
                EXPECT_EQ(commandOf(machine, sa), upper | row.after[mode]);
                expectOnlyThisWord(machine, row.area + 2 * sa, row.wordByStation[place / 4]);
                expectBoards(machine, row.command, slotAt(sa));
                EXPECT_EQ(statusOf(machine, sa), sa == 4 || row.area == 0x480 ? 0 : 1) << "serial data waits at slots 1 to 3";
            }
        }
    }
}

TEST(Commands, counting_up_goes_round_in_step_mode_2_and_ends_in_step_mode_3) {
    for (const auto& visits : Rows<9>{{0x60, 0x61, 0x62, 0x63, 0x64, 0x65, 0x66, 0x60, 0x61},
                                      {0x30, 0x31, 0x32, 0x33, 0x34, 0x35, 0x36, 0x00, 0x00}}) {
        Machine machine = offeringMachine();
        setCommand(machine, 2, visits[0]);
        for (const int commandByte : visits) {
            EXPECT_EQ(commandOf(machine, 2), commandByte);
            visit(machine, 2);
        }
        for (const auto& [area, word] : Rows<2>{{0x100, 0x1D01}, {0x180, 0xC011}, {0x280, 0xC013}, {0x400, 0xC016}}) {
            EXPECT_EQ(memoryWord(machine, area + 2 * 2), word);
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

TEST(Commands, serial_data_shows_in_the_status_until_it_is_collected) {
    Machine machine = offeringMachine();
    machine.serialReady = {true, false, false, false};
    setByte(machine, reg::scrLow, 4);
    for (const auto& [command, status, ssrHigh] : Rows<3>{{0, 1, 2}, {0, 1, 0}, {7, 0, 0}, {0, 0, 0}}) {
        setCommand(machine, 2, command);
        ticks(machine, 4);
        EXPECT_EQ(statusOf(machine, 2), status);
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), ssrHigh) << "only the first showing is reported";
        EXPECT_EQ(statusOf(machine, 1) | statusOf(machine, 3) | statusOf(machine, 4), 0);
    }
}

}  // namespace
