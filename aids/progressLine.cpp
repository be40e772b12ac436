// SPDX-License-Identifier: Apache-2.0
#include "aids/progressLine.h"

#include <algorithm>
#include <cmath>

std::u16string progressLine(std::u16string_view text) {
    constexpr char16_t fullWidthBlank = u'\u3000';
    const double free = progressPlaces - static_cast<double>(text.size());
    // Half a place goes to the even number of blanks.
    const double pad = std::max(0.0, std::nearbyint(free / 2));
    return std::u16string(static_cast<std::size_t>(pad), fullWidthBlank) + std::u16string(text);
}

int nextProgressStep(int step) {
    return std::min(step + 1, progressSteps);
}

int progressBarWidth(int lineWidth, int step) {
    return lineWidth * step / progressSteps;
}
