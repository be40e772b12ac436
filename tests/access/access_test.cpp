// SPDX-License-Identifier: Apache-2.0
// Texts and addresses that the host CPU doesn't take, and what the register window marks as changed.

#include "access/hexText.h"
#include "access/memoryAccess.h"
#include "access/registerView.h"
#include "tests/machines.h"

#include <gtest/gtest.h>

namespace {

TEST(HexText, is_upper_case_with_leading_zeros_and_read_in_either_case_only_as_a_whole) {
    EXPECT_EQ(hexText(0xAB, 4) + hexText(0, 3) + hexText(0x1ABC, 2), "00AB0001ABC");
    EXPECT_EQ(hexValue("ffFF"), 0xFFFF);
    EXPECT_EQ(hexValue("0aC"), 0xAC);
    for (const char* bad : {"", "12?", " 12", "12 ", "0x1", "10000", "-1", "+1", "G"}) {
        EXPECT_EQ(hexValue(bad), std::nullopt) << bad;
    }
    EXPECT_EQ(byteToBinary(0xA5) + byteToBinary(0x10), "1010_01010001_0000");
}

TEST(Host, is_refused_what_is_no_address_and_nothing_changes) {
    Machine machine = makersMachine();
    setMemoryWord(machine, reg::hprLow, 0x0011);
    const auto before = machine.chipMemory;
    for (const char* bad : {"800", "FFF", "12?", "???", "?12", "12", "1234", "0100", "", "g00", " 12", "12 ", "-12"}) {
        EXPECT_EQ(readMemory(machine, bad), std::nullopt) << bad;
    }
    for (const int foreign : {-2, 0x57E, 0x581, 0x58F, 0x590, 0x7FE}) {
        EXPECT_EQ(writeRegister(machine, foreign, Width::word, Half::low, "0002"), Answer()) << foreign;
    }
    EXPECT_EQ(machine.chipMemory, before);
    EXPECT_EQ(regAddress("CC").size() + regAddress("SCR ").size(), 0U);
}

TEST(RegisterView, marks_each_changed_half_for_four_seconds_but_for_ssr_s_low_one) {
    for (int address = registerBase; address < registerBase + 18; ++address) {
        SCOPED_TRACE(address);
        const int row = (address - registerBase) / 2 + 1;
        const Half half = address % 2 != 0 ? Half::high : Half::low;
        Machine machine = makersMachine();
        RegisterView view;
        refreshRegisters(machine, view);
        memoryAt(machine, address) ^= 0x55;
        EXPECT_EQ(registerByte(machine, row, half), row == 9 ? 0 : byteAt(machine, address));
        for (int second = 0; second <= 4; ++second) {
            refreshRegisters(machine, view);
            int red = 0;
            for (int other = 1; other <= registerRows; ++other) {
                red += (view.at(other, Half::low).red ? 1 : 0) + (view.at(other, Half::high).red ? 1 : 0);
            }
            const bool marked = second < 4 && row != 9 && address != reg::ssrLow;
            EXPECT_TRUE(view.at(row, half).red == marked && red == (marked ? 1 : 0)) << second;
            timRegister_Timer(view);
        }
        colourRow(view, row, half == Half::high, half == Half::low);
        timRegister_Timer(view);
        EXPECT_TRUE(view.at(row, half).red) << "paint of the dialog has no countdown";
    }
}

}  // namespace
