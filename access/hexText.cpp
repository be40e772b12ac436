// SPDX-License-Identifier: Apache-2.0
#include "access/hexText.h"

#include <charconv>

std::string hexText(unsigned value, int digits) {
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    std::string text;
    for (unsigned rest = value; rest != 0 || static_cast<int>(text.size()) < digits; rest >>= 4) {
        text.insert(text.begin(), hexDigits[rest & 0xF]);
    }
    return text;
}

std::optional<std::uint16_t> hexValue(std::string_view text) {
    std::uint16_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, 16);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return value;
}

std::string byteToBinary(std::uint8_t value) {
    std::string text;
    for (int bit = 7; bit >= 0; --bit) {
        text += (value >> bit & 1) != 0 ? '1' : '0';
        if (bit == 4) {
            text += '_';
        }
    }
    return text;
}
