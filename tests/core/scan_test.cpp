// SPDX-License-Identifier: Apache-2.0
// The walk over the stations, continuous and single, and what SCR, SSR and the requests say on the way.

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

// What is done and seen, step by step:
//   82           a tick, after which SSR names the next station so; a "p" behind it: a pass has ended, an "e": the scan too
//   x59          so many ticks
//   lo04 hi05    a write to a half of SCR
//   hold go      the request that holds the scan is set, is cleared
//   lit dark     the scan LED is so
struct Script {
    const char* name;
    const char* steps;
};

void does(Machine& machine, const std::string& step, int& held) {
    const auto number = [&step](std::size_t from) { return std::stoi(step.substr(from, 2), nullptr, 16); };
    if (step.starts_with("lo") || step.starts_with("hi")) {
        setByte(machine, step[0] == 'l' ? reg::scrLow : reg::scrHigh, number(2));
    } else if (step == "hold" || step == "go") {
        held = step == "hold" ? holdRequest : 0;
    } else if (step == "lit" || step == "dark") {
        EXPECT_EQ(machine.picScanLed.lit, step == "lit");
    } else if (step[0] == 'x') {
        ticks(machine, std::stoi(step.substr(1)));
    } else {
        const int requests = step.back() == 'e' ? 0x88 : step.back() == 'p' ? 0x08 : 0;
        const auto before = machine.chipMemory;
        machine.diImage[4] ^= 1;  // a visit to station 1 would be seen in memory
        setByte(machine, reg::int0Request, held);
        ticks(machine, 1);
        EXPECT_EQ(byteAt(machine, reg::ssrLow), number(0));
        EXPECT_EQ(byteAt(machine, reg::int0Request), held | requests);
        setByte(machine, reg::int0Request, before[reg::int0Request]);
        EXPECT_TRUE(number(0) != 0 || requests != 0 || machine.chipMemory == before) << "nobody is visited without a scan";
    }
}

TEST(Scan, walks_by_scr_and_tells_each_end) {
    for (const auto& [name, steps] :
         {Script{"continuous", "lo04 82 lit 83 84 81p 82 83 84 81p 82"}, Script{"one station", "lo01 81p 81p"},
          Script{"all stations", "lo3F x61 BF 81p x61 BF 81p"},
          Script{"a lower last address waits", "lo04 82 lo02 83 84 81p 82 81p"},
          Script{"a higher one too", "lo04 82 lo06 83 84 81p 82 83 84 85 86 81p"},
          Script{"0 stops at the pass end", "lo04 82 lo00 83 lit 84 00e dark 00 00 lo02 82 lit 81p"},
          Script{"single", "hi05 82 lit 83 hi06 84 85 00e dark 00 00"}, Script{"single over one station", "hi01 00e dark 00"},
          Script{"started while held", "lo04 hold 00 lit 00 go 82 83"},
          Script{"single while held", "hi02 hold 00 lit go 82 00e 00"},
          Script{"held on the way", "lo04 82 83 hold 83 83 83 lit go 84 81p"},
          Script{"both between two ticks: each takes its step, the single one's last address rules",
                 "lo04 hi03 83 lit 81e dark 82 83 84 81p"}}) {
        Machine machine = makersMachine();
        setByte(machine, reg::int0Enable, 0x88);
        int held = 0;
        std::istringstream words(steps);
        for (std::string step; words >> step;) {
            SCOPED_TRACE(std::string(name) + " at " + step);
            does(machine, step, held);
        }
        EXPECT_EQ(byteAt(machine, reg::scrHigh), 0) << name;
    }
}

TEST(Scan, takes_the_rate_of_bcr_when_it_starts_and_not_before) {
    Machine machine = scanningMachine(1);
    ticks(machine, 1);
    setByte(machine, reg::bcrLow, 0x12);
    ticks(machine, 5);
    EXPECT_EQ(statusOf(machine, 1), 0) << "it goes on at the rate it was started with";
    setByte(machine, reg::scrLow, 0);
    ticks(machine, 1);
    EXPECT_EQ(machine.scanAddr, 0);
    setByte(machine, reg::scrLow, 1);
    ticks(machine, 1);
    EXPECT_EQ(statusOf(machine, 1), 0x14);
}

TEST(Pass, reports_on_its_own) {
    Machine machine = scanningMachine(4);
    setMemoryWord(machine, drcBase + 2 * 3, 0x0001);
    machine.serialReady[0] = true;
    int before = 0;
    // Whether station 4 is in reset, the inputs of station 3, and the report of the pass. Serial data shows in the first.
    for (const auto& [reset, input, report] : Rows<3>{{1, 1, 7}, {0, 1, 0}, {0, 0, 1}, {1, 0, 4}, {1, 1, 5}}) {
        machine.resetHeld52 = reset != 0;
        setInput(machine, slotCascade, input);
        ticks(machine, 3);
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), before) << "still that of the pass before";
        ticks(machine, 1);
        EXPECT_EQ(byteAt(machine, reg::ssrHigh), report);
        before = report;
    }
}

TEST(Pass, that_is_broken_off_leaves_only_its_chk_events_to_the_next_scan) {
    Machine machine = scanningMachine(4);
    setByte(machine, reg::int0Enable, 0xF8);
    setMemoryWord(machine, drcBase + 2 * 2, 0xFFFF);
    setInput(machine, slotQDA41, 0x0001);
    machine.serialReady[0] = true;
    machine.resetHeld[3] = true;
    setStatus(machine, 1, 0x24);
    ticks(machine, 2);
    // The chip is reset in the middle of the pass, and the station is back on the line.
    machine.scanRunning = false;
    machine.resetHeld[3] = false;
    ticks(machine, 4);
    EXPECT_EQ(byteAt(machine, reg::ssrHigh), 0);
    EXPECT_EQ(byteAt(machine, reg::int0Request), 0x48) << "pass end and CHK2";
}

TEST(Pass, of_a_single_scan_leaves_nothing_and_of_both_scans_reports_twice) {
    Machine machine = makersMachine();
    setByte(machine, reg::scrHigh, 5);
    ticks(machine, 5);
    EXPECT_EQ(memoryWord(machine, reg::ssrLow), 0x0400) << "the empty address failed";
    EXPECT_EQ(machine.scanAddr, 5);
    EXPECT_FALSE(scanOn(machine) || machine.ssrErrorSeen || machine.chk1Seen);

    machine = makersMachine();
    setMemoryWord(machine, reg::scrLow, 0x0304);
    setStatus(machine, 2, 0x24);
    unplug(machine, 2);
    ticks(machine, 2);
    EXPECT_EQ(memoryWord(machine, reg::ssrLow), 0x0081) << "the second report of the same tick knows of no failure";
    EXPECT_EQ(statusOf(machine, 2), 0x24) << "station 2 was stepped over";
    EXPECT_EQ(statusOf(machine, 3), 0x14);
}

}  // namespace
