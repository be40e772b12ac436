// SPDX-License-Identifier: Apache-2.0
#include "access/views/RegisterWindows.h"

#include "access/views/frmEditRegister.h"
#include "access/views/frmRegister.h"
#include "platform/screen.h"
#include "platform/twips.h"

namespace {

constexpr QPoint registerPlace{twips(6600), twips(1100)};

// Where the write dialog stands beside the register window, and when it moves up.
constexpr int dialogBelow = twips(700);
constexpr int dialogRight = twips(500);
constexpr int dialogFoot = twips(2700);
constexpr int dialogAbove = twips(300);

}  // namespace

RegisterWindows::RegisterWindows(Machine& machine, QWidget& owner)
    : machine_(machine),
      owner_(owner),
      frmRegister_(
          *this, [this] { return makeWindow(); }, [this](bool open) { emit shown(open); }),
      frmEditRegister_(*this, [this] { return makeDialog(); }) {}

RegisterWindows::~RegisterWindows() = default;

frmRegister* RegisterWindows::makeWindow() {
    auto* window = new frmRegister(machine_, &owner_);
    connect(window, &frmRegister::closed, this, [this] { frmRegister_.forget(); });
    connect(window, &frmRegister::registerWriteWanted, this, &RegisterWindows::openRegisterWrite);
    placeWindow(*window, owner_.frameGeometry().topLeft() + registerPlace);
    return window;
}

frmEditRegister* RegisterWindows::makeDialog() {
    auto* dialog = new frmEditRegister(machine_, &owner_);
    connect(dialog, &frmEditRegister::written, this, &RegisterWindows::refreshWanted);
    connect(dialog, &frmEditRegister::answered, this, [this, dialog](const Answer& answer) { emit said(answer, dialog); });
    connect(dialog, &frmEditRegister::readProtectionChanged, this, &RegisterWindows::readProtectionChanged);
    connect(dialog, &frmEditRegister::rowMarked, this, [this](int row, bool high, bool low) {
        if (frmRegister* window = frmRegister_.get()) {
            window->markRow(row, high, low);
        }
    });
    return dialog;
}

frmRegister* RegisterWindows::window() const {
    return frmRegister_.get();
}

frmEditRegister* RegisterWindows::writeDialog() const {
    return frmEditRegister_.get();
}

void RegisterWindows::open() {
    frmRegister_->show();
    frmRegister_->activateWindow();
    frmRegister_->refreshRegisters();
}

void RegisterWindows::openBySettings() {
    if (machine_.openWindowDefault[1] != 0) {
        frmRegister_->show();
        frmRegister_->refreshRegisters();
    }
}

void RegisterWindows::place() {
    if (frmRegister_.get() != nullptr) {
        placeWindow(*frmRegister_.get(), owner_.frameGeometry().topLeft() + registerPlace);
    }
}

void RegisterWindows::unload() {
    frmEditRegister_.forget();
    frmRegister_.forget();
}

void RegisterWindows::refresh() {
    if (frmRegister_.visible()) {
        frmRegister_->refreshRegisters();
    }
}

void RegisterWindows::openRegisterWrite(const QString& name, int row, int top, Half half) {
    if (const Answer refusal = registerWriteRefusal(machine_, row); saysAnything(refusal)) {
        emit said(refusal, nullptr);
        return;
    }
    frmEditRegister& dialog = frmEditRegister_.made();
    const int left = frmRegister_->frameGeometry().left() + dialogRight;
    int dialogTop = top + dialogBelow;
    if (dialogTop > usableScreen(QPoint(left, top)).bottom() + 1 - dialogFoot) {
        dialogTop -= sizeWithFrame(dialog).height() + dialogAbove;
    }
    emit messageInTheWay();
    emit hintWanted(name);
    dialog.openFor(name, row, half, {left, dialogTop});
}
