#include "boards/counters.h"

#include "boards/portPins.h"
#include "boards/stationCheck.h"
#include "core/pwmOutput.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

void press(Machine& machine, std::size_t index) {
    picCounter_MouseDown(machine, index);
    picCounter_MouseUp(machine, index);
}

int counterWord(const Machine& machine, std::size_t word) {
    return machine.counterImage[2 * word] | machine.counterImage[2 * word + 1] << 8;
}

void setCounter(Machine& machine, std::size_t word, int value) {
    machine.counterImage[2 * word] = static_cast<std::uint8_t>(value);
    machine.counterImage[2 * word + 1] = static_cast<std::uint8_t>(value >> 8);
}

// Board No4 in an IOS mode after a visit with this DO word.
Machine driven(int mode, int word) {
    Machine machine = scanningMachine();
    cmbIOS_LostFocus(machine, mode);
    setMemoryWord(machine, doBase + 2 * 4, word);
    ticks(machine, 4);
    return machine;
}

int powerShown(const Machine& machine) {
    int power = 0;
    for (std::size_t bit = 0; bit < 6; ++bit) {
        power |= machine.picPower[bit].lit ? 1 << bit : 0;
    }
    return power;
}

TEST(Counters, count_at_the_release_and_wrap) {
    for (const auto& [before, after] : {std::pair{0, 1}, {0xFF, 0x100}, {0x0FFF, 0x1000}, {0xFFFF, 0}}) {
        for (const std::size_t word : {std::size_t{0}, std::size_t{11}, std::size_t{24}}) {
            Machine machine = makersMachine();
            setCounter(machine, word, before);
            picCounter_MouseDown(machine, word);
            EXPECT_EQ(counterWord(machine, word), before);
            picCounter_MouseUp(machine, word);
            EXPECT_EQ(counterWord(machine, word), after);
            EXPECT_FALSE(machine.picCounter[word].down);
        }
    }
}

TEST(Counters, are_read_and_cleared_by_the_scan) {
    Machine machine = scanningMachine();
    press(machine, 2);
    press(machine, 2);
    press(machine, 8);
    setCommand(machine, 2, 3);   // C3 of Board No2
    setCommand(machine, 3, 11);  // C3 of Board No3, cleared
    ticks(machine, 4);
    EXPECT_EQ(memoryWord(machine, 0x280 + 4), 2);
    EXPECT_EQ(memoryWord(machine, 0x280 + 6), 0);
    EXPECT_EQ(counterWord(machine, 2), 2);
    EXPECT_EQ(counterWord(machine, 8), 0);
}

TEST(Counters, of_board_no4_shows_twelve_bits_beside_the_four_switches) {
    Machine machine = makersMachine();
    cmbIOS_LostFocus(machine, 7);
    picPI_Click(machine, 66);
    setCounter(machine, 24, 0x0FFE);
    press(machine, 24);
    EXPECT_EQ(machine.diImage[8] | machine.diImage[9] << 8, 0x4FFF);
    press(machine, 24);
    EXPECT_EQ(machine.diImage[8] | machine.diImage[9] << 8, 0x4000);
    EXPECT_EQ(counterWord(machine, 24), 0x1000);
    press(machine, 24);
    cmbIOS_LostFocus(machine, 0);
    EXPECT_EQ(machine.diImage[8], 0);
    cmbIOS_LostFocus(machine, 7);
    EXPECT_EQ(machine.diImage[8], 1) << "the counter shows again after a change of mode";

    machine.mode52 = 2;
    press(machine, 25);
    EXPECT_EQ(counterWord(machine, 24), 0x1001) << "a dead button in any mode but 0";
    EXPECT_EQ(cmbMode_LostFocus(machine),
              Answer(Warning{"ＱＤＡ５２のカウンタモードの、０以外の動作はユーザーズマニュアルをご参照ください。"}));
    EXPECT_EQ(machine.mode52, 2);
    machine.mode52 = 0;
    picCounter_MouseDown(machine, 25);
    EXPECT_EQ(counterWord(machine, 24) | machine.diImage[8], 0);
}

