// SPDX-License-Identifier: Apache-2.0
#include "boards/serialInput.h"

#include "access/hexText.h"

namespace {

constexpr int firstBitLeft = 18;
constexpr int bitWidth = 25;
constexpr double halfBit = 12.5;
constexpr int lastBit = serialBits - 1;

// A line that is drawn from left to right between two levels.
class Pen {
public:
    explicit Pen(const WaveRow& row) : row_(row) { points_.push_back({0, static_cast<double>(row.low)}); }

    // Goes to `x` at the present level and takes the next one there.
    void step(double x, bool high) {
        if (high == high_) {
            return;
        }
        points_.push_back({x, level()});
        high_ = high;
        points_.push_back({x, level()});
    }
    Wave finish() {
        points_.push_back({waveWidth, level()});
        return std::move(points_);
    }

private:
    double level() const { return high_ ? row_.high : row_.low; }

    const WaveRow& row_;
    Wave points_;
    bool high_ = false;
};

}  // namespace

Answer picSDI_DblClick(Machine& machine, std::size_t index) {
    if (machine.serialReady[index]) {
        return Popup{"SEがローレベル(LED点灯)中は入力できません。"};
    }
    machine.serialEditSlot = static_cast<std::int16_t>(index);
    return {};
}

void beginShift(Machine& machine, std::size_t index) {
    machine.picSerialInt[index].visible = true;
}

void endShift(Machine& machine, std::size_t index, std::string_view digits) {
    machine.picSerialInt[index].visible = false;
    const auto word = hexValue(digits);
    if (!word) {
        return;
    }
    machine.serialData[2 * index] = static_cast<std::uint8_t>(*word);
    machine.serialData[2 * index + 1] = static_cast<std::uint8_t>(*word >> 8);
    machine.serialReady[index] = true;
    machine.picSE[index].lit = true;
}

int waveLeftOfBit(int bit) {
    return firstBitLeft + bitWidth * (lastBit - bit);
}

Wave serialWave(std::size_t row, unsigned word) {
    Pen pen(waveRows[row]);
    switch (row) {
        case 0:
            for (int bit = lastBit; bit >= 0; --bit) {
                pen.step(waveLeftOfBit(bit), (word >> bit & 1U) != 0);
            }
            pen.step(waveLeftOfBit(0) + bitWidth, false);
            break;
        case 1:
            for (int bit = lastBit; bit >= 0; --bit) {
                pen.step(waveLeftOfBit(bit) + halfBit, true);
                pen.step(waveLeftOfBit(bit) + bitWidth, false);
            }
            break;
        default:
            pen.step(waveLeftOfBit(0) + bitWidth + halfBit, true);
            pen.step(waveLeftOfBit(0) + 2 * bitWidth + halfBit, false);
    }
    return pen.finish();
}
