// The walk over the stations, continuous and single, and what SCR and SSR say on the way.

#include "core/boardTick.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

TEST(ContinuousScan, pass_lasts_as_many_ticks_as_it_has_stations) {
    for (const int last : {1, 2, 4, 5, 63}) {
        SCOPED_TRACE(last);
        Machine machine = scanningMachine(static_cast<std::uint8_t>(last));
        setByte(machine, reg::bcrLow, last == 1 ? 0x03 : 0x13);  // one station alone is for half duplex
        setByte(machine, reg::int0Enable, 0x08);
        for (int pass = 1; pass <= 3; ++pass) {
            ticks(machine, last - 1);
            EXPECT_EQ(byteAt(machine, reg::int0Request), 0x00);
            ticks(machine, 1);
            EXPECT_EQ(byteAt(machine, reg::int0Request), 0x08);
            EXPECT_EQ(byteAt(machine, reg::ssrLow), 0x81);
            setByte(machine, reg::int0Request, 0);
        }
        EXPECT_EQ(statusOf(machine, 1), 0);
    }
}

TEST(ContinuousScan, ssr_names_the_next_station_after_every_tick) {
    Machine machine = scanningMachine(4);
    boardTick(machine);
    EXPECT_TRUE(machine.picScanLed.lit);
    EXPECT_EQ(byteAt(machine, reg::ssrLow), 0x00) << "still stopped during the first visit";
    scanStep(machine);
    for (const int ssr : {0x82, 0x83, 0x84, 0x81, 0x82, 0x83, 0x84, 0x81, 0x82}) {
        EXPECT_EQ(byteAt(machine, reg::ssrLow), ssr);
        ticks(machine, 1);
    }
}

TEST(ContinuousScan, new_last_address_waits_for_the_next_pass) {
    for (const int newLast : {2, 6}) {
        SCOPED_TRACE(newLast);
        Machine machine = scanningMachine(4);
        ticks(machine, 1);
        setByte(machine, reg::scrLow, newLast);
        for (const auto& [count, ssr] : Rows<2>{{2, 0x84}, {1, 0x81}, {newLast - 1, 0x80 + newLast}, {1, 0x81}}) {
            ticks(machine, count);
            EXPECT_EQ(byteAt(machine, reg::ssrLow), ssr);
        }
    }
}

TEST(ContinuousScan, zero_in_scr_stops_at_the_pass_end_and_a_new_value_starts_again) {
    Machine machine = scanningMachine(4);
    ticks(machine, 1);
    setByte(machine, reg::scrLow, 0);
    ticks(machine, 2);
    EXPECT_EQ(byteAt(machine, reg::ssrLow), 0x84);
    EXPECT_TRUE(machine.picScanLed.lit);
    ticks(machine, 1);
    EXPECT_EQ(byteAt(machine, reg::ssrLow), 0x00);
    EXPECT_EQ(machine.scanAddr, 0);
    EXPECT_FALSE(machine.picScanLed.lit || scanOn(machine));

    setInput(machine, slotQDA73, 0x7777);
    const Machine stopped = machine;
    ticks(machine, 10);
    EXPECT_EQ(machine.chipMemory, stopped.chipMemory);
    setByte(machine, reg::scrLow, 2);
    ticks(machine, 1);
    EXPECT_EQ(memoryWord(machine, diBase + 2 * 1), 0x7777);
    EXPECT_TRUE(machine.picScanLed.lit);
}

TEST(ContinuousScan, every_pass_reports_on_its_own) {
    Machine machine = scanningMachine(4);
    setMemoryWord(machine, drcBase + 2 * 3, 0x0001);
    machine.serialReady[0] = true;
    int before = 0;
    // Whether station 4 is in reset, the inputs of station 3, and the report of the pass. Serial data shows in the first.
    for (const auto& [reset, input, report] : Rows<3>{{1, 1, 7}, {0, 1, 0}, {0, 0, 1}, {1, 0, 4}, {1, 1, 5}}) {
        machine.resetHeld52 = reset != 0;
        setInput(machine, slotCascade, input);
        ticks(machine, 3);
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), before) << "still that of the pass before";
        ticks(machine, 1);
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), report);
        before = report;
    }
}

TEST(ContinuousScan, broken_off_pass_leaves_only_its_chk_events_to_the_next_scan) {
    Machine machine = scanningMachine(4);
    setByte(machine, reg::int0Enable, 0xF8);
    setMemoryWord(machine, drcBase + 2 * 2, 0xFFFF);
    setInput(machine, slotQDA41, 0x0001);
    machine.serialReady[0] = true;
    machine.resetHeld[3] = true;
    setStatus(machine, 1, 0x24);
    ticks(machine, 2);
    // The chip is reset in the middle of the pass, and the station is back on the line.
    machine.scanRunning = false;
    machine.scanAddr = 0;
    machine.resetHeld[3] = false;
    ticks(machine, 4);
    EXPECT_EQ(byteAt(machine, reg::ssrHigh), 0);
    EXPECT_EQ(byteAt(machine, reg::int0Request), 0x48) << "pass end and CHK2";
}

TEST(SingleScan, makes_one_pass_and_stops) {
    Machine machine = makersMachine();
    setByte(machine, reg::scrHigh, 5);
    for (const int ssr : {0x82, 0x83, 0x84, 0x85}) {
        ticks(machine, 1);
        EXPECT_EQ(byteAt(machine, reg::ssrLow), ssr);
        EXPECT_TRUE(machine.picScanLed.lit);
        setByte(machine, reg::scrHigh, 6);  // too late for this pass
    }
    ticks(machine, 1);
    EXPECT_EQ(memoryWord(machine, reg::scrLow), 0);
    EXPECT_EQ(memoryWord(machine, reg::ssrLow), 0x0400) << "the report of the pass: the empty address failed";
    EXPECT_EQ(machine.scanAddr, 5);
    EXPECT_FALSE(machine.picScanLed.lit || scanOn(machine) || machine.ssrErrorSeen || machine.chk1Seen);

    const Machine stopped = machine;
    ticks(machine, 20);
    EXPECT_EQ(machine.chipMemory, stopped.chipMemory);
}

// Both bytes of SCR written between two ticks. The single scan's last address rules, both scans step in every tick, and
// both make their pass end in the same tick.
TEST(BothScans, each_takes_its_step_in_a_tick) {
    Machine machine = makersMachine();
    setMemoryWord(machine, reg::scrLow, 0x0304);
    setStatus(machine, 2, 0x24);
    unplug(machine, 2);
    ticks(machine, 1);
    EXPECT_EQ(byteAt(machine, reg::ssrLow), 0x83);
    EXPECT_EQ(memoryWord(machine, reg::scrLow), 0x0304);
    ticks(machine, 1);
    EXPECT_EQ(memoryWord(machine, reg::scrLow), 0x0004) << "the single scan is over";
    EXPECT_EQ(memoryWord(machine, reg::ssrLow), 0x0081) << "the second report of the same tick knows of no failure";
    EXPECT_EQ(statusOf(machine, 2), 0x24) << "station 2 was stepped over";
    EXPECT_EQ(statusOf(machine, 3), 0x14);
    EXPECT_FALSE(machine.picScanLed.lit);
    ticks(machine, 3);
    EXPECT_EQ(byteAt(machine, reg::ssrLow), 0x84) << "the continuous scan goes on alone, up to its own last address";
}

}  // namespace
