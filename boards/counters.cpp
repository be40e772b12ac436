// SPDX-License-Identifier: Apache-2.0
#include "boards/counters.h"

#include "core/boardTick.h"

namespace {

constexpr std::size_t counter52 = 24;
constexpr std::size_t clear52 = 25;
constexpr std::size_t lowOf52 = 2 * counter52;
constexpr int upperFourBits = 0xF0;

void count(Machine& machine, std::size_t word) {
    std::uint8_t& low = machine.counterImage[2 * word];
    if (++low == 0) {
        ++machine.counterImage[2 * word + 1];
    }
}

}  // namespace

void showCounter52(Machine& machine) {
    machine.diImage[8] = machine.counterImage[lowOf52];
    machine.diImage[9] =
        static_cast<std::uint8_t>((machine.diImage[9] & upperFourBits) | (machine.counterImage[lowOf52 + 1] & ~upperFourBits));
}

void picCounter_MouseDown(Machine& machine, std::size_t index) {
    machine.picCounter[index].down = true;
    if (index == clear52 && machine.mode52 == 0) {
        machine.counterImage[lowOf52] = 0;
        machine.counterImage[lowOf52 + 1] = 0;
        showCounter52(machine);
    }
}

void picCounter_MouseUp(Machine& machine, std::size_t index) {
    machine.picCounter[index].down = false;
    if (index < clear52) {
        count(machine, index);
    }
    if (index == counter52) {
        showCounter52(machine);
    }
}

Answer cmbMode_LostFocus(Machine& machine) {
    machine.cmbMode.listIndex = 0;
    return Warning{"ＱＤＡ５２のカウンタモードの、０以外の動作はユーザーズマニュアルをご参照ください。"};
}

void picNoise_MouseDown(Machine& machine) {
    machine.noiseOn = true;
    machine.noiseBurst = noiseQuietTicks;
}

void picNoise_MouseUp(Machine& machine) {
    machine.noiseOn = false;
}
