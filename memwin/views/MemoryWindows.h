// SPDX-License-Identifier: Apache-2.0
// The memory windows as a set: the three dump windows in the main window's area, their chooser, and the dialogs that they
// lead to. What they want from the rest of the program goes out as signals.

#pragma once

#include "access/memoryAccess.h"
#include "core/answer.h"
#include "memwin/views/DumpGrid.h"
#include "platform/OnDemand.h"

#include <QObject>
#include <QPoint>

#include <array>
#include <memory>

class AreaWindow;
class QMdiArea;
class frmDump;
class frmDumpSel;
class frmEditMemory;
class frmMemoryRead;

class MemoryWindows : public QObject {
    Q_OBJECT

public:
    // Children of `area`; the dialogs belong to `owner`, the main window.
    MemoryWindows(Machine& machine, QMdiArea& area, QWidget& owner);
    ~MemoryWindows() override;

    // Brings a dump window up, to the front, and out of its icon.
    void openArea(Area area);
    // The windows that the settings ask for, at the start and after a restart.
    void openBySettings();
    // Forgets the dump windows and hides what belongs to them; the read dialog stays.
    void unload();
    // All visible dump windows, from the machine.
    void refreshAllAreas() const;
    // The bus type has changed: every window takes its view, and the read dialog goes from a 16-bit bus.
    void busTypeChanged();
    // A write changed HPR's low byte: a visible read dialog starts anew.
    void readProtectionChanged();

    // The chooser goes up at this x of the area, or away. One that was asked for by keyboard begins at its first button.
    void toggleChooser(int left, bool byKeyboard);
    void hideChooser();

    // Null until they are first asked for.
    frmDump* window(Area area) const;
    frmDumpSel* chooser() const;
    frmEditMemory* writeDialog() const;
    frmMemoryRead* readDialog() const;

signals:
    // What a gesture has to say, beside the form that it speaks of, or at the pointer for null.
    void said(const Answer& answer, const QWidget* form);
    void beepWanted();
    // A dialog comes up: a popup would stand in its way.
    void messageInTheWay();
    // The register window is to be brought up to date too.
    void refreshWanted();
    // "Window All Close".
    void allCloseWanted();
    // A control word was double-clicked: its hint page.
    void controlWordPointed();

private:
    // A dump window and the frame that it has inside the area; outside it is a window of the desktop.
    struct Dump {
        std::unique_ptr<OnDemand<frmDump>> window;
        QPointer<AreaWindow> frame;
    };

    frmDump* makeDump(Area area);
    frmDumpSel* makeChooser();
    frmEditMemory* makeWriteDialog();
    frmMemoryRead* makeReadDialog();
    Dump& dump(Area area) { return dumps_[static_cast<std::size_t>(area)]; }
    void choose(int choice);
    void closeAll();
    void openMemoryRead();
    void cellDoubleClicked(Area area, int cell, DumpGrid::Side side, QPoint place);
    void openMemoryWrite(Area area, int cell, QPoint place);
    void setOwnerWindow(Area area, bool onTop);
    void putIntoArea(Area area, frmDump& window, QPoint place);
    void repaintAllAreas();

    Machine& machine_;
    QMdiArea& area_;
    QWidget& owner_;
    std::array<Dump, 3> dumps_;
    OnDemand<frmDumpSel> frmDumpSel_;
    OnDemand<frmEditMemory> frmEditMemory_;
    OnDemand<frmMemoryRead> frmMemoryRead_;
};
