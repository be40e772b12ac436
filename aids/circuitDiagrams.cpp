// SPDX-License-Identifier: Apache-2.0
#include "aids/circuitDiagrams.h"

#include "access/memoryAccess.h"

#include <string_view>

namespace {

// A row names the files for full and for half duplex; the first one whose condition holds is taken.
struct Row {
    int index;
    bool (*holds)(const Machine& machine);
    std::string_view full;
    std::string_view half;
    std::string_view halfOverlay;
};

bool always(const Machine& /*machine*/) {
    return true;
}

bool cascadeFitted(const Machine& machine) {
    return machine.picBridge.visible;
}

// Stands for the IOS mode in a file name.
constexpr char modeSign = '#';

constexpr std::array rows{
    Row{0, bus8bit, "QDA60_FULL_8BIT.BMP", "QDA60_HALF_8BIT.BMP", ""},
    Row{0, always, "QDA60_FULL_16BIT.BMP", "QDA60_HALF_16BIT.BMP", ""},
    Row{1, cascadeFitted, "QDA41_FULL_NEST.BMP", "QDA41_FULL_NEST.BMP", "QDA41_ADD_HALF.BMP"},
    Row{1, always, "QDA41_FULL.BMP", "QDA41_FULL.BMP", "QDA41_ADD_HALF.BMP"},
    Row{2, always, "QDA41_NEST.BMP", "QDA41_NEST.BMP", ""},
    Row{3, always, "QDA73_FULL.BMP", "QDA73_HALF.BMP", ""},
    Row{4, always, "QDA52_IOS_#.BMP", "QDA52_IOS_#.BMP", "Qda52_add_half.bmp"},
};

}  // namespace

Diagram diagramFor(const Machine& machine, int index) {
    for (const Row& row : rows) {
        if (row.index != index || !row.holds(machine)) {
            continue;
        }
        const bool half = machine.duplexBit != fullDuplexBit;
        Diagram diagram{std::string(half ? row.half : row.full), half ? std::string(row.halfOverlay) : ""};
        const auto sign = diagram.picture.find(modeSign);
        if (sign != std::string::npos) {
            diagram.picture.replace(sign, 1, std::to_string(machine.ios52));
        }
        return diagram;
    }
    return {};
}
