// SPDX-License-Identifier: Apache-2.0
#include "boards/boardSet.h"
#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/stationCheck.h"
#include "config/restart.h"
#include "core/runControl.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <tuple>

namespace {

TEST(Rates, fold_clock_pins_and_bpss_into_one_number) {
    Machine machine = makersMachine();
    // An item of the clock, or -1 for the pin instead, and the rate of Board No4 afterwards.
    for (const auto& [clock, rate] : Rows<2>{{2, 2}, {-1, 3}, {1, 2}, {-1, 1}, {0, 0}, {-1, 1}, {-1, 0}}) {
        clock < 0 ? picBPSS_DblClick(machine) : cmbClock52_LostFocus(machine, clock);
        EXPECT_EQ(machine.boardClock[clockQDA52], rate);
    }
    cmbClock41_LostFocus(machine, 2);
    cmbBPS73_LostFocus(machine, 3);
    EXPECT_EQ(machine.boardClock, (std::array<std::int16_t, 4>{0, 2, 3, 0}));
    EXPECT_TRUE(machine.cmbClock41.listIndex == 2 && machine.cmbBPS73.listIndex == 3 && machine.cmbClock52.listIndex == 0);
    cmbCPUType_LostFocus(machine, 3);
    EXPECT_TRUE(machine.cpuType == 3 && machine.cmbCPUType.listIndex == 3);
}

TEST(Addresses, come_from_the_last_two_digits_of_the_item) {
    Machine machine = makersMachine();
    for (const auto& [index, item] : {std::pair{0, "0x01"}, {9, "0x0A"}, {15, "0x10"}, {62, "0x3F"}}) {
        EXPECT_EQ(addressItem(index), item);
        cmbSA_LostFocus(machine, saQDA41, index);
        EXPECT_TRUE(machine.boardSA[saQDA41] == index + 1 && machine.cmbSA[saQDA41].listIndex == index);
    }
}

TEST(CenterReset, stops_the_scan_at_once_and_says_full_duplex) {
    Machine machine = scanningMachine();
    machine.transferDefault.fill(1);
    setInput(machine, 1, 0x0077);
    ticks(machine, 6);
    machine.picChkLED[0].lit = machine.picInt.visible = machine.scanOneShot = true;
    setMemoryWord(machine, reg::int0Request, 0xFFFF);
    picReset_DblClick(machine, 0);
    EXPECT_FALSE(scanOn(machine) || machine.picScanLed.lit || machine.scanAddr != 0);
    EXPECT_EQ(std::count(&machine.chipMemory[registerBase], &machine.chipMemory[reg::bcrLow], 0), 14);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0013);
    EXPECT_EQ(machine.duplexBit, 0) << "the settings say half";
    EXPECT_EQ(memoryWord(machine, diBase + 4), 0x0077) << "memory stays";
    EXPECT_TRUE(machine.picInt.visible && machine.picChkLED[0].lit && machine.picReset[0].down);
    picReset_MouseUp(machine, 0);
    ticks(machine, 5);
    EXPECT_FALSE(machine.picReset[0].down || scanOn(machine));
}

TEST(HeldButton, darkens_its_outputs_until_the_visit_after_its_release_and_a_reset_takes_the_board_off_the_line) {
    for (const auto& [slot, sa] : Rows<2>{{1, 2}, {2, 3}, {3, 1}, {5, 4}}) {
        for (const bool reset : {true, false}) {
            SCOPED_TRACE(testing::Message() << (reset ? "reset of slot " : "CLR of slot ") << slot);
            const auto index = static_cast<std::size_t>(reset ? slot : slot - 1);
            Machine machine = scanningMachine();
            setMemoryWord(machine, doBase + 2 * sa, 0x84C1);
            ticks(machine, 8);
            const Pin& pin = *outputsOf(machine, slot);
            const Button& button = reset ? machine.picReset[index] : machine.picCLR[index];
            ASSERT_TRUE(latchOf(machine, slot) == 0x84C1 && pin.level);
            (reset ? picReset_DblClick : picCLR_DblClick)(machine, index);
            EXPECT_FALSE(reset && slot == 3 && machine.picMON_LED73.lit);
            EXPECT_FALSE(reset && slot == 5 && machine.picMON_LED52.lit);
            for (const int count : {0, 12}) {
                ticks(machine, count);
                EXPECT_TRUE(latchOf(machine, slot) == 0 && !pin.level && button.down);
            }
            EXPECT_EQ(statusOf(machine, sa), reset ? 0x3C : 0) << "with CLR it answers all the same";
            EXPECT_EQ(machine.chipMemory[reg::c1crLow], reset ? 1 : 0) << "the boards behind it still hear";
            EXPECT_EQ(machine.doLow52, slot == 5 ? 0xC1 : 0) << "the motor keeps its direction";
            (reset ? picReset_MouseUp : picCLR_MouseUp)(machine, index);
            EXPECT_FALSE(pin.level || button.down);
            ticks(machine, 4);
            EXPECT_EQ(statusOf(machine, sa), 0);
            EXPECT_TRUE(latchOf(machine, slot) == 0x84C1 && pin.level);
        }
    }
}