TEST(Lamp, has_eight_levels_in_one_direction_only) {
    for (int power = 0; power < 64; ++power) {
        const Machine machine = driven(6, 0x40 | power);
        EXPECT_EQ(machine.lampLevel, power / 8);
        EXPECT_EQ(powerShown(machine), power);
        EXPECT_EQ(machine.timMotorInterval, 0);
    }
    for (const int direction : {0x00, 0x80, 0xC0}) {
        const Machine machine = driven(6, direction | 0x3F);
        EXPECT_EQ(machine.lampLevel | powerShown(machine), 0) << direction;
    }
}

TEST(Motor, turns_the_faster_the_higher_the_power) {
    struct Row {
        int power, interval;
    };
    for (const Row& row :
         {Row{0, 0}, Row{1, 999}, Row{31, 564}, Row{32, 550}, Row{60, 144}, Row{61, 129}, Row{62, 114}, Row{63, 125}}) {
        for (const int direction : {0x40, 0x80}) {
            const Machine machine = driven(7, direction | row.power);
            EXPECT_EQ(machine.timMotorInterval, row.interval) << row.power;
            EXPECT_EQ(powerShown(machine), row.power);
        }
        EXPECT_EQ(driven(7, 0xC0 | row.power).timMotorInterval, 0);
        EXPECT_EQ(driven(5, 0x40 | row.power).timMotorInterval, 0) << "no motor on a plain port";
    }
}

TEST(Motor, steps_its_pictures_by_direction_and_restarts_them_with_each_word) {
    Machine machine = driven(7, 0x0060);
    EXPECT_EQ(machine.motorPhase * 100 + machine.motorStep * 10 + machine.motorCounter, 140);
    std::string phases;
    for (int step = 0; step < 4; ++step) {
        timMotor_Timer(machine);
        phases += std::to_string(machine.motorPhase) + std::to_string(machine.motorStep) + " ";
    }
    EXPECT_EQ(phases, "33 22 11 34 ");
    setMemoryWord(machine, doBase + 8, 0x0160);  // only a LED differs
    ticks(machine, 4);
    EXPECT_EQ(machine.motorPhase * 10 + machine.motorStep, 14);

    machine = driven(7, 0x0090);
    phases.clear();
    for (int step = 0; step < 4; ++step) {
        timMotor_Timer(machine);
        phases += std::to_string(machine.motorPhase) + std::to_string(machine.motorStep) + " ";
    }
    EXPECT_EQ(phases, "22 33 14 21 ");
    EXPECT_EQ(machine.motorCounter, 1);
}

TEST(Motor, is_stopped_by_clr_reset_and_a_change_of_mode) {
    Machine machine = driven(7, 0x00BF);
    ASSERT_EQ(machine.timMotorInterval, 125);
    picCLR_DblClick(machine, 4);
    EXPECT_EQ(machine.timMotorInterval, 0);
    EXPECT_EQ(machine.doLow52, 0xBF) << "the last direction stays";
    picCLR_MouseUp(machine, 4);
    ticks(machine, 4);
    EXPECT_EQ(machine.timMotorInterval, 125);
    picReset_DblClick(machine, 5);
    EXPECT_EQ(machine.timMotorInterval | powerShown(machine), 0);
    picReset_MouseUp(machine, 5);
    ticks(machine, 4);
    cmbIOS_LostFocus(machine, 6);
    EXPECT_EQ(machine.timMotorInterval, 0);
}

TEST(NoiseButton, begins_its_quiet_time_anew_at_each_press) {
    Machine machine = scanningMachine();
    for (int time = 0; time < 2; ++time) {
        picNoise_MouseDown(machine);
        ticks(machine, 40);
        EXPECT_EQ(machine.chipMemory[reg::c1crLow], time + 1) << "each press spoils one visit";
        picNoise_MouseUp(machine);
        ticks(machine, 40);
    }
    EXPECT_EQ(machine.noiseBurst, 460);
}

}  // namespace
