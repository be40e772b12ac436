// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchGestures.h"

#include "boards/boardSet.h"
#include "boards/counters.h"
#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/stationCheck.h"
#include "platform/twips.h"

#include <algorithm>
#include <type_traits>

namespace {

using Handler = void (*)(BenchGestures& bench, BenchPart& part);

// A rule of the model as the handler of a gesture.
template <auto rule>
void play(BenchGestures& bench, BenchPart& part) {
    const auto call = [&] {
        if constexpr (std::is_invocable_v<decltype(rule), Machine&, std::size_t>) {
            return rule(bench.machine(), part.row().index);
        } else {
            return rule(bench.machine());
        }
    };
    if constexpr (std::is_void_v<decltype(call())>) {
        call();
        emit bench.played({});
    } else {
        emit bench.played(call());
    }
}

// The timing chart of a port stands beside it.
void showTimingChart(BenchGestures& bench, std::size_t group) {
    struct Offset {
        int left, top;
    };
    constexpr std::array<Offset, slotCount> offsets{{{.left = twips(7900), .top = twips(7100)},
                                                     {.left = twips(13300), .top = twips(7100)},
                                                     {.left = twips(7900), .top = twips(4000)},
                                                     {.left = twips(7900), .top = twips(9000)},
                                                     {.left = twips(7900), .top = twips(9000)}}};
    emit bench.chartWanted(static_cast<int>(group), {offsets[group].left, offsets[group].top});
}

template <auto rule>
void playAndChart(BenchGestures& bench, BenchPart& part) {
    play<rule>(bench, part);
    showTimingChart(bench, part.row().index);
}

void chartOfStrobe(BenchGestures& bench, BenchPart& part) {
    showTimingChart(bench, part.row().index / 2);
}

void fitCard(BenchGestures& bench, BenchPart& part) {
    play<picFConn_DblClick>(bench, part);
    emit bench.diagramChanged(1);
}

void removeCard(BenchGestures& bench, BenchPart& part) {
    play<picBridge_DblClick>(bench, part);
    emit bench.diagramGone();
}

void askDuplex(BenchGestures& bench, BenchPart& /*part*/) {
    emit bench.duplexQuestion(picJumper_DblClick(bench.machine()));
}

void openCombo(BenchGestures& bench, BenchPart& part) {
    emit bench.comboWanted(&part);
}

void closeCombo(BenchGestures& bench, BenchPart& part) {
    emit bench.comboDone(&part);
}

void openDiagram(BenchGestures& bench, BenchPart& part) {
    emit bench.diagramWanted(static_cast<int>(part.row().index));
}

void openDriveDiagram(BenchGestures& bench, BenchPart& /*part*/) {
    constexpr int diagramQDA52 = 4;
    emit bench.diagramWanted(diagramQDA52);
}

void enterSerialData(BenchGestures& bench, BenchPart& part) {
    emit bench.serialWanted(static_cast<int>(part.row().index));
}

// `down` is the press of a button that is held as long as the mouse button or the key; for most of them the press that counts
// is the second one of a double click.
enum class Press : std::uint8_t { none, first, second };
struct GestureRow {
    std::string_view name;
    Handler click = nullptr;
    Handler doubleClick = nullptr;
    Press press = Press::none;
    Handler down = nullptr;
    Handler up = nullptr;
};

constexpr std::array gestureRows{
    GestureRow{.name = "picSA", .click = closeCombo, .doubleClick = openCombo},
    GestureRow{.name = "picClock", .click = closeCombo, .doubleClick = openCombo},
    GestureRow{.name = "picBPS73", .click = closeCombo, .doubleClick = openCombo},
    GestureRow{.name = "picCPU", .click = closeCombo, .doubleClick = openCombo},
    GestureRow{.name = "picIOS", .click = closeCombo, .doubleClick = openCombo},
    GestureRow{.name = "picMode", .click = closeCombo, .doubleClick = openCombo},
    GestureRow{.name = "picBPSS", .doubleClick = play<picBPSS_DblClick>},
    GestureRow{.name = "picBOARD1_RXD", .doubleClick = play<picBOARD1_RXD_DblClick>},
    GestureRow{.name = "picBOARD2_RXD", .doubleClick = play<picBOARD2_RXD_DblClick>},
    GestureRow{.name = "picCableUp", .click = play<picCableUp_Click>},
    GestureRow{.name = "picCableDn", .click = play<picCableDn_Click>},
    GestureRow{.name = "picFConn", .doubleClick = fitCard},
    GestureRow{.name = "picBridge", .doubleClick = removeCard},
    GestureRow{.name = "picJumper", .doubleClick = askDuplex},
    GestureRow{.name = "picReset", .press = Press::second, .down = play<picReset_DblClick>, .up = play<picReset_MouseUp>},
    GestureRow{.name = "picQDA", .doubleClick = openDiagram},
    GestureRow{.name = "picPWM", .doubleClick = openDriveDiagram},
    GestureRow{.name = "picPI", .click = play<picPI_Click>},
    GestureRow{.name = "picSSA", .doubleClick = playAndChart<picSSA_DblClick>},
    GestureRow{.name = "picSSB", .doubleClick = playAndChart<picSSB_DblClick>},
    GestureRow{.name = "picSTB", .doubleClick = chartOfStrobe},
    GestureRow{.name = "picCLR", .press = Press::second, .down = play<picCLR_DblClick>, .up = play<picCLR_MouseUp>},
    GestureRow{.name = "picCounter", .press = Press::first, .down = play<picCounter_MouseDown>, .up = play<picCounter_MouseUp>},
    GestureRow{.name = "picNoise", .press = Press::first, .down = play<picNoise_MouseDown>, .up = play<picNoise_MouseUp>},
    GestureRow{.name = "picSDI", .doubleClick = enterSerialData},
};

const GestureRow* gesturesOf(const PartRow& part) {
    const auto* row = std::find_if(gestureRows.begin(), gestureRows.end(),
                                   [&part](const GestureRow& candidate) { return candidate.name == part.family->name; });
    return row != gestureRows.end() ? row : nullptr;
}

}  // namespace

BenchPart::Reactions BenchGestures::reactionsOf(const PartRow& part) {
    const GestureRow* row = gesturesOf(part);
    // The oscillators with a fixed clock offer nothing.
    const bool fixedClock = part.family->name == std::string_view("picClock") && part.index % 2 == 0;
    if (row == nullptr || fixedClock) {
        return {};
    }
    return {.click = row->click != nullptr,
            .doubleClick = row->doubleClick != nullptr,
            .held = row->press == Press::first,
            .heldByDouble = row->press == Press::second};
}

void BenchGestures::play(BenchPart* part, Touch touch) {
    const GestureRow* row = gesturesOf(part->row());
    Handler handler = nullptr;
    switch (touch) {
        case Touch::click: handler = row->click; break;
        case Touch::doubleClick: handler = row->doubleClick; break;
        case Touch::down: handler = row->down; break;
        case Touch::up: handler = row->up; break;
    }
    if (handler != nullptr) {
        handler(*this, *part);
    }
}
