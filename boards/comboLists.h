// SPDX-License-Identifier: Apache-2.0
// What stands in the lists of the combo boxes, on the bench and in the dialog of the settings. The index of an item is the
// value that a commit or a setting takes.

#pragma once

#include "access/memoryAccess.h"
#include "boards/boardSet.h"
#include "boards/counters.h"
#include "boards/portPins.h"

#include <string>
#include <string_view>

// `item` takes an index from 0 to count - 1; a list without items has none.
struct ItemList {
    int count = 0;
    std::string (*item)(int index) = nullptr;
};

template <const auto& items>
constexpr ItemList listOf() {
    return {static_cast<int>(items.size()), [](int index) { return std::string(items[static_cast<std::size_t>(index)]); }};
}

// "0x01" to "0x3F": the address is the index + 1.
constexpr ItemList initSACombos() {
    return {stationAddresses, addressItem};
}

constexpr ItemList initCPUTypeCombo() {
    return listOf<cpuTypeNames>();
}

constexpr ItemList initClockCombos() {
    return listOf<clockItems>();
}

constexpr ItemList initIOSCombo() {
    return {static_cast<int>(iosModes.size()),
            [](int index) { return std::string(iosModes[static_cast<std::size_t>(index)].caption); }};
}

constexpr ItemList initModeCombo() {
    return listOf<modeItems>();
}
