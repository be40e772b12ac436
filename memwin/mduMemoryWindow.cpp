// SPDX-License-Identifier: Apache-2.0
#include "memwin/mduMemoryWindow.h"

#include "access/hexText.h"

#include <algorithm>

namespace {

std::string rightAligned(int number, std::size_t places) {
    const std::string digits = std::to_string(number);
    return std::string(places - std::min(places, digits.size()), ' ') + digits;
}

void updateCell(Machine& machine, DumpView& view, int offset) {
    const int address = view.area->firstByte + offset;
    const auto at = static_cast<std::size_t>(address);
    const int number = addressToLabel(machine, offset);
    DumpCell& cell = view.cells[static_cast<std::size_t>(number)];
    cell.value = machine.chipMemory[at];
    if (machine.memoryShadow[at] != machine.chipMemory[at]) {
        cell.countdown = changedSeconds;
        cell.red = true;
        machine.memoryShadow[at] = machine.chipMemory[at];
    }
    view.touched.push_back(number);
}

void layoutColumns(DumpView& view, bool bigEndian) {
    if (view.visible) {
        view.bigEndian = bigEndian;
        view.columnsFor = view.piMode;
    }
}

}  // namespace

DumpView::DumpView(Area shownArea)
    : area(&dumpAreas[static_cast<std::size_t>(shownArea)]), cells(static_cast<std::size_t>(area->cells)) {
    touched.reserve(cells.size());
}

std::string DumpView::rowText(int row) const {
    return hexText(static_cast<unsigned>(area->firstByte / cellsPerRow + row), 2) + "x";
}

char asciiOf(std::uint8_t value) {
    return value < 32 || value >= 127 ? '.' : static_cast<char>(value);
}

int addressToLabel(const Machine& machine, int offset) {
    const int low = offset & 15;
    const int column = bigEndian(machine) ? low ^ 1 : 15 - low;
    return offset / cellsPerRow * cellsPerRow + column;
}

void refreshArea(Machine& machine, DumpView& view) {
    view.touched.clear();
    if (!view.visible) {
        return;
    }
    const std::uint8_t* memory = machine.chipMemory.data() + view.area->firstByte;
    const std::uint8_t* shadow = machine.memoryShadow.data() + view.area->firstByte;
    if (!machine.memoryRefreshAll && std::equal(memory, memory + view.area->cells, shadow)) {
        return;
    }
    for (int offset = 0; offset < view.area->cells; ++offset) {
        if (machine.memoryRefreshAll || memory[offset] != shadow[offset]) {
            updateCell(machine, view, offset);
        }
    }
}

void timColor_Timer(DumpView& view) {
    view.touched.clear();
    for (std::size_t number = 0; number < view.cells.size(); ++number) {
        DumpCell& cell = view.cells[number];
        if (cell.countdown > 0 && --cell.countdown == 0) {
            cell.red = false;
            view.touched.push_back(static_cast<int>(number));
        }
    }
}

void setAreaLayout(const Machine& machine, DumpView& view) {
    view.piMode = bus8bit(machine) ? ByteView::byte : ByteView::word;
    bigEndian(machine) ? layoutBig(view) : layoutLittle(view);
}

void layoutLittle(DumpView& view) {
    layoutColumns(view, false);
}

void layoutBig(DumpView& view) {
    layoutColumns(view, true);
}

void colourWord(DumpView& view, int cell, bool evenRed, bool oddRed) {
    const auto even = static_cast<std::size_t>(cell & ~1);
    view.cells[even].red = evenRed;
    view.cells[even + 1].red = oddRed;
}

std::string columnLabel(const DumpView& view, int column) {
    const int offset = view.bigEndian ? column : 15 - column;
    const bool second = view.columnsFor == ByteView::word && column % 2 != 0;
    return (second ? "," : "-") + hexText(static_cast<unsigned>(offset), 1);
}

int columnLeft(ByteView piMode, int column) {
    constexpr int firstLeft = 510;
    constexpr int middleGap = 60;
    const CellLayout& layout = layoutOf(piMode);
    const int left = firstLeft + column / 2 * layout.pairPitch + column % 2 * layout.oddShift;
    return column >= 8 ? left + middleGap : left;
}

namespace {

// Of the wedge over the right columns.
int wedgeOffset(bool high) {
    return high ? 1980 : 0;
}

}  // namespace

WedgeLine wedgeBase(bool high) {
    return {540 + wedgeOffset(high), 2340 + wedgeOffset(high)};
}

WedgeLine wedgeLine(bool bigEndian, bool high, int line) {
    const int offset = wedgeOffset(high);
    if (bigEndian) {
        return {1980 + offset, 2340 + offset - 60 * line};
    }
    return {540 + offset + 60 * line, 960 + offset};
}

std::string pointingAddress(const Machine& machine, const DumpView& view, int cell) {
    const int address = labelToAddress(machine, view.rowText(), cell);
    return " Pointing Address = " + hexText(static_cast<unsigned>(address), 3) + "H (" + rightAligned(address, 4) +
           ") : " + hexText(view.cells[static_cast<std::size_t>(cell)].value, 2);
}

std::string pointingSA(const Machine& machine, const DumpView& view, int cell) {
    const int station = labelToAddress(machine, view.rowText(), cell) % areaSize / 2;
    return " Pointing SA = " + hexText(static_cast<unsigned>(station), 2) + "H  (" + rightAligned(station, 2) + ")";
}
