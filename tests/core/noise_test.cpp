// SPDX-License-Identifier: Apache-2.0
// The noise button: the press spoils one visit, then comes quiet, then random failures and a burst at one station.

#include "boards/counters.h"
#include "tests/machines.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

constexpr std::uint64_t seed = 20'000;

Machine noisyMachine(int last, std::uint64_t systemTimer = seed) {
    Machine machine = scanningMachine(static_cast<std::uint8_t>(last));
    machine.systemTimer = systemTimer;
    picNoise_MouseDown(machine);
    return machine;
}

// Tick and station of the visits that failed among the next `count` ticks. Every address must have a board.
using Spoiled = std::vector<std::pair<int, int>>;

Spoiled spoiledVisits(Machine& machine, int count) {
    Spoiled found;
    for (int tick = 1; tick <= count; ++tick) {
        ticks(machine, 1);
        if ((byteAt(machine, machine.stationPtr + 1) & 4) != 0) {
            found.emplace_back(tick, machine.visitAddr);
        }
    }
    return found;
}

TEST(Noise, eleven_random_failures_then_four_more_at_the_last_station_then_anew) {
    Machine machine = noisyMachine(4);
    ticks(machine, 500);
    const Spoiled spoiled = spoiledVisits(machine, 9000);
    ASSERT_GT(spoiled.size(), 30U);
    for (std::size_t index = 1; index <= 30; ++index) {
        const auto [tick, sa] = spoiled[index - 1];
        const bool inBurst = index % 15 >= 11;  // the four after the eleventh
        // With this seed no random failure falls on the station of the one before in the very next pass.
        EXPECT_EQ((spoiled[index] == std::pair{tick + 4, sa}), inBurst) << "after failure " << index;
    }
    EXPECT_EQ(byteAt(machine, reg::c2crLow), static_cast<int>(spoiled.size() / 15)) << "a burst is enough for CHK2";
}

TEST(Noise, press_begins_a_cycle_with_the_generator_seeded_from_the_system_timer) {
    std::vector<Spoiled> runs;
    for (const std::uint64_t systemTimer : {seed, seed, seed + 1}) {
        Machine machine = noisyMachine(4, systemTimer);
        machine.random.seed(runs.size());
        machine.noiseErrorCount = static_cast<std::int16_t>(5 * runs.size());
        runs.push_back(spoiledVisits(machine, 4000));
    }
    EXPECT_GT(runs[0].size(), 10U);
    EXPECT_EQ(runs[0], runs[1]);
    EXPECT_NE(runs[0], runs[2]);
}

TEST(Noise, shorter_passes_are_spoiled_more_rarely) {
    // One tick in 13 from 15 stations on, else one in 13 * (20 - last): 2000 in every row, give or take 45.
    for (const auto& [last, count] : Rows<2>{{63, 26000}, {16, 26000}, {15, 26000}, {14, 156000}, {4, 416000}}) {
        SCOPED_TRACE(last);
        Machine machine = noisyMachine(last);
        ticks(machine, 500);
        int spoiled = 0;
        for (int tick = 0; tick < count; ++tick) {
            ticks(machine, 1);
            spoiled += std::exchange(machine.noiseErrorCount, std::int16_t{0});
        }
        EXPECT_GT(spoiled, 1800);
        EXPECT_LT(spoiled, 2200);
    }
}

}  // namespace
