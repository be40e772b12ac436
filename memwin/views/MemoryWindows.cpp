// SPDX-License-Identifier: Apache-2.0
#include "memwin/views/MemoryWindows.h"

#include "access/views/frmEditMemory.h"
#include "access/views/frmMemoryRead.h"
#include "memwin/views/frmDump.h"
#include "memwin/views/frmDumpSel.h"
#include "platform/AreaWindow.h"
#include "platform/screen.h"
#include "platform/twips.h"

#include <QMdiArea>

#include <algorithm>

namespace {

// The write dialog opens two cells below the top of its cell, or above it near the foot of the screen.
constexpr int belowCell = 24;
constexpr int dialogFoot = twips(2700);
constexpr int dialogAbove = twips(200);

// The read dialog's place, counted from the corner of the hardware window, which is that of the area.
constexpr QPoint readPlace{twips(1800), twips(2500)};

constexpr Qt::WindowFlags outsideFlags = Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

constexpr std::array allAreas{Area::controlDoDi, Area::c1ToC7, Area::drc};

}  // namespace

MemoryWindows::MemoryWindows(Machine& machine, QMdiArea& area, QWidget& owner)
    : machine_(machine),
      area_(area),
      owner_(owner),
      frmDumpSel_(*this, [this] { return makeChooser(); }),
      frmEditMemory_(*this, [this] { return makeWriteDialog(); }),
      frmMemoryRead_(*this, [this] { return makeReadDialog(); }) {
    for (const Area each : allAreas) {
        dump(each).window = std::make_unique<OnDemand<frmDump>>(*this, [this, each] { return makeDump(each); });
    }
    connect(&area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* activated) {
        if (activated != nullptr) {
            hideChooser();
        }
    });
}

MemoryWindows::~MemoryWindows() = default;

// --- windows -----------------------------------------------------------------------------------------------------------

frmDump* MemoryWindows::window(Area area) const {
    return dumps_[static_cast<std::size_t>(area)].window->get();
}

frmDumpSel* MemoryWindows::chooser() const {
    return frmDumpSel_.get();
}

frmEditMemory* MemoryWindows::writeDialog() const {
    return frmEditMemory_.get();
}

frmMemoryRead* MemoryWindows::readDialog() const {
    return frmMemoryRead_.get();
}

frmDump* MemoryWindows::makeDump(Area area) {
    auto* window = new frmDump(machine_, area);
    connect(window, &frmDump::cellDoubleClicked, this, &MemoryWindows::cellDoubleClicked);
    connect(window, &frmDump::activated, this, &MemoryWindows::hideChooser);
    connect(window, &frmDump::topMostWanted, this, &MemoryWindows::setOwnerWindow);
    connect(window, &frmDump::moveWanted, this, [this, area, window](int dx) {
        if (AreaWindow* frame = dump(area).frame) {
            frame->fit();
            frame->move(frame->pos() + QPoint(dx, 0));
        } else {
            window->move(window->pos() + QPoint(dx, 0));
        }
    });
    const DumpArea& row = dumpAreas[static_cast<std::size_t>(area)];
    putIntoArea(area, *window, {twips(row.left), twips(row.top)});
    return window;
}

frmDumpSel* MemoryWindows::makeChooser() {
    auto* chooser = new frmDumpSel(&area_);
    connect(chooser, &frmDumpSel::chosen, this, &MemoryWindows::choose);
    return chooser;
}

frmEditMemory* MemoryWindows::makeWriteDialog() {
    auto* dialog = new frmEditMemory(machine_, &owner_);
    connect(dialog, &frmEditMemory::wordMarked, this, [this](Area marked, int cell, bool even, bool odd) {
        if (frmDump* shown = window(marked)) {
            shown->markWord(cell, even, odd);
        }
    });
    connect(dialog, &frmEditMemory::refreshWanted, this, &MemoryWindows::refreshWanted);
    connect(dialog, &frmEditMemory::answered, this, [this, dialog](const Answer& answer) { emit said(answer, dialog); });
    return dialog;
}

frmMemoryRead* MemoryWindows::makeReadDialog() {
    auto* dialog = new frmMemoryRead(machine_, &owner_);
    connect(dialog, &frmMemoryRead::beepWanted, this, &MemoryWindows::beepWanted);
    return dialog;
}

void MemoryWindows::putIntoArea(Area area, frmDump& window, QPoint place) {
    auto* frame = new AreaWindow(area_);
    dump(area).frame = frame;
    frame->setContent(window);
    frame->placeAt(place);
    frame->hide();
}

void MemoryWindows::unload() {
    frmEditMemory_.forget();
    hideChooser();
    for (Dump& each : dumps_) {
        AreaWindow* frame = each.frame;
        if (frame != nullptr) {
            frame->releaseContent();
        }
        each.window->forget();
        if (frame != nullptr) {
            frame->hide();
            area_.removeSubWindow(frame);
            frame->deleteLater();
            each.frame.clear();
        }
    }
}

