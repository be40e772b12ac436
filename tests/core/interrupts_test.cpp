// SPDX-License-Identifier: Apache-2.0
// Change detection under the DRC mask, the interrupt requests, the hold, and the interrupt indicator.

#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

// Station 3 sees a change of its inputs at its next visit.
void change(Machine& machine) {
    setMemoryWord(machine, drcBase + 2 * 3, 0xFFFF);
    machine.diImage[2] ^= 0x10;
}

TEST(ChangeDetection, only_bits_under_the_mask_count) {
    for (const auto& [before, now, mask, counts] :
         {Row<4>{0x0000, 0x0001, 0x0001, 1}, Row<4>{0x0001, 0x0000, 0x0001, 1}, Row<4>{0x0000, 0x0001, 0xFFFE, 0},
          Row<4>{0x0000, 0x0100, 0x0100, 1}, Row<4>{0x0000, 0x0100, 0x0001, 0}, Row<4>{0x0000, 0x0001, 0x0100, 0},
          Row<4>{0x7FFF, 0xFFFF, 0x8000, 1}, Row<4>{0x0000, 0xFFFF, 0x0000, 0}, Row<4>{0x0FF0, 0x0FF0, 0xFFFF, 0},
          Row<4>{0x00FF, 0xFF00, 0x8000, 1}, Row<4>{0x1234, 0x1634, 0xFBFF, 0}}) {
        for (const int command : {0x00, 0x08}) {
            SCOPED_TRACE(testing::Message() << std::hex << before << " " << now << " mask " << mask);
            Machine machine = scanningMachine(4);
            setMemoryWord(machine, diBase + 2 * 4, before);
            setMemoryWord(machine, drcBase + 2 * 4, mask);
            setInput(machine, slotQDA52, now);
            setCommand(machine, 4, command);
            ticks(machine, 4);
            EXPECT_EQ(memoryWord(machine, diBase + 2 * 4), now);
            EXPECT_EQ(statusOf(machine, 4), 2 * counts);
            EXPECT_EQ(byteAt(machine, reg::ssrHigh), counts);
            ticks(machine, 4);
            EXPECT_EQ(statusOf(machine, 4), 0) << "the next visit sees no change";
        }
    }
}

TEST(ChangeDetection, counter_words_and_dropped_words_are_no_change_and_serial_data_stands_beside_one) {
    for (const auto& [command, status, serial, after] : Rows<4>{{0x01, 0x00, 0, 0}, {0x00, 0x14, 0, 0}, {0x00, 0x00, 1, 3}}) {
        Machine machine = scanningMachine(4);
        change(machine);
        machine.counterImage[12] = 0x55;
        machine.serialReady[1] = serial != 0;
        setCommand(machine, 3, command);
        setStatus(machine, 3, status);
        ticks(machine, 4);
        EXPECT_EQ(statusOf(machine, 3), after);
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), after);
    }
}

TEST(Interrupts, a_change_is_requested_at_the_visit_and_the_pass_end_and_holds_the_scan_until_bit_2_is_cleared) {
    Machine machine = scanningMachine(4);
    setByte(machine, reg::int0Enable, 0x07);
    change(machine);
    for (const int request : {0x00, 0x00, 0x01, 0x07}) {
        ticks(machine, 1);
        EXPECT_EQ(byteAt(machine, reg::int0Request), request);
        EXPECT_EQ(machine.picInt.visible, request != 0);
    }
    setMemoryWord(machine, doBase + 2 * 1, 0xBEEF);
    const Machine held = machine;
    ticks(machine, 100);
    EXPECT_EQ(machine.chipMemory, held.chipMemory);
    EXPECT_EQ(latchOf(machine, slotQDA73), 0U);
    EXPECT_EQ(held.monLed52Timer - machine.monLed52Timer, 100) << "LED timers run on";
    setByte(machine, reg::int0Request, 0x03);
    ticks(machine, 1);
    EXPECT_EQ(latchOf(machine, slotQDA73), 0xBEEFU);
}

// What happens in one pass over stations 1 to 5, and the requests it raises when all are enabled. Nobody is at station 5;
// its status decides whether its failure is an event.
struct Scene {
    const char* name;
    int status5;
    void (*prepare)(Machine&);
    int int0, int1;
};

