// The state of the machine and the operations that bring it to its beginning.

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace {

template <typename T>
bool blank(const T& values) {
    return std::all_of(values.begin(), values.end(), [](auto value) { return value == 0; });
}

TEST(MachineState, clear_board_state_empties_the_boards_and_leaves_the_scan) {
    // A machine after some work, with hands on its buttons.
    Machine machine = scanningMachine(5);
    std::fill_n(machine.chipMemory.begin(), registerBase, std::uint8_t{0xFF});
    machine.counterImage.fill(1);
    machine.diImage.fill(1);
    machine.serialData.fill(1);
    ticks(machine, 4);
    machine.serialReady.fill(true);
    machine.clrHeld.fill(true);
    machine.resetHeld.fill(true);
    machine.clrHeld52 = machine.resetHeld52 = machine.noiseOn = machine.writeTempLowFull = machine.writeTempHighFull = true;
    machine.ssrDataChanged = machine.ssrSerialData = machine.ssrErrorSeen = machine.chk1Seen = machine.chk2Seen = true;
    machine.writeTempLow = machine.writeTempHigh = 9;
    machine.chkLed1Timer = machine.chkLed2Timer = machine.intLedShown = machine.intLedWanted = 9;
    machine.noiseBurst = machine.noiseErrorCount = machine.noiseErrorAddr = machine.serialEditSlot = 9;
    machine.ios52 = machine.mode52 = machine.motorPhase = machine.motorStep = machine.motorCounter = 1;
    ASSERT_TRUE(machine.doLatch52 != 0 && machine.doLatch[3] != 0 && machine.monLed73Timer != 0 && machine.monLed52Timer != 0);
    const Machine before = machine;
    clearBoardState(machine);

    EXPECT_TRUE(blank(machine.diImage) && blank(machine.counterImage) && blank(machine.serialData));
    EXPECT_TRUE(blank(machine.serialReady) && blank(machine.clrHeld) && blank(machine.resetHeld) && blank(machine.doLatch));
    EXPECT_EQ(machine.doLatch52 | machine.doLow52, 0U);
    EXPECT_FALSE(machine.clrHeld52 || machine.resetHeld52 || machine.noiseOn);
    EXPECT_FALSE(machine.writeTempLowFull || machine.writeTempHighFull || machine.writeTempLow || machine.writeTempHigh);
    EXPECT_FALSE(machine.ssrDataChanged || machine.ssrSerialData || machine.ssrErrorSeen || machine.chk1Seen || machine.chk2Seen);
    EXPECT_EQ(machine.chkLed1Timer | machine.chkLed2Timer | machine.monLed73Timer | machine.monLed52Timer, 0);
    EXPECT_EQ(machine.intLedShown | machine.intLedWanted | machine.serialEditSlot | machine.ios52 | machine.mode52, 0);
    EXPECT_EQ(machine.noiseBurst | machine.noiseErrorCount | machine.noiseErrorAddr, 0);
    EXPECT_EQ(machine.motorPhase | machine.motorStep | machine.motorCounter, 0);

    EXPECT_TRUE(machine.scanRunning);
    EXPECT_EQ(machine.scanAddr, 5);
    EXPECT_EQ(machine.boardSA, before.boardSA);
    EXPECT_EQ(machine.boardClock, before.boardClock);
    EXPECT_EQ(machine.chipMemory, before.chipMemory);
}

TEST(MachineState, random_fill_stops_short_of_the_registers) {
    constexpr std::uint64_t date = 20260102030405;
    Machine machine;
    machine.chipMemory.fill(0xEE);
    Machine again = machine;
    Machine later = machine;
    randomizeMemory(machine, date);
    again.random.seed(1);
    randomizeMemory(again, date);
    randomizeMemory(later, date + 1);

    const auto registers = machine.chipMemory.begin() + 0x580;
    const auto untouched = [](std::uint8_t byte) { return byte == 0xEE; };
    EXPECT_TRUE(std::all_of(registers, machine.chipMemory.end(), untouched));
    EXPECT_LT(std::count_if(machine.chipMemory.begin(), registers, untouched), 20);
    EXPECT_FALSE(machine.chipMemory[0x57F] == 0xEE && later.chipMemory[0x57F] == 0xEE);
    EXPECT_GT(std::set<int>(machine.chipMemory.begin(), registers).size(), 240U) << "nearly every byte value comes up";
    EXPECT_TRUE(blank(machine.memoryShadow));
    EXPECT_EQ(machine.chipMemory, again.chipMemory);
    EXPECT_NE(machine.chipMemory, later.chipMemory);
}

TEST(MachineState, reset_of_the_registers_takes_the_duplex_setting) {
    for (const auto& [transfer, bcr, duplexBit] : Rows<3>{{0, 0x13, 16}, {1, 0x03, 0}, {2, 0x03, 0}, {-1, 0x03, 0}}) {
        SCOPED_TRACE(transfer);
        Machine machine;
        machine.chipMemory.fill(0xEE);
        machine.transferDefault[0] = static_cast<std::int16_t>(transfer);
        resetRegisters(machine);
        for (int index = 0x580; index <= 0x58D; ++index) {
            EXPECT_EQ(byteAt(machine, index), 0) << index;
        }
        EXPECT_EQ(memoryWord(machine, reg::bcrLow), bcr);
        EXPECT_EQ(machine.duplexBit, duplexBit);
        EXPECT_EQ(machine.registerShadowLow[8], bcr);
        EXPECT_EQ(std::string(machine.chipMemory.begin() + 0x590, machine.chipMemory.begin() + 0x596), "QDA60 ");
        EXPECT_EQ(byteAt(machine, 0x57F), 0xEE);
        EXPECT_EQ(byteAt(machine, 0x596), 0xEE);
    }
}

TEST(MachineState, reset_of_the_registers_ends_a_scan_at_its_pass_end) {
    Machine machine = scanningMachine(4);
    ticks(machine, 2);
    resetRegisters(machine);
    ticks(machine, 1);
    EXPECT_TRUE(scanOn(machine));
    ticks(machine, 1);
    EXPECT_FALSE(scanOn(machine));
}

}  // namespace
