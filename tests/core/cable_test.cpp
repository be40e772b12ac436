// SPDX-License-Identifier: Apache-2.0
// Who hears a frame on the line of cables, who takes the DO word, and who answers.

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

// A single scan over stations 1 to 4 with the DO words D001H to D004H.
void runPass(Machine& machine) {
    for (int sa = 1; sa <= 4; ++sa) {
        setMemoryWord(machine, doBase + 2 * sa, 0xD000 + sa);
    }
    setByte(machine, reg::scrHigh, 4);
    ticks(machine, 4);
}

// The stations 1 to 4 that answered and whose boards took their word, as digits: 1011 means all but station 2.
void expectHeard(const Machine& machine, int heard) {
    for (int sa = 4; sa >= 1; --sa, heard /= 10) {
        const bool hears = heard % 10 == 1;
        EXPECT_EQ(statusOf(machine, sa), hears ? 0 : 0x14) << "station " << sa;
        EXPECT_EQ(latchOf(machine, slotAt(sa)), hears ? 0xD000U + static_cast<unsigned>(sa) : 0U) << "station " << sa;
    }
}

TEST(Cable, is_heard_through_whole_links_and_at_the_center_s_rate) {
    // Links 1 to 3 as digits, BCR, the rates of Board No2, No1 and No4 as digits, and who hears.
    for (const auto& [links, bcr, rates, heard] :
         {Row<4>{0, 0x13, 0, 0}, Row<4>{1, 0x13, 0, 0}, Row<4>{10, 0x13, 0, 0}, Row<4>{11, 0x13, 0, 0},
          Row<4>{100, 0x13, 0, 1000}, Row<4>{101, 0x13, 0, 1000}, Row<4>{110, 0x13, 0, 1110}, Row<4>{111, 0xFF, 0, 1111},
          Row<4>{111, 0x03, 100, 1001}, Row<4>{111, 0x13, 30, 111}, Row<4>{111, 0x13, 2, 1110}, Row<4>{111, 0x12, 101, 111},
          Row<4>{111, 0x11, 22, 1001}, Row<4>{111, 0x10, 230, 1000}}) {
        SCOPED_TRACE(testing::Message() << "links " << links << " rates " << rates);
        Machine machine = makersMachine();
        plug(machine, 1, links / 100 == 1);
        plug(machine, 2, links / 10 % 10 == 1);
        plug(machine, 3, links % 10 == 1);
        setByte(machine, reg::bcrLow, bcr);
        machine.boardClock[clockQDA41] = static_cast<std::int16_t>(rates / 100);
        machine.boardClock[clockQDA73] = static_cast<std::int16_t>(rates / 10 % 10);
        machine.boardClock[clockQDA52] = static_cast<std::int16_t>(rates % 10);
        runPass(machine);
        expectHeard(machine, heard);
        EXPECT_EQ(machine.picMON_LED73.lit, heard >= 1000);
        EXPECT_EQ(machine.picMON_LED52.lit, heard % 10 == 1);
    }
}

TEST(Cable, pins_follow_the_word_and_an_equal_word_paints_nothing) {
    Machine machine = scanningMachine(4);
    machine.picPI[64].output = false;  // an input of Board No4 does not follow
    for (const int word : {0x8001, 0x8001, 0x4321, 0x4321}) {
        const bool painted = word != static_cast<int>(machine.doLatch52);
        for (int sa = 1; sa <= 4; ++sa) {
            setMemoryWord(machine, doBase + 2 * sa, word);
        }
        ticks(machine, 4);
        for (int sa = 1; sa <= 4; ++sa) {
            Pin* pins = outputsOf(machine, slotAt(sa));
            for (int bit = 0; bit < 16; ++bit) {
                const bool shown = (word >> bit & 1) != 0 && (sa != 4 || bit != 0);
                EXPECT_EQ(pins[bit].level, shown || (!painted && bit == 7)) << "station " << sa << " bit " << bit;
            }
            pins[7].level = true;  // paint of our own, which only a changed word goes over
        }
    }
    EXPECT_EQ(machine.doLow52, 0x21);
}

TEST(Cable, two_boards_on_one_address_both_take_the_word_and_nobody_is_heard) {
    enum Repair { cardOut, cut2, cut3, reset73, slow52 };
    // SA of Board No2, No1 and No4, the slots that collide at SA 2 as digits, the repair, and the slot that answers after
    // it, 0 while two are left.
    for (const auto& [sa41, sa73, sa52, colliding, repair, answering] :
         {Row<6>{2, 2, 50, 31, cut2, 3}, Row<6>{2, 50, 2, 15, cut3, 1}, Row<6>{1, 50, 2, 25, cut3, 2},
          Row<6>{1, 50, 2, 25, cardOut, 5}, Row<6>{1, 2, 50, 32, cardOut, 3}, Row<6>{50, 2, 2, 35, reset73, 5},
          Row<6>{50, 2, 2, 35, slow52, 3}, Row<6>{2, 2, 2, 315, cut3, 0}}) {
        SCOPED_TRACE(testing::Message() << colliding << " repair " << repair);
        Machine machine = makersMachine();
        for (const auto& [board, sa] : {std::pair{saQDA41, sa41}, {saQDA73, sa73}, {saQDA52, sa52}}) {
            machine.boardSA[board] = static_cast<std::int16_t>(sa);
        }
        for (const int slot : {1, 2, 3, 5}) {
            setInput(machine, slot, 0x1110 + slot);
            machine.picSSB[static_cast<std::size_t>(slot - 1)].on = true;
        }
        setMemoryWord(machine, diBase + 2 * 2, 0xAAAA);
        runPass(machine);
        EXPECT_EQ(statusOf(machine, 2), 0x14);
        EXPECT_EQ(memoryWord(machine, diBase + 2 * 2), 0xAAAA);
        EXPECT_FALSE(machine.picMON_LED73.lit || machine.picMON_LED52.lit);
        for (int slots = colliding; slots != 0; slots /= 10) {
            EXPECT_EQ(latchOf(machine, slots % 10), 0xD002U) << "slot " << slots % 10;
        }

        machine.picBridge.visible = repair != cardOut;
        plug(machine, 2, repair != cut2);
        plug(machine, 3, repair != cut3);
        machine.resetHeld[slotQDA73] = repair == reset73;
        machine.boardClock[clockQDA52] = repair == slow52 ? 1 : 0;
        runPass(machine);
        EXPECT_EQ(statusOf(machine, 2), answering != 0 ? 0 : 0x24);
        EXPECT_EQ(memoryWord(machine, diBase + 2 * 2), answering != 0 ? 0x1110 + answering : 0xAAAA);
    }
}

}  // namespace
