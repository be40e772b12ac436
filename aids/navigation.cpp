// SPDX-License-Identifier: Apache-2.0
#include "aids/navigation.h"

#include "aids/textLines.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace {

constexpr std::size_t longestLine = 30000;
constexpr std::size_t mostPages = std::numeric_limits<std::int16_t>::max();

struct Marker {
    char sign;
    TextColour colour;
};

constexpr std::array<Marker, 3> markers{{{'&', TextColour::black}, {'#', TextColour::blue}, {'\\', TextColour::red}}};
constexpr std::string_view markerSigns = "&#\\";

TextColour colourOf(char sign) {
    return std::find_if(markers.begin(), markers.end(), [sign](const Marker& marker) { return marker.sign == sign; })->colour;
}

// Three fields; a tab behind the second separator belongs to the third.
std::optional<NaviRecord> recordOf(std::string_view line) {
    const auto first = line.find('\t');
    const auto second = first == std::string_view::npos ? first : line.find('\t', first + 1);
    if (second == std::string_view::npos) {
        return std::nullopt;
    }
    const auto field = [](std::string_view text) { return std::string(beginning(text, longestField)); };
    return NaviRecord{field(line.substr(0, first)), field(line.substr(first + 1, second - first - 1)),
                      field(line.substr(second + 1)), false};
}

}  // namespace

std::vector<NaviRecord> readNaviIndex(std::string_view text, const std::function<bool(const std::string&)>& exists) {
    std::vector<NaviRecord> naviIndex(1);
    forEachLine(text, [&](std::string_view line) {
        std::optional<NaviRecord> record = line.starts_with(';') ? std::nullopt : recordOf(line);
        if (record) {
            record->fileFound = exists(record->fileName);
            naviIndex.push_back(std::move(*record));
        }
        return naviIndex.size() <= mostTours;
    });
    return naviIndex;
}

Tour readTour(std::string_view text) {
    Tour tour;
    forEachLine(text, [&tour](std::string_view line) {
        tour.naviLines.emplace_back(line);
        return tour.naviLines.size() < mostPages * linesAPage;
    });
    tour.naviPages = static_cast<std::int16_t>(tour.naviLines.size() / linesAPage);
    return tour;
}

bool hasPageBefore(const Tour& tour) {
    return tour.naviPage > 1;
}

bool hasPageBehind(const Tour& tour) {
    return tour.naviPage < tour.naviPages;
}

void turnPage(Tour& tour, int direction) {
    if (direction < 0 ? hasPageBefore(tour) : hasPageBehind(tour)) {
        tour.naviPage = static_cast<std::int16_t>(tour.naviPage + direction);
    }
}

std::string_view shownLine(const Tour& tour, std::size_t row) {
    const std::size_t line = (static_cast<std::size_t>(tour.naviPage) - 1) * linesAPage + row;
    return line < tour.naviLines.size() ? std::string_view(tour.naviLines[line]) : std::string_view();
}

std::vector<TextRun> markedRuns(std::string_view line) {
    line = beginning(line, longestLine);
    std::vector<TextRun> runs;
    TextColour colour = TextColour::black;
    while (!line.empty()) {
        const auto cut = line.find_first_of(markerSigns);
        if (cut != 0) {
            runs.push_back({colour, std::string(line.substr(0, cut))});
        }
        if (cut == std::string_view::npos) {
            break;
        }
        colour = colourOf(line[cut]);
        line.remove_prefix(cut + 1);
    }
    return runs;
}
