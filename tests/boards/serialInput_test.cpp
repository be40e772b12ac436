// SPDX-License-Identifier: Apache-2.0
#include "boards/serialInput.h"

#include "tests/machines.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// A line that rises and falls in turn at these places, between its two levels.
Wave line(const WaveRow& row, std::initializer_list<double> steps) {
    Wave points{{0, static_cast<double>(row.low)}};
    for (const double x : steps) {
        const double before = points.back().y;
        points.push_back({x, before});
        points.push_back({x, row.high + row.low - before});
    }
    points.push_back({waveWidth, points.back().y});
    return points;
}

TEST(SerialWave, steps_where_a_bit_a_clock_or_the_load_does) {
    const auto& [sdi, sck, sld] = waveRows;
    EXPECT_EQ(serialWave(0, 0x0000), line(sdi, {}));
    EXPECT_EQ(serialWave(0, 0xFFFF), line(sdi, {18, 418}));
    // 0101 1010 0011 1100: at the left edge of each cell whose level differs from the one before.
    EXPECT_EQ(serialWave(0, 0x5A3C), line(sdi, {43, 68, 93, 143, 168, 193, 268, 368}));
    const Wave clock = serialWave(1, 0x5A3C);
    ASSERT_EQ(clock.size(), 66U) << "sixteen pulses";
    const Wave first = line(sck, {30.5, 43, 55.5});
    EXPECT_TRUE(std::equal(first.begin(), first.end() - 1, clock.begin()));
    EXPECT_TRUE(std::equal(clock.end() - 5, clock.end(), line(sck, {405.5, 418}).begin() + 1)) << "and ends low";
    EXPECT_EQ(serialWave(2, 0x5A3C), line(sld, {430.5, 455.5}));
    EXPECT_EQ(serialWave(2, 0).front(), (WavePoint{0, 105}));
}

}  // namespace
