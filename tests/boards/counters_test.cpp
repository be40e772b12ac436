// SPDX-License-Identifier: Apache-2.0
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
    for (const auto& [before, after] : Rows<2>{{0, 1}, {0xFF, 0x100}, {0x0FFF, 0x1000}, {0xFFFF, 0}}) {
        for (const std::size_t word : {std::size_t{0}, std::size_t{11}, std::size_t{24}}) {
            Machine machine = makersMachine();
            setCounter(machine, word, before);
            picCounter_MouseDown(machine, word);
            EXPECT_TRUE(counterWord(machine, word) == before && machine.picCounter[word].down);
            picCounter_MouseUp(machine, word);
            EXPECT_TRUE(counterWord(machine, word) == after && !machine.picCounter[word].down);
        }
    }
}

TEST(Counters, of_board_no4_shows_twelve_bits_beside_the_four_switches) {
    Machine machine = makersMachine();
    cmbIOS_LostFocus(machine, 7);
    picPI_Click(machine, 66);
    setCounter(machine, 24, 0x0FFE);
    press(machine, 24);
    EXPECT_EQ(inputOf(machine, 5), 0x4FFF);
    press(machine, 24);
    EXPECT_EQ(inputOf(machine, 5), 0x4000);
    EXPECT_EQ(counterWord(machine, 24), 0x1000);
    press(machine, 24);
    cmbIOS_LostFocus(machine, 0);
    EXPECT_EQ(inputOf(machine, 5), 0);
    cmbIOS_LostFocus(machine, 7);
    EXPECT_EQ(inputOf(machine, 5), 1) << "the counter shows again after a change of mode";

    machine.mode52 = 2;
    press(machine, 25);
    EXPECT_EQ(counterWord(machine, 24), 0x1001) << "a dead button in any mode but 0";
    machine.cmbMode.listIndex = 2;
    EXPECT_EQ(cmbMode_LostFocus(machine),
              Answer(Warning{"ＱＤＡ５２のカウンタモードの、０以外の動作はユーザーズマニュアルをご参照ください。"}));
    EXPECT_TRUE(machine.mode52 == 2 && machine.cmbMode.listIndex == 0);
    machine.mode52 = 0;
    picCounter_MouseDown(machine, 25);
    EXPECT_EQ(counterWord(machine, 24) | inputOf(machine, 5), 0);
}

TEST(Pwm, lamp_has_eight_levels_in_one_direction_only_and_the_motor_turns_the_faster_the_higher_the_power) {
    for (int power = 0; power < 64; ++power) {
        const Machine lamp = driven(6, 0x40 | power);
        EXPECT_EQ(lamp.lampLevel, power / 8);
        EXPECT_EQ(powerShown(lamp), power);
        EXPECT_EQ(lamp.timMotorInterval, 0);
    }
    for (const int direction : {0x00, 0x80, 0xC0}) {
        const Machine lamp = driven(6, direction | 0x3F);
        EXPECT_EQ(lamp.lampLevel | powerShown(lamp), 0) << direction;
    }
    for (const auto& [power, interval] :
         Rows<2>{{0, 0}, {1, 999}, {31, 564}, {32, 550}, {60, 144}, {61, 129}, {62, 114}, {63, 125}}) {
        for (const int direction : {0x40, 0x80}) {
            const Machine motor = driven(7, direction | power);
            EXPECT_EQ(motor.timMotorInterval, interval) << power;
            EXPECT_EQ(powerShown(motor), power);
        }
        EXPECT_EQ(driven(7, 0xC0 | power).timMotorInterval, 0);
        EXPECT_EQ(driven(5, 0x40 | power).timMotorInterval, 0) << "no motor on a plain port";
    }
    for (int mode = 0; mode < 8; ++mode) {
        const Machine machine = driven(mode, 0);
        EXPECT_TRUE(pwmShown(machine) == (mode >= 6) && motorTurns(machine) == (mode == 7)) << mode;
    }
}

TEST(Motor, steps_its_pictures_by_direction_and_restarts_them_with_each_word) {
    struct Case {
        int word, first;
        const char* phases;  // belt, sawtooth, row of the sawtooth
    };
    for (const Case& row : {Case{0x0060, 140, "330 220 110 340 "}, Case{0x0090, 111, "221 331 141 211 "}}) {
        Machine machine = driven(7, row.word);
        const auto shown = [&] { return machine.motorPhase * 100 + machine.motorStep * 10 + machine.motorCounter; };
        EXPECT_EQ(shown(), row.first);
        std::string phases;
        for (int step = 0; step < 4; ++step) {
            timMotor_Timer(machine);
            phases += std::to_string(shown()) + " ";
        }
        EXPECT_EQ(phases, row.phases);
        setMemoryWord(machine, doBase + 8, row.word | 0x0100);  // only a LED differs
        ticks(machine, 4);
        EXPECT_EQ(shown(), row.first);
    }
}

TEST(Pwm, is_stopped_by_clr_reset_and_a_change_of_mode) {
    Machine machine = driven(7, 0x00BF);
    for (const bool reset : {false, true}) {
        EXPECT_EQ(machine.timMotorInterval, 125);
        reset ? picReset_DblClick(machine, 5) : picCLR_DblClick(machine, 4);
        EXPECT_EQ(machine.timMotorInterval | powerShown(machine), 0);
        EXPECT_EQ(machine.doLow52, 0xBF) << "the last direction stays";
        reset ? picReset_MouseUp(machine, 5) : picCLR_MouseUp(machine, 4);
        ticks(machine, 4);
    }
    for (const int mode : {6, 5, 4}) {
        machine = driven(mode == 6 ? 7 : 6, 0x007F);
        cmbIOS_LostFocus(machine, mode);
        EXPECT_EQ(machine.timMotorInterval, 0);
        EXPECT_TRUE(machine.lampLevel == (mode == 6 ? 7 : 0) && powerShown(machine) == 63) << mode;
    }
}

}  // namespace
