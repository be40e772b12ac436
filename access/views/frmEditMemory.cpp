// SPDX-License-Identifier: Apache-2.0
#include "access/views/frmEditMemory.h"

frmEditMemory::frmEditMemory(Machine& machine, QWidget* owner)
    : WriteDialog("frmEditMemory", "Memory Write", OvertypeField::Case::asTyped, owner), machine_(machine) {}

void frmEditMemory::openFor(Area area, const QString& rowText, int cell, QPoint place) {
    area_ = area;
    rowText_ = rowText;
    cell_ = cell;
    openAt(place, bus8bit(machine_));
}

void frmEditMemory::setupMemoryAccess(Width option) {
    showMemoryValue(option);
    const bool word = option == Width::word;
    emit wordMarked(area_, cell_, word || cell_ % 2 == 0, word || cell_ % 2 != 0);
}

void frmEditMemory::showMemoryValue(Width option) {
    const int clicked = labelToAddress(machine_, rowText_.toStdString(), cell_);
    if (option == Width::word) {
        const int address = clicked & ~1;
        showAccess(hex(address, 3), "bit 15----0", hex(memoryWord(machine_, address), 4));
        return;
    }
    const auto index = static_cast<std::size_t>(busToMemoryIndex(machine_, clicked));
    showAccess(hex(clicked, 3), "bit 7--0", hex(machine_.chipMemory[index], 2));
}

// Write, Cancel, Escape and the close box all end here.
void frmEditMemory::done(int result) {
    Answer answer;
    if (result == Accepted) {
        answer = writeMemory(machine_, rowText_.toStdString(), cell_, width(), text().toStdString());
    }
    // The marks go first: what the write changed then turns red as a change.
    emit wordMarked(area_, cell_, false, false);
    emit refreshWanted();
    QDialog::done(result);
    emit answered(answer);
}
