// SPDX-License-Identifier: Apache-2.0
// The labels that the bench's window writes itself; all other print belongs to the drawings of the cards.

#pragma once

#include "boards/views/benchCards.h"

#include <QPointF>
#include <QRgb>

#include <string_view>
#include <vector>

enum class Align : std::uint8_t { left, centre };
struct LabelRow {
    const char* name = nullptr;
    std::size_t index = 0;
    std::size_t card = onBench;
    QPointF place{};  // of the base line
    Align align = Align::left;
    int pixelSize = 0;
    std::string_view (*text)(const Machine& machine, std::size_t index) = nullptr;
    bool (*visible)(const Machine& machine, std::size_t index) = nullptr;  // always, where there is none
    QRgb colour = 0xfff3f7f1;                                              // silk
    bool boxed = false;                                                    // dark print in a white field
};

const std::vector<LabelRow>& benchLabels();
