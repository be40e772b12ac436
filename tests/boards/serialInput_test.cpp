#include "boards/serialInput.h"

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

TEST(SerialWave, is_drawn_point_by_point) {
    EXPECT_EQ(serialWave(0, 0x0000), (Wave{{0, 45}, {461, 45}})) << "no step at all";
    EXPECT_EQ(serialWave(0, 0xFFFF), (Wave{{0, 45}, {18, 45}, {18, 20}, {418, 20}, {418, 45}, {461, 45}}));
    // 0101 1010 0011 1100: a step at the left edge of each cell whose level differs from the one before.
    EXPECT_EQ(serialWave(0, 0x5A3C), (Wave{{0, 45},
                                           {43, 45},
                                           {43, 20},
                                           {68, 20},
                                           {68, 45},
                                           {93, 45},
                                           {93, 20},
                                           {143, 20},
                                           {143, 45},
                                           {168, 45},
                                           {168, 20},
                                           {193, 20},
                                           {193, 45},
                                           {268, 45},
                                           {268, 20},
                                           {368, 20},
                                           {368, 45},
                                           {461, 45}}));
    const Wave clock = serialWave(1, 0x5A3C);
    ASSERT_EQ(clock.size(), 66U) << "sixteen pulses";
    EXPECT_EQ(Wave(clock.begin(), clock.begin() + 6), (Wave{{0, 75}, {30.5, 75}, {30.5, 50}, {43, 50}, {43, 75}, {55.5, 75}}));
    EXPECT_EQ(Wave(clock.end() - 5, clock.end()), (Wave{{405.5, 75}, {405.5, 50}, {418, 50}, {418, 75}, {461, 75}}));
    EXPECT_EQ(serialWave(2, 0x5A3C), (Wave{{0, 105}, {430.5, 105}, {430.5, 80}, {455.5, 80}, {455.5, 105}, {461, 105}}));
}

// From the dialog's digits to C7, by either command, each slot on its own.
TEST(SerialInput, waits_until_its_command_collects_it) {
    struct Row {
        std::size_t index;
        int sa, command;
    };
    for (const Row& row : {Row{0, 2, 7}, Row{0, 2, 15}, Row{1, 3, 7}, Row{1, 3, 15}}) {
        SCOPED_TRACE(testing::Message() << row.index << " command " << row.command);
        Machine machine = scanningMachine();
        ticks(machine, 8);
        ASSERT_EQ(picSDI_DblClick(machine, row.index), Answer{});
        EXPECT_EQ(machine.serialEditSlot, static_cast<int>(row.index));
        beginShift(machine, row.index);
        EXPECT_TRUE(machine.picSerialInt[row.index].visible);
        endShift(machine, row.index, "12aB");
        EXPECT_FALSE(machine.picSerialInt[row.index].visible);
        EXPECT_EQ(machine.serialData[2 * row.index], 0xAB);
        EXPECT_EQ(machine.serialData[2 * row.index + 1], 0x12);
        ticks(machine, 8);
        EXPECT_TRUE(machine.picSE[row.index].lit);
        EXPECT_EQ(picSDI_DblClick(machine, row.index), Answer(Popup{"SEがローレベル(LED点灯)中は入力できません。"}));
        EXPECT_EQ(picSDI_DblClick(machine, 1 - row.index), Answer{}) << "the other slot is free";
        setCommand(machine, row.sa, row.command);
        ticks(machine, 8);
        EXPECT_EQ(memoryWord(machine, serialBase + 2 * row.sa), 0x12AB);
        EXPECT_FALSE(machine.picSE[row.index].lit || machine.serialReady[row.index]);
        EXPECT_EQ(picSDI_DblClick(machine, row.index), Answer{});
    }
}

TEST(SerialInput, cancelled_leaves_no_word_and_a_pulled_cable_keeps_it_waiting) {
    Machine machine = scanningMachine();
    beginShift(machine, 0);
    endShift(machine, 0, "");
    EXPECT_FALSE(machine.serialReady[0] || machine.picSerialInt[0].visible);
    unplug(machine, 1);
    endShift(machine, 0, "0001");
    setCommand(machine, 2, 7);
    ticks(machine, 40);
    EXPECT_TRUE(machine.serialReady[0]);
}

}  // namespace
