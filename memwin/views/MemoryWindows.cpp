#include "memwin/views/MemoryWindows.h"

#include "access/views/frmEditMemory.h"
#include "access/views/frmMemoryRead.h"
#include "memwin/views/frmDump.h"
#include "memwin/views/frmDumpSel.h"
#include "platform/screen.h"
#include "platform/twips.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>

namespace {

// The write dialog opens two cells below the top of its cell, or above it near the foot of the screen.
constexpr int belowCell = 24;
constexpr int dialogFoot = twips(2700);
constexpr int dialogAbove = twips(200);

// The read dialog's place, counted from the corner of the hardware window.
constexpr QPoint readPlace{twips(1800), twips(2500)};

constexpr Qt::WindowFlags outsideFlags = Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
constexpr Qt::WindowFlags insideFlags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                        Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;

}  // namespace

MemoryWindows::MemoryWindows(Machine& machine, QMdiArea& area, QWidget& owner)
    : machine_(machine),
      area_(area),
      owner_(owner),
      frmDumpSel_(std::make_unique<frmDumpSel>(&area)),
      frmEditMemory_(std::make_unique<frmEditMemory>(machine, &owner)),
      frmMemoryRead_(std::make_unique<frmMemoryRead>(machine, &owner)) {
    connect(frmDumpSel_.get(), &frmDumpSel::chosen, this, &MemoryWindows::choose);
    connect(&area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* activated) {
        if (activated != nullptr) {
            hideChooser();
        }
    });
    connect(frmEditMemory_.get(), &frmEditMemory::wordMarked, this,
            [this](Area marked, int cell, bool even, bool odd) { window(marked)->markWord(cell, even, odd); });
    connect(frmEditMemory_.get(), &frmEditMemory::refreshWanted, this, [this] {
        refreshAllAreas();
        emit refreshWanted();
    });
    connect(frmEditMemory_.get(), &frmEditMemory::answered, this,
            [this](const Answer& answer) { emit answered(*frmEditMemory_, answer); });
    connect(frmMemoryRead_.get(), &frmMemoryRead::beepWanted, this, &MemoryWindows::beepWanted);
}

MemoryWindows::~MemoryWindows() {
    unload();
}

// --- windows -----------------------------------------------------------------------------------------------------------

QMdiSubWindow* MemoryWindows::frameOf(Area area) const {
    return qobject_cast<QMdiSubWindow*>(windows_[static_cast<std::size_t>(area)]->parentWidget());
}

void MemoryWindows::load(Area area) {
    auto& window = windows_[static_cast<std::size_t>(area)];
    if (window != nullptr) {
        return;
    }
    window = std::make_unique<frmDump>(machine_, area);
    connect(window.get(), &frmDump::cellDoubleClicked, this, &MemoryWindows::cellDoubleClicked);
    connect(window.get(), &frmDump::activated, this, &MemoryWindows::hideChooser);
    connect(window.get(), &frmDump::topMostWanted, this, &MemoryWindows::setOwnerWindow);
    connect(window.get(), &frmDump::moveWanted, this, [this, area](int dx) {
        QWidget* frame = frameOf(area);
        QWidget* moved = frame != nullptr ? frame : this->window(area);
        moved->move(moved->pos() + QPoint(dx, 0));
        moved->adjustSize();
    });
    const DumpArea& row = dumpAreas[static_cast<std::size_t>(area)];
    putIntoArea(*window, {twips(row.left), twips(row.top)});
}

void MemoryWindows::putIntoArea(frmDump& window, QPoint place) {
    auto* frame = new QMdiSubWindow(&area_, insideFlags);
    frame->setWidget(&window);
    frame->setWindowTitle(window.windowTitle());
    frame->setAttribute(Qt::WA_DeleteOnClose, false);  // the close box hides
    area_.addSubWindow(frame, insideFlags);
    frame->adjustSize();
    // Not out of reach on a small screen.
    const QSize room = area_.size() - frame->sizeHint();
    frame->move(std::max(0, std::min(place.x(), room.width())), std::max(0, place.y()));
    frame->hide();
}

void MemoryWindows::unload() {
    frmEditMemory_->hide();
    frmDumpSel_->hide();
    for (auto& window : windows_) {
        if (window == nullptr) {
            continue;
        }
        if (QMdiSubWindow* frame = frameOf(window->area())) {
            frame->setWidget(nullptr);
            delete frame;
        }
        window.reset();
    }
}

