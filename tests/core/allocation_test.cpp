// SPDX-License-Identifier: Apache-2.0
// A firing allocates nothing. This file replaces the global operators new and delete of the whole test program by ones
// that count.

#include "boards/counters.h"
#include "core/runControl.h"
#include "tests/machines.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

std::size_t heapCalls = 0;

void* allocate(std::size_t size) {
    ++heapCalls;
    void* memory = std::malloc(size != 0 ? size : 1);
    return memory != nullptr ? memory : (std::abort(), nullptr);
}

void release(void* memory) {
    ++heapCalls;
    std::free(memory);
}

}  // namespace

// clang-format off
void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void operator delete(void* memory) noexcept { release(memory); }
void operator delete[](void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { release(memory); }
// clang-format on

namespace {

TEST(Allocation, firing_with_failures_noise_and_interrupts_makes_none) {
    Machine machine = scanningMachine(16);
    picNoise_MouseDown(machine);
    setByte(machine, reg::int0Enable, 0xFB);
    setByte(machine, reg::int1Enable, 0xFF);
    for (int sa = 1; sa <= 4; ++sa) {
        setByte(machine, controlBase + 2 * sa, 0x20 * (sa & 1));
        setMemoryWord(machine, drcBase + 2 * sa, 0xFFFF);
    }
    TickBar bar;
    ::operator delete(::operator new(1));
    ASSERT_GE(heapCalls, 2U) << "the count is not in place";
    const std::size_t before = heapCalls;
    for (int firing = 0; firing < 60; ++firing) {
        plug(machine, 3, firing < 40);
        machine.diImage[2] ^= 0x81;
        setMemoryWord(machine, doBase + 2 * 4, firing);
        machine.serialReady[0] = true;
        setByte(machine, controlBase + 2 * 2, firing % 16);
        timTick_Timer(machine, bar);
        lblRunMode_Click(machine, bar, modeOneTime);
        lblRunMode_Click(machine, bar, modeRun);
    }
    EXPECT_EQ(heapCalls - before, 0U);

    EXPECT_EQ(byteAt(machine, reg::int0Request), 0x7B) << "the scene has shown everything but a scan end and a hold";
    EXPECT_GT(byteAt(machine, reg::c2crLow), 12) << "the twelve empty addresses, and more";
}

}  // namespace