void MemoryWindows::openArea(Area area) {
    frmDump& window = dump(area).window->made();
    if (AreaWindow* frame = dump(area).frame) {
        frame->bringUp();
    } else {
        window.show();
        window.raise();
        window.activateWindow();
    }
    window.grid().setFocus(Qt::OtherFocusReason);
    window.setAreaLayout();
    repaintAllAreas();
}

void MemoryWindows::openBySettings() {
    struct Opened {
        Area area;
        std::size_t setting;
    };
    // The window of the control words comes last and stands in front.
    for (const auto& [area, setting] : {Opened{Area::c1ToC7, 4}, {Area::drc, 5}, {Area::controlDoDi, 3}}) {
        if (machine_.openWindowDefault[setting] != 0) {
            openArea(area);
        }
    }
}

void MemoryWindows::refreshAllAreas() const {
    for (const Area each : allAreas) {
        if (frmDump* loaded = window(each)) {
            loaded->refreshArea();
        }
    }
}

void MemoryWindows::repaintAllAreas() {
    machine_.memoryRefreshAll = true;
    refreshAllAreas();
    machine_.memoryRefreshAll = false;
}

// The window leaves the main window's area and stays in front of it and of its children, or comes back. Its frame stays where it
// is on the screen.
void MemoryWindows::setOwnerWindow(Area area, bool onTop) {
    frmDump& window = dump(area).window->made();
    AreaWindow* frame = dump(area).frame;
    if (onTop && frame != nullptr) {
        const QPoint corner = frame->mapToGlobal(QPoint());
        frame->releaseContent();
        window.setParent(&owner_, outsideFlags);
        frame->hide();
        area_.removeSubWindow(frame);
        frame->deleteLater();
        dump(area).frame.clear();
        placeWindow(window, corner);
        window.show();
        window.activateWindow();
    } else if (!onTop && frame == nullptr) {
        const QPoint corner = window.frameGeometry().topLeft();
        window.hide();
        putIntoArea(area, window, area_.viewport()->mapFromGlobal(corner));
        dump(area).frame->bringUp();
    }
    window.refreshArea();
}

// --- chooser -----------------------------------------------------------------------------------------------------------

void MemoryWindows::toggleChooser(int left, bool byKeyboard) {
    if (frmDumpSel_.visible()) {
        hideChooser();
    } else {
        frmDumpSel_->open({std::max(0, left), 0}, byKeyboard);
    }
}

void MemoryWindows::hideChooser() {
    frmDumpSel_.hide();
}

void MemoryWindows::choose(int choice) {
    switch (choice) {
        case frmDumpSel::memoryRead: openMemoryRead(); break;
        case frmDumpSel::closeAll: closeAll(); break;
        default: openArea(static_cast<Area>(choice));
    }
}

void MemoryWindows::closeAll() {
    for (Dump& each : dumps_) {
        if (each.frame != nullptr) {
            each.frame->hide();
        } else {
            each.window->hide();
        }
    }
    emit allCloseWanted();
    frmMemoryRead_.hide();
}

void MemoryWindows::openMemoryRead() {
    if (!bus8bit(machine_)) {
        emit said(Popup{"８ビットバス選択時のみ機能します"}, nullptr);
        return;
    }
    placeWindow(frmMemoryRead_.made(), area_.mapToGlobal(readPlace));
    frmMemoryRead_->show();
    frmMemoryRead_->activateWindow();
}

void MemoryWindows::busTypeChanged() {
    if (!bus8bit(machine_)) {
        frmMemoryRead_.hide();
    }
    for (const Area each : allAreas) {
        if (frmDump* loaded = window(each)) {
            loaded->setAreaLayout();
        }
    }
    repaintAllAreas();
}

void MemoryWindows::readProtectionChanged() {
    if (frmMemoryRead_.visible()) {
        frmMemoryRead_->initReadMemory();
    }
}

// --- cells -------------------------------------------------------------------------------------------------------------

void MemoryWindows::cellDoubleClicked(Area area, int cell, DumpGrid::Side side, QPoint place) {
    // A character leads to the dialog without any check.
    if (side == DumpGrid::Side::data) {
        if (const Answer refusal = memoryWriteRefusal(machine_, area, cell); saysAnything(refusal)) {
            emit said(refusal, nullptr);
            return;
        }
        if (area == Area::controlDoDi && cell < cellsPerGroup) {
            emit controlWordPointed();
        }
    }
    openMemoryWrite(area, cell, place);
}

void MemoryWindows::openMemoryWrite(Area area, int cell, QPoint place) {
    frmEditMemory& dialog = frmEditMemory_.made();
    int top = place.y() + belowCell;
    if (top > usableScreen(place).bottom() + 1 - dialogFoot) {
        top = place.y() - sizeWithFrame(dialog).height() - dialogAbove;
    }
    emit messageInTheWay();
    dialog.openFor(area, QString::fromStdString(window(area)->view().rowText()), cell, {place.x(), top});
}