TEST(BoardReset, of_board_no4_clears_its_counter_and_twelve_input_bits) {
    Machine machine = makersMachine();
    machine.counterImage.fill(9);
    setInput(machine, 5, 0xFFFF);
    setInput(machine, 1, 0x0055);
    picReset_DblClick(machine, 5);
    picReset_DblClick(machine, 1);
    EXPECT_EQ(inputOf(machine, 5), 0xF000);
    EXPECT_EQ(machine.counterImage[48] | machine.counterImage[49], 0);
    EXPECT_TRUE(machine.counterImage[0] == 9 && inputOf(machine, 1) == 0x55) << "switches and other counters stay";
}

TEST(PortPins, the_ios_modes_shape_the_pins_of_board_no4) {
    const std::array<std::string, 9> patterns{"IIIIIIIIIIIIIIII", "OOOOIIIIIIIIIIII", "OOOOOOOOIIIIIIII",
                                              "OOOOOOOOOOOOIIII", "OOOOOOOOOOOOOOII", "OOOOOOOOOOOOOOOO",
                                              "****OOOOIIIIIIII", "****OOOO****IIII", "IIIIIIIIIIIIIIII"};
    for (int mode = 0; mode <= 8; ++mode) {
        SCOPED_TRACE(mode);
        Machine machine = makersMachine();
        machine.doLatch52 = 0xFFFF;
        setInput(machine, 5, 0x55AA);
        cmbIOS_LostFocus(machine, mode);
        EXPECT_EQ(inputOf(machine, 5), 0) << "a change of mode drops every input";
        for (std::size_t bit = 0; bit < 16; ++bit) {
            const char kind = patterns[static_cast<std::size_t>(mode)][15 - bit];
            const Pin pin = machine.picPI[64 + bit];
            EXPECT_EQ(!pin.visible ? '*' : pin.output ? 'O' : 'I', kind) << "pin " << bit;
            EXPECT_TRUE(kind == '*' || pin.level == pin.output) << "outputs show the latch at once";
            for (const int word : {mode == 7 ? 0x1000 << bit : 1 << bit, 0}) {
                picPI_Click(machine, 64 + bit);
                EXPECT_EQ(inputOf(machine, 5), kind == 'I' ? word : 0) << "pin " << bit;
            }
        }
    }
}

TEST(PortPins, a_switch_moves_its_bit_of_the_image_and_nothing_in_memory) {
    Machine machine = makersMachine();
    const Machine before = machine;
    for (std::size_t pin = 0; pin < 64; ++pin) {
        for (const int word : {1 << pin % 16, 0}) {
            picPI_Click(machine, pin);
            EXPECT_EQ(inputOf(machine, static_cast<int>(pin / 16) + 1), word) << pin;
        }
    }
    EXPECT_TRUE(machine.chipMemory == before.chipMemory && machine.diImage == before.diImage);
}

TEST(PortPins, ssa_and_ssb_choose_the_timing_chart) {
    Machine machine = makersMachine();
    for (const auto& [group, first] : {std::pair<std::size_t, int>{0, 1}, {1, 1}, {2, 5}, {3, 1}, {4, 1}}) {
        EXPECT_EQ(timingChart(machine, group), first);
        picSSA_DblClick(machine, group);
        EXPECT_EQ(timingChart(machine, group), first + 1);
        picSSB_DblClick(machine, group);
        EXPECT_EQ(timingChart(machine, group), first + 3);
        picSSA_DblClick(machine, group);
        EXPECT_EQ(timingChart(machine, group), first + 2);
    }
}

TEST(Bench, plugs_and_fits_by_settings_of_exactly_1) {
    for (const int setting : {0, 2, -1}) {
        Machine machine;
        machine.cableConnectionDefault = machine.cascadeDefault = machine.transferDefault[0] = static_cast<std::int16_t>(setting);
        setUpBench(machine);
        EXPECT_FALSE(machine.picBOARD2_RXD[0].plugged || machine.picBridge.visible) << setting;
        EXPECT_EQ(machine.duplexBit, 16) << "the reset of the registers asks for anything but 0";
    }
}

// Everything on the bench that a hand or the scan can move.
template <typename Of>
auto benchState(Of& m) {
    return std::tie(m.picScanLed, m.picChkLED, m.picMON_LED73, m.picMON_LED52, m.picSE, m.picSerialInt, m.picInt, m.picBOARD1_RXD,
                    m.picBOARD2_RXD, m.picBridge, m.picCableUpTop, m.picTermR, m.picJumperFull, m.duplexBit, m.picReset, m.picCLR,
                    m.picCounter, m.picPower, m.lampLevel, m.timMotorInterval, m.cmbSA, m.cmbClock41, m.cmbClock52, m.cmbBPS73,
                    m.cmbCPUType, m.cmbIOS, m.cmbMode, m.picSSA, m.picSSB, m.picBPSS, m.picPI, m.picPO, m.scanRunning,
                    m.scanOneShot, m.serialReady, m.resetHeld, m.startupDone, m.chipMemory);
}

TEST(Restart, leaves_the_bench_as_a_start_does_and_speaks_no_warning_meanwhile) {
    for (const std::int16_t setting : {std::int16_t{0}, std::int16_t{1}}) {
        const auto takeSettings = [setting](Machine& machine) {
            Mdef_Set(machine);
            machine.cableConnectionDefault = machine.cascadeDefault = machine.transferDefault[0] = setting;
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

}  // namespace
