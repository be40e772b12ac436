// SPDX-License-Identifier: Apache-2.0
// The operations that bring the state of the machine to its beginning.

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <tuple>

namespace {

// What the boards hold and the scan keeps from visit to visit.
template <typename Of>
auto boardState(Of& m) {
    return std::tie(m.diImage, m.counterImage, m.serialData, m.serialReady, m.serialEditSlot, m.doLatch, m.doLatch52, m.doLow52,
                    m.clrHeld, m.clrHeld52, m.resetHeld, m.resetHeld52, m.noiseOn, m.noiseBurst, m.noiseErrorCount,
                    m.noiseErrorAddr, m.ios52, m.mode52, m.motorPhase, m.motorStep, m.motorCounter, m.writeTempLow,
                    m.writeTempHigh, m.writeTempLowFull, m.writeTempHighFull, m.ssrDataChanged, m.ssrSerialData, m.ssrErrorSeen,
                    m.chk1Seen, m.chk2Seen, m.chkLed1Timer, m.chkLed2Timer, m.monLed73Timer, m.monLed52Timer, m.intLedShown,
                    m.intLedWanted);
}

template <typename T>
void touch(T& field) {
    field = 1;
}

template <typename T, std::size_t n>
void touch(std::array<T, n>& fields) {
    fields.fill(1);
}

TEST(MachineState, clear_board_state_empties_the_boards_and_leaves_the_scan) {
    Machine machine = scanningMachine(5);
    ticks(machine, 4);
    std::apply([](auto&... field) { (touch(field), ...); }, boardState(machine));
    const Machine before = machine;
    const Machine blank;
    clearBoardState(machine);
    EXPECT_EQ(boardState(machine), boardState(blank));
    const auto kept = [](const Machine& m) {
        return std::tie(m.scanRunning, m.scanAddr, m.boardSA, m.boardClock, m.chipMemory, m.picScanLed.lit);
    };
    EXPECT_EQ(kept(machine), kept(before));
}

TEST(MachineState, random_fill_stops_short_of_the_registers) {
    constexpr std::uint64_t date = 20260102030405;
    Machine machine;
    machine.chipMemory.fill(0xEE);
    Machine again = machine;
    Machine later = machine;
    again.random.seed(1);
    randomizeMemory(machine, date);
    randomizeMemory(again, date);
    randomizeMemory(later, date + 1);
    const auto registers = machine.chipMemory.begin() + 0x580;
    EXPECT_EQ(std::count(registers, machine.chipMemory.end(), 0xEE), 0x280);
    EXPECT_LT(std::count(machine.chipMemory.begin(), registers, 0xEE), 20);
    EXPECT_FALSE(machine.chipMemory[0x57F] == 0xEE && later.chipMemory[0x57F] == 0xEE);
    EXPECT_GT(std::set<int>(machine.chipMemory.begin(), registers).size(), 240U) << "nearly every byte value comes up";
    EXPECT_EQ(machine.memoryShadow, Machine().memoryShadow);
    EXPECT_EQ(machine.chipMemory, again.chipMemory);
    EXPECT_NE(machine.chipMemory, later.chipMemory);
    machine.memoryShadow.fill(1);
    clearMemory(machine);
    EXPECT_EQ(machine.chipMemory, Machine().chipMemory);
    EXPECT_EQ(machine.memoryShadow, Machine().memoryShadow);
}

TEST(MachineState, reset_of_the_registers_takes_the_duplex_setting_and_leaves_the_scan_flags) {
    for (const auto& [transfer, bcr, duplexBit] : Rows<3>{{0, 0x13, 16}, {1, 0x03, 0}, {2, 0x03, 0}, {-1, 0x03, 0}}) {
        SCOPED_TRACE(transfer);
        Machine machine;
        machine.scanRunning = machine.scanOneShot = true;
        machine.chipMemory.fill(0xEE);
        machine.transferDefault[0] = static_cast<std::int16_t>(transfer);
        resetRegisters(machine);
        EXPECT_EQ(std::count(machine.chipMemory.begin() + 0x580, machine.chipMemory.begin() + 0x58E, 0), 14);
        EXPECT_EQ(memoryWord(machine, reg::bcrLow), bcr);
        EXPECT_EQ(machine.duplexBit, duplexBit);
        EXPECT_EQ(machine.registerShadowLow[8], bcr);
        EXPECT_EQ(std::string(machine.chipMemory.begin() + 0x590, machine.chipMemory.begin() + 0x596), "QDA60 ");
        EXPECT_EQ(byteAt(machine, 0x57F) + byteAt(machine, 0x596), 2 * 0xEE);
        EXPECT_TRUE(machine.scanRunning && machine.scanOneShot);
    }
}

}  // namespace
