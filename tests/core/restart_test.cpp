// SPDX-License-Identifier: Apache-2.0
// What brings the machine to its beginning: the random fill, the chip's reset, and a restart of the whole bench.

#include "config/restart.h"

#include "boards/boardSet.h"
#include "boards/stationCheck.h"
#include "core/runControl.h"
#include "tests/machines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <tuple>

namespace {

// Everything that a hand or the scan can move.
template <typename Of>
auto benchState(Of& m) {
    return std::tie(m.picScanLed, m.picChkLED, m.picMON_LED73, m.picMON_LED52, m.picSE, m.picSerialInt, m.picInt, m.picBOARD1_RXD,
                    m.picBOARD2_RXD, m.picBridge, m.picCableUpTop, m.picTermR, m.picJumperFull, m.duplexBit, m.picReset, m.picCLR,
                    m.picCounter, m.picPower, m.lampLevel, m.timMotorInterval, m.cmbSA, m.cmbClock41, m.cmbClock52, m.cmbBPS73,
                    m.cmbCPUType, m.cmbIOS, m.cmbMode, m.picSSA, m.picSSB, m.picBPSS, m.picPI, m.picPO, m.scanRunning,
                    m.scanOneShot, m.startupDone, m.chipMemory, m.diImage, m.counterImage, m.serialData, m.serialReady,
                    m.serialEditSlot, m.doLatch, m.doLatch52, m.doLow52, m.clrHeld, m.clrHeld52, m.resetHeld, m.resetHeld52,
                    m.noiseOn, m.noiseBurst, m.noiseErrorCount, m.noiseErrorAddr, m.motorPhase, m.motorStep, m.motorCounter,
                    m.writeTempLow, m.writeTempHigh, m.writeTempLowFull, m.writeTempHighFull, m.ssrDataChanged, m.ssrSerialData,
                    m.ssrErrorSeen, m.chk1Seen, m.chk2Seen, m.chkLed1Timer, m.chkLed2Timer, m.monLed73Timer, m.monLed52Timer,
                    m.intLedShown, m.intLedWanted);
}

TEST(Restart, leaves_the_bench_as_a_start_does_and_speaks_no_warning_meanwhile) {
    for (const std::int16_t setting : {std::int16_t{0}, std::int16_t{1}}) {
        const auto takeSettings = [setting](Machine& machine) {
            Mdef_Set(machine);
            machine.cableConnectionDefault = machine.cascadeDefault = machine.transferDefault[0] = setting;
            machine.mode52 = 2;
        };
        Machine fresh;
        takeSettings(fresh);
        setUpBench(fresh);
        clearMemory(fresh);
        resetRegisters(fresh);
        setByte(fresh, reg::scrLow, 4);
        fresh.startupDone = true;
        for (const int touch : {0, 1}) {
            SCOPED_TRACE(testing::Message() << "setting " << setting << " touch " << touch);
            Machine machine = fresh;
            std::apply([touch](auto&... state) { (std::memset(static_cast<void*>(&state), touch, sizeof(state)), ...); },
                       benchState(machine));
            takeSettings(machine);
            beginRestart(machine);
            TickBar bar;
            EXPECT_FALSE(timTick_Timer(machine, bar).refresh);
            machine.picBOARD2_RXD.fill({true});
            machine.cmbSA.fill({6});
            EXPECT_EQ(chkSADup(machine), Answer());
            resetMachine(machine, 20260101000000);
            setUpBench(machine);
            endRestart(machine);
            EXPECT_EQ(benchState(machine), benchState(fresh));
        }
    }
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
