// SPDX-License-Identifier: Apache-2.0
// The lines of a text file, whatever ends them: CR LF, LF or CR. The last one needs no end.

#pragma once

#include <cstddef>
#include <string_view>

// `take` gets one line after the other, until it returns false: the text may have millions of them.
template <typename Function>
void forEachLine(std::string_view text, Function&& take) {
    while (!text.empty()) {
        const auto end = text.find_first_of("\r\n");
        if (!take(text.substr(0, end)) || end == std::string_view::npos) {
            return;
        }
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
}

// The beginning of a text in UTF-8, at most so many bytes of it and no half character. No window is as wide as what is cut off.
inline std::string_view beginning(std::string_view text, std::size_t bytes) {
    if (text.size() <= bytes) {
        return text;
    }
    while (bytes > 0 && (static_cast<unsigned char>(text[bytes]) & 0xC0U) == 0x80U) {
        --bytes;
    }
    return text.substr(0, bytes);
}

// What a field of a list may be long, in bytes.
inline constexpr std::size_t longestField = 1000;
