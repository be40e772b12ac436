// Who hears a frame on the line of cables, who takes the DO word, and who answers.

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <vector>

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

void seatBoards(Machine& machine, int sa41, int sa73, int sa52) {
    machine.boardSA = {static_cast<std::int16_t>(sa41), static_cast<std::int16_t>(sa73), static_cast<std::int16_t>(sa52)};
}

TEST(Cable, frame_goes_on_only_through_whole_links) {
    for (const auto& [links, heard] :
         Rows<2>{{0, 0}, {1, 0}, {10, 0}, {11, 0}, {100, 1000}, {101, 1000}, {110, 1110}, {111, 1111}}) {
        SCOPED_TRACE(links);
        Machine machine = makersMachine();
        machine.picBOARD2_RXD[0].plugged = links / 100 == 1;
        machine.picBOARD2_RXD[1].plugged = links / 10 % 10 == 1;
        machine.picBOARD2_RXD[3].plugged = links % 10 == 1;
        runPass(machine);
        expectHeard(machine, heard);
        EXPECT_EQ(machine.picMON_LED73.lit, heard >= 1000);
        EXPECT_EQ(machine.picMON_LED52.lit, heard % 10 == 1);
    }
}

TEST(Cable, board_on_another_rate_ignores_the_frame) {
    // BCR, then the rates of Board No2, No1 and No4 as digits.
    for (const auto& [bcr, rates, heard] :
         Rows<3>{{0xFF, 0, 1111}, {0x03, 100, 1001}, {0x13, 30, 111}, {0x13, 2, 1110}, {0x12, 101, 111}, {0x10, 230, 1000}}) {
        SCOPED_TRACE(rates);
        Machine machine = makersMachine();
        setByte(machine, reg::bcrLow, bcr);
        machine.boardClock[clockQDA41] = static_cast<std::int16_t>(rates / 100);
        machine.boardClock[clockQDA73] = static_cast<std::int16_t>(rates / 10 % 10);
        machine.boardClock[clockQDA52] = static_cast<std::int16_t>(rates % 10);
        runPass(machine);
        expectHeard(machine, heard);
    }
}

TEST(Cable, center_takes_its_rate_when_a_scan_starts_and_not_before) {
    Machine machine = scanningMachine(1);
    ticks(machine, 1);
    setByte(machine, reg::bcrLow, 0x12);
    ticks(machine, 5);
    EXPECT_EQ(statusOf(machine, 1), 0) << "the scan goes on at the rate it was started with";
    setByte(machine, reg::scrLow, 0);
    ticks(machine, 1);
    setByte(machine, reg::scrLow, 1);
    ticks(machine, 1);
    EXPECT_EQ(statusOf(machine, 1), 0x14);
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
            const auto group = static_cast<std::size_t>(16 * (slotAt(sa) - 1));
            Pin* pins = sa == 4 ? &machine.picPI[group] : &machine.picPO[group];
            const int shown = sa == 4 ? word & 0xFFFE : word;
            for (std::size_t bit = 0; bit < 16; ++bit) {
                EXPECT_EQ(pins[bit].level, (shown >> bit & 1) != 0 || (!painted && bit == 7))
                    << "station " << sa << " bit " << bit;
            }
            pins[7].level = true;  // paint of our own, which only a changed word goes over
        }
    }
    EXPECT_EQ(machine.doLow52, 0x21);
}

TEST(Cable, two_boards_on_one_address_both_take_the_word_and_nobody_is_heard) {
    struct Row {
        const char* who;
        int sa41, sa73, sa52;
        std::vector<int> colliding;
        void (*repair)(Machine&);
        int answering;  // after the repair; 0 when two are still left
    };
    const auto cardOut = [](Machine& machine) { machine.picBridge.visible = false; };
    const auto cut2 = [](Machine& machine) { unplug(machine, 2); };
    const auto cut3 = [](Machine& machine) { unplug(machine, 3); };
    const auto reset73 = [](Machine& machine) { machine.resetHeld[3] = true; };
    const auto slow52 = [](Machine& machine) { machine.boardClock[clockQDA52] = 1; };
    for (const Row& row :
         {Row{"No1 and No2", 2, 2, 50, {3, 1}, cut2, 3}, Row{"No2 and No4", 2, 50, 2, {1, 5}, cut3, 1},
          Row{"No3 and No4", 1, 50, 2, {2, 5}, cut3, 2}, Row{"No3 and No4, card", 1, 50, 2, {2, 5}, cardOut, 5},
          Row{"No1 and No3, card", 1, 2, 50, {3, 2}, cardOut, 3}, Row{"No1 and No4, reset", 50, 2, 2, {3, 5}, reset73, 5},
          Row{"No1 and No4, rate", 50, 2, 2, {3, 5}, slow52, 3}, Row{"three", 2, 2, 2, {3, 1, 5}, cut3, 0}}) {
        SCOPED_TRACE(row.who);
        Machine machine = makersMachine();
        seatBoards(machine, row.sa41, row.sa73, row.sa52);
        for (const int slot : {1, 2, 3, 5}) {
            setInput(machine, slot, 0x1110 + slot);
            machine.picSSB[static_cast<std::size_t>(slot - 1)].on = true;
        }
        setMemoryWord(machine, diBase + 2 * 2, 0xAAAA);
        runPass(machine);
        EXPECT_EQ(statusOf(machine, 2), 0x14);
        EXPECT_EQ(memoryWord(machine, diBase + 2 * 2), 0xAAAA);
        EXPECT_FALSE(machine.picMON_LED73.lit || machine.picMON_LED52.lit);
        for (const int slot : row.colliding) {
            EXPECT_EQ(latchOf(machine, slot), 0xD002U) << "slot " << slot;
        }

        row.repair(machine);
        runPass(machine);
        EXPECT_EQ(statusOf(machine, 2), row.answering != 0 ? 0 : 0x24);
        EXPECT_EQ(memoryWord(machine, diBase + 2 * 2), row.answering != 0 ? 0x1110 + row.answering : 0xAAAA);
    }
}

}  // namespace
