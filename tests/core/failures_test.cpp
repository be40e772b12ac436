// A visit that fails: what the center counts, reports and lights, and how a station comes back.

#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

// The cable to the first board is out, so that every visit fails.
Machine failingMachine(std::uint8_t last) {
    Machine machine = scanningMachine(last);
    unplug(machine, 1);
    return machine;
}

TEST(Failures, stations_behind_a_broken_link_count_up_to_seven_until_it_is_whole) {
    // The link, or none and the empty address 5 instead; the first and the last station that fail.
    for (const auto& [link, first, last] : Rows<3>{{1, 1, 4}, {2, 2, 4}, {3, 4, 4}, {0, 5, 5}}) {
        Machine machine = scanningMachine(link == 0 ? 5 : 4);
        setStatus(machine, last, 0x01);  // serial data once showed there
        if (link != 0) {
            unplug(machine, link);
        }
        int pass = 0;
        for (const int status : {0x14, 0x24, 0x3C, 0x4C, 0x5C, 0x6C, 0x7C, 0x7C, 0x7C}) {
            SCOPED_TRACE(testing::Message() << "link " << link << " pass " << ++pass);
            ticks(machine, link == 0 ? 5 : 4);
            for (int sa = 1; sa <= last; ++sa) {
                EXPECT_EQ(statusOf(machine, sa), sa < first ? 0 : sa < last ? status : status | 1) << "station " << sa;
            }
            EXPECT_EQ(byteAt(machine, reg::ssrHigh), pass <= 6 ? 4 : 0) << "the seventh failure reports nothing";
            EXPECT_EQ(memoryWord(machine, reg::c1crLow), last - first + 1);
            EXPECT_EQ(memoryWord(machine, reg::c2crLow), pass < 3 ? 0 : last - first + 1);
            EXPECT_TRUE(machine.picChkLED[0].lit);
            EXPECT_EQ(machine.picChkLED[1].lit, pass >= 3);
        }
        if (link != 0) {
            plug(machine, link);
            ticks(machine, 4);
            EXPECT_EQ(statusOf(machine, 4), 0) << "a good visit wipes the count";
            EXPECT_EQ(byteAt(machine, reg::ssrHigh), 0);
        }
    }
}

TEST(Failures, count_goes_on_from_any_status_that_memory_holds) {
    // Status before and after, SSR high byte, CHK1 and CHK2 events. At seven nothing is cleared any more.
    for (const auto& [before, after, ssrHigh, chk1, chk2] : Rows<5>{{0x02, 0x14, 4, 1, 0},
                                                                    {0x8E, 0x14, 4, 1, 0},
                                                                    {0x0F, 0x15, 4, 1, 0},
                                                                    {0x2E, 0x3C, 4, 0, 1},
                                                                    {0xA5, 0x3D, 4, 0, 1},
                                                                    {0x34, 0x4C, 4, 0, 0},
                                                                    {0x5C, 0x6C, 4, 0, 0},
                                                                    {0x6C, 0x7C, 0, 0, 0},
                                                                    {0x70, 0x7C, 0, 0, 0},
                                                                    {0xF2, 0xFE, 0, 0, 0}}) {
        SCOPED_TRACE(before);
        Machine machine = failingMachine(1);
        setStatus(machine, 1, before);
        ticks(machine, 1);
        EXPECT_EQ(statusOf(machine, 1), after);
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), ssrHigh);
        EXPECT_EQ(byteAt(machine, reg::c1crLow), chk1);
        EXPECT_EQ(byteAt(machine, reg::c2crLow), chk2);
    }
}

TEST(Failures, counters_stop_at_255_and_the_leds_still_light) {
    Machine machine = failingMachine(2);
    setMemoryWord(machine, reg::c1crLow, 0x5AFE);
    setMemoryWord(machine, reg::c2crLow, 0x5AFF);
    ticks(machine, 1);
    EXPECT_EQ(memoryWord(machine, reg::c1crLow), 0x5AFF);
    machine.picChkLED[0].lit = false;
    ticks(machine, 5);
    EXPECT_EQ(memoryWord(machine, reg::c1crLow), 0x5AFF);
    EXPECT_EQ(memoryWord(machine, reg::c2crLow), 0x5AFF);
    EXPECT_TRUE(machine.picChkLED[0].lit && machine.picChkLED[1].lit);
}

