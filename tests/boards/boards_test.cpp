#include "boards/boardSet.h"
#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/stationCheck.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

int diWord(const Machine& machine, int slot) {
    const auto at = static_cast<std::size_t>(2 * (slot - 1));
    return machine.diImage[at] | machine.diImage[at + 1] << 8;
}

// The pins of slot 5 from 15 to 0: input, output, hidden.
std::string pattern(const Machine& machine) {
    std::string text;
    for (std::size_t bit = 16; bit-- > 0;) {
        const Pin& pin = machine.picPI[64 + bit];
        text += !pin.visible ? '*' : pin.output ? 'O' : 'I';
    }
    return text;
}

TEST(Rates, fold_clock_pins_and_bpss_into_one_number) {
    Machine machine = makersMachine();
    cmbClock52_LostFocus(machine, 2);
    picBPSS_DblClick(machine);
    EXPECT_EQ(machine.boardClock[clockQDA52], 3) << "12MHz with BPSS-H";
    cmbClock52_LostFocus(machine, 1);
    EXPECT_EQ(machine.boardClock[clockQDA52], 2) << "the pin first, then the clock";
    picBPSS_DblClick(machine);
    EXPECT_EQ(machine.boardClock[clockQDA52], 1);
    cmbClock52_LostFocus(machine, 0);
    picBPSS_DblClick(machine);
    picBPSS_DblClick(machine);
    EXPECT_EQ(machine.boardClock[clockQDA52], 0);
    cmbClock41_LostFocus(machine, 2);
    cmbBPS73_LostFocus(machine, 3);
    EXPECT_EQ(machine.boardClock, (std::array<std::int16_t, 4>{0, 2, 3, 0}));

    machine.chipMemory[reg::bcrLow] = 0x10;  // 1.5 Mbps
    machine.chipMemory[reg::scrLow] = 4;
    ticks(machine, 4);
    EXPECT_EQ(statusOf(machine, 1), 0) << "Board No1 hears, the others don't";
    EXPECT_EQ(statusOf(machine, 2), 0x14);
    EXPECT_EQ(statusOf(machine, 4), 0x14);
}

TEST(Addresses, come_from_the_last_two_digits_of_the_item) {
    EXPECT_EQ(addressItem(0), "0x01");
    EXPECT_EQ(addressItem(62), "0x3F");
    Machine machine = makersMachine();
    cmbSA_LostFocus(machine, saQDA41, 62);
    EXPECT_EQ(machine.boardSA[saQDA41], 63);
    machine.chipMemory[reg::scrLow] = 63;
    ticks(machine, 63);
    EXPECT_EQ(statusOf(machine, 63), 0);
    EXPECT_EQ(statusOf(machine, 2), 0x14) << "nobody is left on SA 2";
}

TEST(CenterReset, stops_the_scan_at_once_and_says_full_duplex) {
    Machine machine = scanningMachine();
    machine.transferDefault.fill(1);
    machine.diImage[0] = 0x77;
    ticks(machine, 6);
    machine.picChkLED[0].lit = true;
    machine.chkLed1Timer = 5;
    machine.chipMemory[reg::int0Request] = 8;
    updateIntLed(machine);
    picReset_DblClick(machine, 0);
    EXPECT_FALSE(machine.scanRunning || machine.scanOneShot || machine.picScanLed.lit);
    EXPECT_EQ(machine.scanAddr, 0);
    for (int address = registerBase; address < reg::bcrLow; address += 2) {
        EXPECT_EQ(memoryWord(machine, address), 0);
    }
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0013);
    EXPECT_EQ(machine.duplexBit, 0) << "the settings say half";
    EXPECT_EQ(memoryWord(machine, diBase + 4), 0x0077) << "memory stays";
    EXPECT_TRUE(machine.picInt.visible && machine.picChkLED[0].lit);
    EXPECT_TRUE(machine.picReset[0].down);
    picReset_MouseUp(machine, 0);
    EXPECT_FALSE(machine.picReset[0].down);
    ticks(machine, 5);
    EXPECT_FALSE(machine.picChkLED[0].lit || machine.scanRunning);
}

