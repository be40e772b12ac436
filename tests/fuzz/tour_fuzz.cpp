// SPDX-License-Identifier: Apache-2.0
// Noise as a tour. Whatever the bytes: paging goes from the first page to the last and back, a line's runs are its text without
// the markers, no run is empty, and a third line is either read whole or names what is wrong with it.

#include "aids/navigation.h"
#include "aids/textLines.h"
#include "aids/tourLanguage.h"
#include "tests/fuzz/demand.h"

#include <algorithm>

namespace {

void lookAt(const Tour& tour) {
    for (std::size_t row = 0; row < linesAPage; ++row) {
        const std::string_view line = shownLine(tour, row);
        std::string text(beginning(line, 30000));
        std::erase_if(text, [](char sign) { return sign == '&' || sign == '#' || sign == '\\'; });
        std::string runs;
        for (const TextRun& run : markedRuns(line)) {
            demand(!run.text.empty());
            runs += run.text;
        }
        demand(runs == text);
        for (const Statement& statement : readScript(line).statements) {
            demand(statement.place.value_or(0) + statement.digits / 2 <= memorySize);
            demand(statement.word->wanted.empty() || !statement.values.empty());
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Tour tour = readTour(std::string(data, data + size));
    demand(tour.naviPages >= 0 && tour.naviLines.size() <= 3 * 32767);
    int turned = 0;
    while (hasPageBehind(tour)) {
        lookAt(tour);
        turnPage(tour, 1);
        ++turned;
    }
    lookAt(tour);
    demand(turned == std::max(tour.naviPages - 1, 0));
    turnPage(tour, 1);
    while (hasPageBefore(tour)) {
        turnPage(tour, -1);
        --turned;
    }
    demand(turned == 0 && tour.naviPage == 1);
    return 0;
}
