// SPDX-License-Identifier: Apache-2.0
// What stands where on the bench. To put a new part on it, draw its image list in assets/drawings, tell its pictures by state in
// partFamilies, add its row here, and give it its gesture in BenchGestures.
//
// A part is counted from the corner of its card. A card that is hidden hides its parts with it.

#pragma once

#include "boards/views/benchCards.h"
#include "boards/views/partFamilies.h"

#include <vector>

struct PartRow {
    const Family* family = nullptr;
    std::size_t index = 0;
    std::size_t card = onBench;
    QPointF place{};
    const char* tip = "";
    Pointer pointer = Pointer::arrow;
};

// Every part, in the order in which the keyboard walks over them; a later part lies over an earlier one.
const std::vector<PartRow>& benchParts();