TEST(Failures, chk_leds_go_dark_5000_ticks_after_their_last_event) {
    Machine machine = failingMachine(1);
    ticks(machine, 1000);
    setStatus(machine, 1, 0);
    ticks(machine, 5000);
    EXPECT_TRUE(machine.picChkLED[0].lit);
    ticks(machine, 1);
    EXPECT_FALSE(machine.picChkLED[0].lit) << "the first failure was at tick 1001";
    ticks(machine, 1);
    EXPECT_TRUE(machine.picChkLED[1].lit);
    ticks(machine, 1);
    EXPECT_FALSE(machine.picChkLED[1].lit) << "the third failure was at tick 1003";
}

TEST(Failures, monitor_leds_go_dark_2000_ticks_after_the_last_visit) {
    Machine machine = makersMachine();
    setByte(machine, reg::scrHigh, 4);
    ticks(machine, 1000);
    EXPECT_TRUE(machine.picMON_LED73.lit && machine.picMON_LED52.lit);
    setByte(machine, reg::scrHigh, 4);
    // Board No1 is at station 1, Board No4 at station 4. The scan ends, the time goes on.
    int tick = 0;
    for (const auto& [at, lit73, lit52] : Rows<3>{{2000, 1, 1}, {2001, 0, 1}, {2003, 0, 1}, {2004, 0, 0}}) {
        ticks(machine, at - tick);
        tick = at;
        EXPECT_EQ(machine.picMON_LED73.lit, lit73 != 0) << "tick " << tick;
        EXPECT_EQ(machine.picMON_LED52.lit, lit52 != 0) << "tick " << tick;
    }
}

TEST(Failures, first_good_input_word_is_dropped_unless_the_handshake_switch_is_on) {
    for (int sa = 1; sa <= 4; ++sa) {
        for (const bool handshake : {false, true}) {
            SCOPED_TRACE(testing::Message() << "station " << sa << " handshake " << handshake);
            Machine machine = failingMachine(4);
            machine.picSSB[static_cast<std::size_t>(slotAt(sa) - 1)].on = handshake;
            setInput(machine, slotAt(sa), 0x1234);
            setCommand(machine, sa, 0x10);
            ticks(machine, 4);
            plug(machine, 1);
            ticks(machine, 4);
            EXPECT_EQ(memoryWord(machine, diBase + 2 * sa), handshake ? 0x1234 : 0);
            EXPECT_EQ(commandOf(machine, sa), handshake ? 0x00 : 0x10);
            EXPECT_EQ(statusOf(machine, sa), 0);
            ticks(machine, 4);
            EXPECT_EQ(memoryWord(machine, diBase + 2 * sa), 0x1234);
            EXPECT_EQ(commandOf(machine, sa), 0x00);
        }
    }
}

TEST(Failures, status_bit_2_alone_decides_that_an_input_word_is_dropped) {
    // Command and status before; area that should hold the word, and command byte after. A counter word is never dropped;
    // a single read is over all the same.
    for (const auto& [command, status, area, word, after] : Rows<5>{{0x00, 0x04, 0x100, 0, 0x00},
                                                                    {0x00, 0x7B, 0x100, 0x1234, 0x00},
                                                                    {0x08, 0x04, 0x100, 0, 0x00},
                                                                    {0x08, 0xFB, 0x100, 0x1234, 0x00},
                                                                    {0x11, 0x7C, 0x180, 0x0C01, 0x00},
                                                                    {0x21, 0x7C, 0x180, 0x0C01, 0x22}}) {
        SCOPED_TRACE(testing::Message() << "command " << command << " status " << status);
        Machine machine = scanningMachine(4);
        setInput(machine, slotQDA41, 0x1234);
        machine.counterImage[0] = 0x01;
        machine.counterImage[1] = 0x0C;
        setCommand(machine, 2, command);
        setStatus(machine, 2, status);
        ticks(machine, 4);
        EXPECT_EQ(memoryWord(machine, area + 2 * 2), word);
        EXPECT_EQ(commandOf(machine, 2), after);
        EXPECT_EQ(statusOf(machine, 2), 0);
    }
}

}  // namespace
