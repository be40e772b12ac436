// Hexadecimal text as it is shown and typed.

#include "access/hexText.h"

#include <gtest/gtest.h>

namespace {

TEST(HexText, is_upper_case_with_leading_zeros) {
    EXPECT_EQ(hexText(0xAB, 4), "00AB");
    EXPECT_EQ(hexText(0, 3), "000");
    EXPECT_EQ(hexText(0x7FF, 3), "7FF");
    EXPECT_EQ(hexText(0x1ABC, 2), "1ABC");
}

TEST(HexText, is_read_in_either_case_and_only_as_a_whole) {
    EXPECT_EQ(hexValue("ffFF"), 0xFFFF);
    EXPECT_EQ(hexValue("0aC"), 0xAC);
    EXPECT_EQ(hexValue("0"), 0);
    for (const char* bad : {"", "12?", " 12", "12 ", "0x1", "10000", "-1", "+1", "G"}) {
        EXPECT_EQ(hexValue(bad), std::nullopt) << bad;
    }
}

TEST(HexText, in_binary_parts_the_nibbles) {
    EXPECT_EQ(byteToBinary(0xA5), "1010_0101");
    EXPECT_EQ(byteToBinary(0x10), "0001_0000");
}

}  // namespace
