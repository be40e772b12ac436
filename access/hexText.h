// SPDX-License-Identifier: Apache-2.0
// Hexadecimal text as the learner reads and types it.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The number as upper-case hexadecimal digits, at least `digits` of them.
std::string hexText(unsigned value, int digits);

// The number of a text of hexadecimal digits in either case. Nothing for an empty text, for any other character, and for
// more than 16 bits.
std::optional<std::uint16_t> hexValue(std::string_view text);

// "0101_1010" for 5AH: the bits 7 to 0 with "_" between bit 4 and bit 3.
std::string byteToBinary(std::uint8_t value);
