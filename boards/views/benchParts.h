// What stands where on the bench, and which picture it shows in which state. To put a new part on the bench, draw its image
// list in assets/drawings, add a row here, and give it its gesture in frmHard.cpp.
//
//   columns of cards, in pixels of the bench at zoom 1        8    62                    502 524            870
//                                                             |    | Center               |
//                                                        cables    | Board-1              |
//                                                             |    | Board-2              |  Board-3
//                                                             |    | Board-4              |  PWM panel
//
// A part is counted from the corner of its card. A card that is hidden hides its parts with it.

#pragma once

#include "core/mduMain.h"

#include <QPointF>
#include <QRectF>
#include <QRgb>

#include <array>
#include <string_view>
#include <vector>

// By index of picBoard. Card 4 beside Board-1 is never shown: it has no place, and nothing on it is drawn.
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

// The right column shows Board-3 while it is fitted and the PWM panel in the modes that have one.
bool cardVisible(const Machine& machine, std::size_t card);

// What a part shows. Pictures count from 1.
struct Look {
    const char* images = nullptr;  // the image list
    int number = 1;
    bool visible = true;
    QPointF moved{};            // from the place of its row
    const char* tip = nullptr;  // in place of its row's
    bool operator==(const Look&) const = default;
};

enum class Pointer : std::uint8_t { arrow, singleClick, doubleClick };

struct Family {
    const char* name = nullptr;
    Look (*look)(const Machine& machine, std::size_t index) = nullptr;
    Pointer pointer = Pointer::arrow;
    const char* tip = "";
    std::array<const char*, 4> states{};  // what the first pictures are called, where they tell a state
};

struct PartRow {
    const Family* family = nullptr;
    std::size_t index = 0;
    std::size_t card = onBench;
    QPointF place;
    const char* tip = "";
    Pointer pointer = Pointer::arrow;
};

// Of the frame around the power LEDs, which the card's drawing holds.
inline constexpr std::string_view powerFrameTip = "この表示はQDA52内部の状態です";

// Every part, in the order in which the keyboard walks over them; a later part lies over an earlier one.
const std::vector<PartRow>& benchParts();

enum class Align : std::uint8_t { left, centre };
struct LabelRow {
    const char* name = nullptr;
    std::size_t index = 0;
    std::size_t card = onBench;
    QPointF place;  // of the base line
    Align align = Align::left;
    int pixelSize = 0;
    std::string_view (*text)(const Machine& machine, std::size_t index) = nullptr;
    bool (*visible)(const Machine& machine, std::size_t index) = nullptr;
    QRgb colour = 0;
    bool boxed = false;  // dark print in a white field
};

// The labels that the window writes; all other print belongs to the drawings of the cards.
const std::vector<LabelRow>& benchLabels();
