// SPDX-License-Identifier: Apache-2.0
// Hexadecimal text as it is shown and typed.

#include "access/hexText.h"

#include <gtest/gtest.h>

TEST(HexText, is_upper_case_with_leading_zeros_and_read_in_either_case_only_as_a_whole) {
    EXPECT_EQ(hexText(0xAB, 4) + hexText(0, 3) + hexText(0x1ABC, 2), "00AB0001ABC");
    EXPECT_EQ(hexValue("ffFF"), 0xFFFF);
    EXPECT_EQ(hexValue("0aC"), 0xAC);
    for (const char* bad : {"", "12?", " 12", "12 ", "0x1", "10000", "-1", "+1", "G"}) {
        EXPECT_EQ(hexValue(bad), std::nullopt) << bad;
    }
    EXPECT_EQ(byteToBinary(0xA5) + byteToBinary(0x10), "1010_01010001_0000");
}
