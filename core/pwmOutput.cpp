// SPDX-License-Identifier: Apache-2.0
#include "core/pwmOutput.h"

#include <cmath>

namespace {

constexpr int modeLamp = 6;
constexpr int modeMotor = 7;
constexpr int powerBits = 0x3F;
constexpr int directionBits = 0xC0;
constexpr int directionDown = 0x40;
constexpr int directionUp = 0x80;
constexpr int phases = 3;
constexpr int steps = 4;

int directionOf(const Machine& machine) {
    return machine.doLow52 & directionBits;
}

int powerOf(const Machine& machine) {
    const int direction = directionOf(machine);
    const bool counts = direction == directionDown || (direction == directionUp && machine.ios52 != modeLamp);
    return counts ? static_cast<int>(machine.doLatch52 & powerBits) : 0;
}

std::int16_t motorInterval(int power) {
    constexpr std::int16_t intervalAtFull = 125;
    if (power == 0) {
        return 0;
    }
    if (power == powerBits) {
        return intervalAtFull;
    }
    return static_cast<std::int16_t>(std::nearbyint((powerBits - power) * 14.5 + 100));
}

void restartMotor(Machine& machine, int power) {
    const int direction = directionOf(machine);
    if (direction == directionDown) {
        machine.motorCounter = 0;
        machine.motorStep = steps;
    } else if (direction == directionUp) {
        machine.motorCounter = 1;
        machine.motorStep = 1;
    }
    machine.motorPhase = 1;
    machine.timMotorInterval = motorInterval(power);
}

std::int16_t turned(std::int16_t number, int by, int count) {
    const int next = number + by;
    return static_cast<std::int16_t>(next < 1 ? count : next > count ? 1 : next);
}

}  // namespace

bool pwmShown(const Machine& machine) {
    return machine.ios52 == modeLamp || machine.ios52 == modeMotor;
}

bool motorTurns(const Machine& machine) {
    return machine.ios52 == modeMotor;
}

void showPower(Machine& machine) {
    const int power = powerOf(machine);
    for (std::size_t bit = 0; bit < machine.picPower.size(); ++bit) {
        machine.picPower[bit].lit = (power >> bit & 1) != 0;
    }
    if (machine.ios52 == modeLamp) {
        machine.lampLevel = static_cast<std::int16_t>(power / 8);
    } else if (machine.ios52 == modeMotor) {
        restartMotor(machine, power);
    }
}

void timMotor_Timer(Machine& machine) {
    const int by = (machine.doLow52 & directionUp) != 0 ? 1 : -1;
    machine.motorPhase = turned(machine.motorPhase, by, phases);
    machine.motorStep = turned(machine.motorStep, by, steps);
}