void MemoryWindows::openArea(Area area) {
    load(area);
    frmDump& window = *this->window(area);
    QMdiSubWindow* frame = frameOf(area);
    if (frame != nullptr) {
        window.show();
        frame->show();
        area_.setActiveSubWindow(frame);
        frame->raise();
    } else {
        window.show();
        window.raise();
        window.activateWindow();
    }
    window.grid().setFocus(Qt::OtherFocusReason);
    setAreaLayout(area);
}

void MemoryWindows::refreshAllAreas() {
    for (const auto& window : windows_) {
        if (window != nullptr) {
            window->refreshArea();
        }
    }
}

void MemoryWindows::repaintAllAreas() {
    machine_.memoryRefreshAll = true;
    refreshAllAreas();
    machine_.memoryRefreshAll = false;
}

void MemoryWindows::setAreaLayout(Area area) {
    window(area)->setAreaLayout();
    repaintAllAreas();
}

// The window leaves the main window's area and stays in front of it and of its children, or comes back.
void MemoryWindows::setOwnerWindow(Area area, bool onTop) {
    frmDump& window = *this->window(area);
    QMdiSubWindow* frame = frameOf(area);
    const QPoint place = window.mapToGlobal(QPoint());
    if (onTop && frame != nullptr) {
        frame->setWidget(nullptr);
        delete frame;
        window.setParent(&owner_, outsideFlags);
        window.move(keptOnScreen({place, window.size()}).topLeft());
        window.show();
    } else if (!onTop && frame == nullptr) {
        window.hide();
        putIntoArea(window, area_.mapFromGlobal(window.frameGeometry().topLeft()));
        window.show();
        frameOf(area)->show();
    }
    window.refreshArea();
}

// --- chooser -----------------------------------------------------------------------------------------------------------

void MemoryWindows::toggleChooser(int left) {
    if (frmDumpSel_->isVisible()) {
        hideChooser();
    } else {
        frmDumpSel_->open({std::max(0, left), 0});
    }
}

void MemoryWindows::hideChooser() {
    frmDumpSel_->hide();
}

void MemoryWindows::choose(int choice) {
    switch (choice) {
        case frmDumpSel::memoryRead: openMemoryRead(); break;
        case frmDumpSel::closeAll:
            for (const auto& window : windows_) {
                if (window != nullptr) {
                    QMdiSubWindow* frame = frameOf(window->area());
                    (frame != nullptr ? static_cast<QWidget*>(frame) : window.get())->hide();
                }
            }
            frmMemoryRead_->hide();
            emit allCloseWanted();
            break;
        default: openArea(static_cast<Area>(choice));
    }
}

void MemoryWindows::openMemoryRead() {
    if (!bus8bit(machine_)) {
        emit popupWanted("８ビットバス選択時のみ機能します");
        return;
    }
    placeWindow(*frmMemoryRead_, (readOrigin_ != nullptr ? readOrigin_.data() : &area_)->mapToGlobal(readPlace));
    frmMemoryRead_->show();
    frmMemoryRead_->activateWindow();
}

void MemoryWindows::busTypeChanged() {
    if (!bus8bit(machine_)) {
        frmMemoryRead_->hide();
    }
    for (const auto& window : windows_) {
        if (window != nullptr) {
            window->setAreaLayout();
        }
    }
    repaintAllAreas();
}

void MemoryWindows::readProtectionChanged() {
    if (frmMemoryRead_->isVisible()) {
        frmMemoryRead_->initReadMemory();
    }
}

// --- cells -------------------------------------------------------------------------------------------------------------

void MemoryWindows::cellDoubleClicked(Area area, int cell, DumpGrid::Side side, QPoint place) {
    // A character leads to the dialog without any check.
    if (side == DumpGrid::Side::data) {
        const Answer refusal = memoryWriteRefusal(machine_, area, cell);
        if (const auto* refused = std::get_if<Popup>(&refusal)) {
            emit popupWanted(QString::fromStdString(refused->text));
            return;
        }
        if (area == Area::controlDoDi && cell < cellsPerGroup) {
            emit controlWordPointed();
        }
    }
    openMemoryWrite(area, cell, place);
}

void MemoryWindows::openMemoryWrite(Area area, int cell, QPoint place) {
    const QRect screen = usableScreen(place);
    int top = place.y() + belowCell;
    if (top > screen.bottom() + 1 - dialogFoot) {
        top = place.y() - sizeWithFrame(*frmEditMemory_).height() - dialogAbove;
    }
    emit messageInTheWay();
    const QRect kept = keptOnScreen({{place.x(), top}, sizeWithFrame(*frmEditMemory_)});
    frmEditMemory_->openFor(area, QString::fromStdString(window(area)->view().rowText()), cell, kept.topLeft());
}
