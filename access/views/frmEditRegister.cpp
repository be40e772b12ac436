// SPDX-License-Identifier: Apache-2.0
#include "access/views/frmEditRegister.h"

#include "access/hexText.h"
#include "access/memoryAccess.h"

frmEditRegister::frmEditRegister(Machine& machine, QWidget* owner)
    : WriteDialog("frmEditRegister", "Register Write", OvertypeField::Case::upper, owner), machine_(machine) {}

void frmEditRegister::openFor(const QString& name, int row, Half half, QPoint place) {
    name_ = name;
    row_ = row;
    half_ = half;
    // The row without a register stands at 000H: its value can be looked at, and a write does nothing.
    address_ = hexValue(regAddress(name.toStdString())).value_or(0);
    openAt(place, bus8bit(machine_));
}

// A half's bus address: on a big-endian bus the high byte comes first.
int frmEditRegister::shownAddress() const {
    if (width() == Width::word) {
        return address_;
    }
    return busToMemoryIndex(machine_, address_ + (half_ == Half::high ? 1 : 0));
}

void frmEditRegister::setupRegisterDialog() {
    const bool word = width() == Width::word;
    showRegisterValue();
    emit rowMarked(row_, word || half_ == Half::high, word || half_ == Half::low);
}

void frmEditRegister::showRegisterValue() {
    const bool word = width() == Width::word;
    const QString byteRange = half_ == Half::low ? "7-0" : "15-8";
    const QString range = word ? "15-0" : byteRange;
    const int value = memoryWord(machine_, address_);
    const int byte = half_ == Half::high ? value >> 8 : value & 0xFF;
    showAccess(hex(shownAddress(), 3) + "H " + name_ + " " + range, "bit " + range, word ? hex(value, 4) : hex(byte, 2));
}

// Write, Cancel, Escape and the close box all end here.
void frmEditRegister::done(int result) {
    Answer answer;
    const std::uint8_t protection = machine_.chipMemory[reg::hprLow];
    if (result == Accepted) {
        answer = writeRegister(machine_, address_, width(), half_, text().toStdString());
        emit written();
    }
    emit rowMarked(row_, false, false);
    QDialog::done(result);
    emit answered(answer);
    if (result == Accepted && row_ == rowHPR && machine_.chipMemory[reg::hprLow] != protection) {
        emit readProtectionChanged();
    }
}
