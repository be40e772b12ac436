// SPDX-License-Identifier: Apache-2.0
// The cards of the bench and where they lie.
//
//   columns of cards, in pixels of the bench at zoom 1        8    62                    502 524            870
//                                                             |    | Center               |
//                                                        cables    | Board-1              |
//                                                             |    | Board-2              |  Board-3
//                                                             |    | Board-4              |  PWM panel

#pragma once

#include "core/pwmOutput.h"

#include <QRectF>

#include <array>

// By index of picBoard. Card 4 beside Board-1 is never shown: it has no place, and nothing on it is drawn.
namespace card {
inline constexpr std::size_t center = 0;
inline constexpr std::size_t board2 = 1;
inline constexpr std::size_t board3 = 2;
inline constexpr std::size_t board1 = 3;
inline constexpr std::size_t hidden = 4;
inline constexpr std::size_t board4 = 5;
inline constexpr std::size_t panel = 6;
}  // namespace card

inline constexpr std::size_t cardCount = 7;
struct CardRow {
    const char* drawing = nullptr;
    const char* caption = nullptr;  // for those who hear the bench instead of seeing it
    QRectF place;
};
inline constexpr std::array<CardRow, cardCount> cardRows{{
    {"cardCenter", "Center-Board", {62, 8, 440, 130}},
    {"cardBoard2", "Board-2", {62, 332, 440, 172}},
    {"cardBoard3", "Board-3", {524, 332, 346, 172}},
    {"cardBoard1", "Board-1", {62, 149, 440, 172}},
    {nullptr, nullptr, {}},
    {"cardBoard4", "Board-4", {62, 515, 440, 172}},
    {"cardPWM", "PWM Drive", {524, 515, 346, 172}},
}};
inline constexpr std::size_t onBench = cardCount;  // instead of a card: parts of the margin, and what lies over two cards
inline constexpr QSizeF benchSize{880, 700};

// Where the port lies on a card: frame, switches and pins of PIO-Pin Signal.
inline constexpr QPointF portOrigin{98, 98};
inline constexpr QPointF portOriginCascade{11, 98};

// The right column shows Board-3 while it is fitted and the PWM panel in the modes that have one.
inline bool cardVisible(const Machine& machine, std::size_t index) {
    switch (index) {
        case card::board3: return machine.picBridge.visible;
        case card::hidden: return false;
        case card::panel: return pwmShown(machine);
        default: return true;
    }
}