void serial(Machine& machine) {
    machine.serialReady[0] = true;
}

void nearItsEnd(Machine& machine) {
    ticks(machine, 5);
    setMemoryWord(machine, reg::scrLow, 0);
}

constexpr std::array<Scene, 16> scenes{{
    {"quiet", 0x7C, [](Machine&) {}, 0x08, 0x08},
    {"input changed", 0x7C, change, 0x0F, 0x08},
    {"serial data", 0x7C, serial, 0x18, 0x18},
    {"serial data of Board No1", 0x7C, [](Machine& m) { m.serialReady[2] = true; }, 0x18, 0x18},
    {"serial data, shown before", 0x7C, [](Machine& m) { serial(m), setStatus(m, 2, 1); }, 0x08, 0x08},
    {"serial data as it is read", 0x7C, [](Machine& m) { serial(m), setCommand(m, 2, 7); }, 0x08, 0x08},
    {"serial data and change", 0x7C, [](Machine& m) { serial(m), change(m); }, 0x1F, 0x18},
    {"serial data, change in the pass before", 0x7C, [](Machine& m) { serial(m), setByte(m, reg::ssrHigh, 1); }, 0x08, 0x08},
    {"serial data, failure in the pass before", 0x7C, [](Machine& m) { serial(m), setByte(m, reg::ssrHigh, 6); }, 0x18, 0x18},
    {"first failure", 0x00, [](Machine&) {}, 0x28, 0x28},
    {"second failure", 0x14, [](Machine&) {}, 0x08, 0x08},
    {"third failure", 0x24, [](Machine&) {}, 0x48, 0x48},
    {"third failure in the pass before", 0x24, [](Machine& m) { ticks(m, 5); }, 0x08, 0x08},
    {"first and third failure", 0x24, [](Machine& m) { m.resetHeld[1] = true; }, 0x68, 0x68},
    {"end of the continuous scan", 0x7C, nearItsEnd, 0x88, 0x88},
    {"end of the single scan", 0x7C, [](Machine& m) { setMemoryWord(m, reg::scrLow, 0x0500); }, 0x88, 0x88},
}};

TEST(Interrupts, each_event_raises_its_requests_where_they_are_enabled) {
    for (const Scene& scene : scenes) {
        for (const int enable : {0xFF, 0x00, 0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80}) {
            SCOPED_TRACE(testing::Message() << scene.name << " enable " << enable);
            Machine machine = scanningMachine(5);
            setStatus(machine, 5, scene.status5);
            scene.prepare(machine);
            setByte(machine, reg::int0Enable, enable);
            setByte(machine, reg::int1Enable, enable ^ 0xFF);
            ticks(machine, 5);
            const int int0 = scene.int0 & enable;
            const int int1 = scene.int1 & ~enable;
            EXPECT_EQ(byteAt(machine, reg::int0Request), int0);
            EXPECT_EQ(byteAt(machine, reg::int1Request), int1);
            EXPECT_EQ(machine.intLedShown, 1 + (int0 != 0 ? 1 : 0) + (int1 != 0 ? 2 : 0));
        }
    }
}

TEST(Interrupts, requests_stay_until_the_learner_clears_them_and_the_indicator_tells_whose_they_are) {
    for (const auto& [request0, request1, shown] : Rows<3>{{0x00, 0x00, 1}, {0x01, 0x00, 2}, {0x00, 0x80, 3}, {0x40, 0x08, 4}}) {
        Machine machine = scanningMachine(4);
        EXPECT_FALSE(machine.picInt.visible);
        setByte(machine, reg::int0Request, request0);
        setByte(machine, reg::int1Request, request1);
        ticks(machine, 8);
        EXPECT_EQ(byteAt(machine, reg::int0Request) << 8 | byteAt(machine, reg::int1Request), request0 << 8 | request1);
        EXPECT_EQ(machine.intLedShown, shown);
        EXPECT_EQ(machine.picInt.visible, shown >= 2);
        setMemoryWord(machine, reg::int0Request, 0);
        setMemoryWord(machine, reg::int1Request, 0);
        updateIntLed(machine);
        EXPECT_FALSE(machine.picInt.visible);
    }
}

}  // namespace
