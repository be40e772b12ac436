// SPDX-License-Identifier: Apache-2.0
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

TEST(Failures, behind_a_broken_link_or_at_an_empty_address_count_up_to_seven) {
    // The link, or none and the empty address 5 instead; the first and the last station that fail.
    for (const auto& [link, first, last] : Rows<3>{{1, 1, 4}, {2, 2, 4}, {3, 4, 4}, {0, 5, 5}}) {
        const int stations = link == 0 ? 5 : 4;
        Machine machine = scanningMachine(static_cast<std::uint8_t>(stations));
        setStatus(machine, last, 0x01);  // serial data once showed there
        plug(machine, std::max(link, 1), link == 0);
        int pass = 0;
        for (const int status : {0x14, 0x24, 0x3C, 0x4C, 0x5C, 0x6C, 0x7C, 0x7C}) {
            SCOPED_TRACE(testing::Message() << "link " << link << " pass " << ++pass);
            ticks(machine, stations);
            for (int sa = 1; sa <= last; ++sa) {
                EXPECT_EQ(statusOf(machine, sa), sa < first ? 0 : sa < last ? status : status | 1) << "station " << sa;
            }
            EXPECT_EQ(byteAt(machine, reg::ssrHigh), pass <= 6 ? 4 : 0) << "the seventh failure reports nothing";
            EXPECT_EQ(memoryWord(machine, reg::c1crLow), last - first + 1);
            EXPECT_EQ(memoryWord(machine, reg::c2crLow), pass < 3 ? 0 : last - first + 1);
            EXPECT_TRUE(machine.picChkLED[0].lit && machine.picChkLED[1].lit == (pass >= 3));
        }
        plug(machine, std::max(link, 1));
        ticks(machine, stations);
        EXPECT_EQ(statusOf(machine, 4), 0) << "a good visit wipes the count";
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), 0);
    }
}

TEST(Failures, go_on_from_any_status_that_memory_holds) {
    // Status before and after, SSR high byte, CHK1 and CHK2 events. At seven nothing is cleared any more.
    for (const auto& [before, after, ssrHigh, chk1, chk2] :
         {Row<5>{0x02, 0x14, 4, 1, 0}, Row<5>{0x8E, 0x14, 4, 1, 0}, Row<5>{0x0F, 0x15, 4, 1, 0}, Row<5>{0x2E, 0x3C, 4, 0, 1},
          Row<5>{0xA5, 0x3D, 4, 0, 1}, Row<5>{0x34, 0x4C, 4, 0, 0}, Row<5>{0x5C, 0x6C, 4, 0, 0}, Row<5>{0x6C, 0x7C, 0, 0, 0},
          Row<5>{0x70, 0x7C, 0, 0, 0}, Row<5>{0xF2, 0xFE, 0, 0, 0}}) {
        SCOPED_TRACE(before);
        Machine machine = failingMachine(1);
        setStatus(machine, 1, before);
        setMemoryWord(machine, reg::c1crLow, 0x5AFE);
        setMemoryWord(machine, reg::c2crLow, 0x5AFF);
        ticks(machine, 1);
        EXPECT_EQ(statusOf(machine, 1), after);
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), ssrHigh);
        EXPECT_EQ(memoryWord(machine, reg::c1crLow), 0x5AFE + chk1);
        EXPECT_EQ(memoryWord(machine, reg::c2crLow), 0x5AFF) << "a counter stops at 255, and its LED lights all the same";
        EXPECT_TRUE(machine.picChkLED[0].lit == (chk1 != 0) && machine.picChkLED[1].lit == (chk2 != 0));
    }
}

TEST(Leds, go_dark_5000_ticks_after_a_chk_event_and_2000_after_a_visit) {
    // Ticks from the start, and which of CHK1, CHK2, Board No1's and Board No4's monitor are lit then.
    const auto expectLit = [](Machine& machine, std::initializer_list<Row<2>> rows) {
        int tick = 0;
        for (const auto& [at, lit] : rows) {
            ticks(machine, at - tick);
            tick = at;
            EXPECT_EQ(machine.picChkLED[0].lit * 1000 + machine.picChkLED[1].lit * 100 + machine.picMON_LED73.lit * 10 +
                          machine.picMON_LED52.lit,
                      lit)
                << "tick " << tick;
        }
    };
    Machine failing = failingMachine(1);
    ticks(failing, 1000);
    setStatus(failing, 1, 0);  // the first failure comes in the next tick, the third two later
    expectLit(failing, {{5000, 1100}, {5001, 100}, {5002, 100}, {5003, 0}});
    // Board No1 is at station 1, Board No4 at station 4. The scan ends, the time goes on.
    Machine good = makersMachine();
    setByte(good, reg::scrHigh, 4);
    ticks(good, 1000);
    setByte(good, reg::scrHigh, 4);
    expectLit(good, {{2000, 11}, {2001, 1}, {2003, 1}, {2004, 0}});
}

TEST(Recovery, drops_the_first_good_input_word_unless_the_handshake_switch_is_on) {
    // Status bit 2 alone decides. A counter word is never dropped; a single read is over all the same.
    for (const auto& [command, status, handshake, word, after] :
         {Row<5>{0x10, 0x04, 0, 0, 0x10}, Row<5>{0x10, 0x7B, 0, 0x1234, 0x00}, Row<5>{0x10, 0x7C, 1, 0x1234, 0x00},
          Row<5>{0x00, 0x1C, 0, 0, 0x00}, Row<5>{0x08, 0x04, 0, 0, 0x00}, Row<5>{0x08, 0xFB, 0, 0x1234, 0x00},
          Row<5>{0x08, 0x04, 1, 0x1234, 0x00}, Row<5>{0x11, 0x7C, 0, 0x0C01, 0x00}}) {
        for (int sa = 1; sa <= 4; ++sa) {
            SCOPED_TRACE(testing::Message() << "station " << sa << " command " << command << " status " << status);
            Machine machine = scanningMachine(4);
            machine.picSSB[static_cast<std::size_t>(slotAt(sa) - 1)].on = handshake != 0;
            setInput(machine, slotAt(sa), 0x1234);
            machine.counterImage[0] = machine.counterImage[12] = 0x01;
            machine.counterImage[1] = machine.counterImage[13] = 0x0C;
            setCommand(machine, sa, command);
            setStatus(machine, sa, status);
            ticks(machine, 4);
            const bool counter = command == 0x11;
            EXPECT_EQ(memoryWord(machine, (counter ? counterBase : diBase) + 2 * sa), counter && slotAt(sa) > 2 ? 0 : word);
            EXPECT_EQ(commandOf(machine, sa), after);
            EXPECT_EQ(statusOf(machine, sa), 0);
            ticks(machine, 4);
            EXPECT_EQ(memoryWord(machine, diBase + 2 * sa), 0x1234);
            EXPECT_EQ(commandOf(machine, sa), 0x00);
        }
    }
}

}  // namespace