TEST(BoardReset, takes_the_board_off_the_line_while_it_is_held) {
    struct Row {
        int slot, sa;
    };
    for (const Row& row : {Row{1, 2}, Row{2, 3}, Row{3, 1}, Row{5, 4}}) {
        SCOPED_TRACE(row.slot);
        const auto slot = static_cast<std::size_t>(row.slot);
        Machine machine = scanningMachine();
        setMemoryWord(machine, doBase + 2 * row.sa, 0x8421);
        machine.diImage[2 * (slot - 1)] = 0x0F;
        ticks(machine, 8);
        const auto latch = [&] { return row.slot == 5 ? machine.doLatch52 : machine.doLatch[slot]; };
        const auto pin = [&] { return row.slot == 5 ? machine.picPI[64].level : machine.picPO[16 * (slot - 1)].level; };
        ASSERT_TRUE(latch() == 0x8421 && pin());
        picReset_DblClick(machine, slot);
        EXPECT_EQ(latch(), 0U);
        EXPECT_FALSE(pin());
        EXPECT_FALSE(row.slot == 3 && machine.picMON_LED73.lit);
        EXPECT_FALSE(row.slot == 5 && machine.picMON_LED52.lit);
        ticks(machine, 12);
        EXPECT_EQ(statusOf(machine, row.sa), 0x3C);
        EXPECT_EQ(latch(), 0U);
        EXPECT_EQ(machine.chipMemory[reg::c1crLow], 1) << "the boards behind it still hear";
        picReset_MouseUp(machine, slot);
        ticks(machine, 4);
        EXPECT_EQ(statusOf(machine, row.sa), 0);
        EXPECT_TRUE(latch() == 0x8421 && pin());
    }
}

TEST(BoardReset, of_Board_No4_clears_its_counter_and_twelve_input_bits) {
    Machine machine = makersMachine();
    machine.diImage[8] = 0xFF;
    machine.diImage[9] = 0xFF;
    machine.counterImage[48] = 0x34;
    machine.counterImage[49] = 0x02;
    machine.counterImage[0] = 9;
    machine.diImage[0] = 0x55;
    picReset_DblClick(machine, 5);
    EXPECT_EQ(diWord(machine, 5), 0xF000);
    EXPECT_EQ(machine.counterImage[48] | machine.counterImage[49], 0);
    picReset_DblClick(machine, 1);
    EXPECT_TRUE(machine.counterImage[0] == 9 && diWord(machine, 1) == 0x55) << "switches and counters stay";
}

TEST(PortPins, the_ios_modes_shape_the_pins_of_board_no4) {
    const std::array<std::string, 8> patterns{"IIIIIIIIIIIIIIII", "OOOOIIIIIIIIIIII", "OOOOOOOOIIIIIIII", "OOOOOOOOOOOOIIII",
                                              "OOOOOOOOOOOOOOII", "OOOOOOOOOOOOOOOO", "****OOOOIIIIIIII", "****OOOO****IIII"};
    for (int mode = 0; mode < 8; ++mode) {
        SCOPED_TRACE(mode);
        Machine machine = makersMachine();
        machine.doLatch52 = 0xFFFF;
        machine.diImage[8] = 0xAA;
        cmbIOS_LostFocus(machine, mode);
        EXPECT_EQ(pattern(machine), patterns[static_cast<std::size_t>(mode)]);
        EXPECT_EQ(diWord(machine, 5), 0) << "a change of mode drops every input";
        for (std::size_t bit = 0; bit < 16; ++bit) {
            const Pin before = machine.picPI[64 + bit];
            const bool input = before.visible && !before.output;
            EXPECT_TRUE(!before.visible || before.level == before.output) << "outputs show the latch at once";
            picPI_Click(machine, 64 + bit);
            const int expected = !input ? 0 : mode == 7 ? 0x1000 << bit : 1 << bit;
            EXPECT_EQ(diWord(machine, 5), expected) << "pin " << bit;
            picPI_Click(machine, 64 + bit);
            EXPECT_EQ(diWord(machine, 5), 0);
        }
    }
}

