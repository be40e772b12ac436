// The lines of a text file, whatever ends them: CR LF, LF or CR. The last one needs no end.

#pragma once

#include <string_view>

template <typename Function>
void forEachLine(std::string_view text, Function&& take) {
    while (!text.empty()) {
        const auto end = text.find_first_of("\r\n");
        take(text.substr(0, end));
        if (end == std::string_view::npos) {
            return;
        }
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
}
