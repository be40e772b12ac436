// SPDX-License-Identifier: Apache-2.0
#include "boards/views/benchLabels.h"

#include "boards/boardSet.h"

namespace {

constexpr QRgb darkPrint = 0xff14492f;
constexpr QRgb canPrint = 0xff23292d;

std::string_view boardCaption(const Machine& /*machine*/, std::size_t index) {
    constexpr std::array<std::string_view, 8> captions{"Board-2", "Board-3", "Board-1", "", "Board-4", "", "", "Center-Board"};
    return captions[index];
}

std::string_view chipCaption(const Machine& /*machine*/, std::size_t index) {
    constexpr std::array<std::string_view, 6> captions{"QDA60", "QDA41", "QDA41", "QDA73", "", "QDA52"};
    return captions[index];
}

std::string_view clockText(const Machine& machine, std::size_t index) {
    const int item = index == 1 ? machine.cmbClock41.listIndex : index == 3 ? machine.cmbClock52.listIndex : 0;
    return clockItems[static_cast<std::size_t>(item)];
}

std::string_view duplexText(const Machine& machine, std::size_t /*index*/) {
    return machine.picJumperFull ? "JMP-F" : "JMP-H";
}

bool timingShown(const Machine& machine, std::size_t /*index*/) {
    return !pwmShown(machine);
}

// One label of several alike: where it stands, and which.
struct Spot {
    std::size_t card = onBench;
    std::size_t index = 0;
    QPointF place{};
};

class Labels {
public:
    Labels() {
        nameplates();
        lineSide();
        board4();
    }

    std::vector<LabelRow> rows;

private:
    // A row for each spot, in all else like `pattern`.
    void putAt(LabelRow pattern, std::initializer_list<Spot> spots) {
        for (const Spot& spot : spots) {
            pattern.card = spot.card;
            pattern.index = spot.index;
            pattern.place = spot.place;
            rows.push_back(pattern);
        }
    }

    // The chip's caption stands in a white field to the right of the board's.
    void nameplates() {
        putAt({.name = "lblBoardName", .pixelSize = 11, .text = boardCaption}, {{card::center, 7, {46, 12}}});
        putAt(
            {.name = "lblSatteliteNo", .pixelSize = 11, .text = boardCaption},
            {{card::board1, 2, {46, 12}}, {card::board2, 0, {46, 12}}, {card::board3, 1, {18, 12}}, {card::board4, 4, {46, 12}}});
        putAt({.name = "lblBoardName",
               .align = Align::centre,
               .pixelSize = 11,
               .text = chipCaption,
               .colour = darkPrint,
               .boxed = true},
              {{card::center, 0, {148, 11.5}},
               {card::board1, 3, {118, 11.5}},
               {card::board2, 1, {118, 11.5}},
               {card::board3, 2, {90, 11.5}},
               {card::board4, 5, {118, 11.5}}});
    }

    void lineSide() {
        putAt({.name = "lblClock", .align = Align::centre, .pixelSize = 9, .text = clockText, .colour = canPrint},
              {{card::center, 0, {164, 108}},
               {card::board1, 2, {140, 87}},
               {card::board2, 1, {140, 87}},
               {card::board4, 3, {140, 87}}});
        putAt({.name = "lblHF", .pixelSize = 9, .text = duplexText}, {{card::center, 0, {45, 106}},
                                                                      {card::board1, 2, {45, 108}},
                                                                      {card::board2, 1, {45, 108}},
                                                                      {card::board4, 3, {45, 108}}});
        putAt({.name = "lblRt",
               .pixelSize = 9,
               .text = [](const Machine&, std::size_t) -> std::string_view { return "Rt"; },
               .visible = [](const Machine& m, std::size_t index) { return m.picTermR[index].visible; }},
              {{card::center, 0, {41, 48}},
               {card::center, 1, {41, 86}},
               {card::board1, 3, {41, 89}},
               {card::board2, 2, {41, 89}},
               {card::board4, 4, {41, 89}}});
    }

    // What goes and comes with the PWM panel, and the pin that halves the clock.
    void board4() {
        const auto inPort = [](std::size_t index, QPointF place) { return Spot{card::board4, index, portOrigin + place}; };
        putAt({.name = "lblPBPSS",
               .align = Align::centre,
               .pixelSize = 9,
               .text = [](const Machine& m, std::size_t) -> std::string_view { return m.picBPSS.on ? "BPSS-H" : "BPSS-L"; }},
              {{card::board4, 0, {373, 62}}});
        putAt({.name = "lblPWMSSA",
               .align = Align::centre,
               .pixelSize = 9,
               .text = [](const Machine&, std::size_t i) -> std::string_view { return i == 0 ? "SSA" : "SSB"; },
               .visible = timingShown},
              {inPort(0, {14, 14}), inPort(1, {40, 14})});
        putAt({.name = "lblSTB2",
               .align = Align::centre,
               .pixelSize = 9,
               .text = [](const Machine&, std::size_t) -> std::string_view { return "STB2"; },
               .visible = timingShown},
              {inPort(0, {40, 67})});
        putAt({.name = "lblPWMTitle",
               .pixelSize = 9,
               .text = [](const Machine&, std::size_t i) -> std::string_view {
                   constexpr std::array<std::string_view, 4> titles{"CWON", "CCWON", "CW-Pulse", "CCW-Pulse"};
                   return titles[i];
               },
               .visible = [](const Machine& m, std::size_t) { return pwmShown(m); }},
              {inPort(0, {76, 20}), inPort(1, {76, 30}), inPort(2, {76, 40}), inPort(3, {76, 50})});
    }
};

}  // namespace

const std::vector<LabelRow>& benchLabels() {
    static const Labels labels;
    return labels.rows;
}
