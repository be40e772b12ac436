// SPDX-License-Identifier: Apache-2.0
// Guided tours: the index of the tours, the pages of one, and the colours of a line of text.
//
//   index    ; a comment
//            file name <tab> title in the list <tab> remark
//
//   tour     upper line ─┐
//            lower line  ├ one page
//            not shown  ─┘
//
//   line     plain &black #blue \red      a marker is not shown and colours what stands behind it
//
// An index names at most 500 tours, a field counts with its first 1000 bytes, and a tour has at most 32767 pages: what follows is
// left out. A page turn does nothing to the machine: a tour only shows text. All texts are UTF-8 here.

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

struct NaviRecord {
    std::string fileName;
    std::string title;
    std::string remark;  // kept; nothing uses it
    bool fileFound = false;
};

// The tours in the order of the index, from 1: record 0 is empty, and what an empty list has for its selection. A line with
// fewer than three fields names no tour and is skipped. `exists` tells whether a tour's file is there.
std::vector<NaviRecord> readNaviIndex(std::string_view text, const std::function<bool(const std::string&)>& exists);

inline constexpr std::size_t mostTours = 500;
inline constexpr std::size_t linesAPage = 3;
inline constexpr std::size_t linesShown = 2;

struct Tour {
    std::vector<std::string> naviLines;
    std::int16_t naviPage = 1;   // the page shown
    std::int16_t naviPages = 0;  // whole pages only: lines that don't fill one are never shown, but for a tour that has none
};

Tour readTour(std::string_view text);

bool hasPageBefore(const Tour& tour);
bool hasPageBehind(const Tour& tour);
// One page back or on, where there is one.
void turnPage(Tour& tour, int direction);
// Line 0 (upper) or 1 (lower) of the page shown; empty where the tour has none.
std::string_view shownLine(const Tour& tour, std::size_t row);

enum class TextColour : std::uint8_t { black, blue, red };

struct TextRun {
    TextColour colour;
    std::string text;
    bool operator==(const TextRun&) const = default;
};

// The runs of a line, one behind the other; runs without text are left out. Bytes past 30000 are: no window is as wide.
std::vector<TextRun> markedRuns(std::string_view line);
