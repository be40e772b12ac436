#include "tests/bench.h"

#include <gtest/gtest.h>

TEST(ContinuousScan, finds_its_four_stations) {
    Machine machine = scanningMachine();
    machine.diImage[0] = 0x34;
    machine.diImage[1] = 0x12;
    ticks(machine, 4);
    for (int sa = 1; sa <= 4; ++sa) {
        EXPECT_EQ(statusOf(machine, sa), 0) << "station " << sa;
    }
    EXPECT_EQ(memoryWord(machine, diBase + 2 * 2), 0x1234);
}