TEST(PortPins, switches_reach_memory_at_the_visit) {
    for (const auto& [slot, sa] : {std::pair{1, 2}, {2, 3}, {3, 1}}) {
        Machine machine = scanningMachine();
        ticks(machine, 4);
        const auto group = static_cast<std::size_t>(16 * (slot - 1));
        picPI_Click(machine, group + 0);
        picPI_Click(machine, group + 15);
        EXPECT_EQ(memoryWord(machine, diBase + 2 * sa), 0);
        ticks(machine, 4);
        EXPECT_EQ(memoryWord(machine, diBase + 2 * sa), 0x8001);
        picPI_Click(machine, group + 15);
        ticks(machine, 4);
        EXPECT_EQ(memoryWord(machine, diBase + 2 * sa), 0x0001);
    }
}

TEST(PortPins, clr_darkens_the_outputs_until_the_visit_after_its_release) {
    for (const auto& [slot, sa] : {std::pair{1, 2}, {2, 3}, {3, 1}, {5, 4}}) {
        SCOPED_TRACE(slot);
        const auto index = static_cast<std::size_t>(slot - 1);
        Machine machine = scanningMachine();
        setMemoryWord(machine, doBase + 2 * sa, 0x00C3);
        ticks(machine, 4);
        const auto pin = [&, number = slot] { return number == 5 ? machine.picPI[64].level : machine.picPO[16 * index].level; };
        ASSERT_TRUE(pin());
        picCLR_DblClick(machine, index);
        EXPECT_FALSE(pin());
        ticks(machine, 8);
        EXPECT_FALSE(pin());
        EXPECT_EQ(statusOf(machine, sa), 0) << "it answers all the same";
        EXPECT_EQ(machine.doLow52, slot == 5 ? 0xC3 : 0) << "the motor keeps its direction";
        picCLR_MouseUp(machine, index);
        EXPECT_FALSE(pin());
        ticks(machine, 4);
        EXPECT_TRUE(pin());
    }
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
    for (const std::int16_t setting : {std::int16_t{0}, std::int16_t{2}, std::int16_t{-1}}) {
        Machine machine;
        Mdef_Set(machine);
        machine.cableConnectionDefault = setting;
        machine.cascadeDefault = setting;
        machine.transferDefault.fill(setting);
        setUpBench(machine);
        EXPECT_FALSE(machine.picBOARD2_RXD[0].plugged || machine.picBridge.visible) << setting;
        EXPECT_EQ(machine.duplexBit, 16) << "the jumpers ask for exactly 1";
        resetRegisters(machine);
        EXPECT_EQ(machine.duplexBit, setting == 0 ? 16 : 0) << "the reset for anything but 0";
    }
}

TEST(Bench, a_new_set_up_forgets_what_was_done_on_the_old_one) {
    Machine machine = makersMachine();
    picBPSS_DblClick(machine);
    picSSB_DblClick(machine, 0);
    picPI_Click(machine, 3);
    picReset_DblClick(machine, 1);
    picBOARD1_RXD_DblClick(machine, 1);
    picBridge_DblClick(machine);
    clearBoardState(machine);
    machine.startupDone = false;
    Mdef_Set(machine);
    setUpBench(machine);
    EXPECT_FALSE(machine.picBPSS.on || machine.picSSB[0].on || machine.picPI[3].level || machine.picReset[1].down);
    EXPECT_EQ(machine.boardClock[clockQDA52], 0);
    EXPECT_TRUE(machine.picBridge.visible && machine.picBOARD1_RXD[0].plugged);
    EXPECT_EQ(machine.picCableUpTop, 24);
}

}  // namespace
