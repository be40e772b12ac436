// The memory windows as a set: the three dump windows in the main window's area, their chooser, and the dialogs that they
// lead to. What they want from the rest of the program goes out as signals.

#pragma once

#include "access/memoryAccess.h"
#include "core/answer.h"
#include "memwin/views/DumpGrid.h"

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <array>
#include <memory>

class QMdiArea;
class QMdiSubWindow;
class QWidget;
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

    // Loads a dump window, hidden.
    void load(Area area);
    // Forgets the dump windows and hides what belongs to them; the read dialog stays.
    void unload();
    // Brings a dump window up, or to the front.
    void openArea(Area area);
    // All visible dump windows, from the machine.
    void refreshAllAreas();
    // The same with every cell repainted; what counts as a change stays.
    void repaintAllAreas();
    // The view of the bus type for one window; all windows are brought up to date after it.
    void setAreaLayout(Area area);
    // The bus type has changed: every window takes its view, and the read dialog goes from a 16-bit bus.
    void busTypeChanged();
    // The read dialog's place counts from this window.
    void setReadOrigin(QWidget* bench) { readOrigin_ = bench; }
    // A write changed HPR's low byte: a visible read dialog starts anew.
    void readProtectionChanged();

    // The chooser goes up at this x, or away.
    void toggleChooser(int left);
    void hideChooser();

    // Null until it is loaded.
    frmDump* window(Area area) { return windows_[static_cast<std::size_t>(area)].get(); }
    frmDumpSel& chooser() { return *frmDumpSel_; }
    frmEditMemory& writeDialog() { return *frmEditMemory_; }
    frmMemoryRead& readDialog() { return *frmMemoryRead_; }

signals:
    void popupWanted(const QString& text);
    // Said where the dialog stood.
    void answered(const QWidget& form, const Answer& answer);
    void beepWanted();
    void messageInTheWay();
    // The register window is to be brought up to date too.
    void refreshWanted();
    // "Window All Close".
    void allCloseWanted();
    // A control word was double-clicked: its hint page.
    void controlWordPointed();

private:
    void choose(int choice);
    void openMemoryRead();
    void cellDoubleClicked(Area area, int cell, DumpGrid::Side side, QPoint place);
    void openMemoryWrite(Area area, int cell, QPoint place);
    void setOwnerWindow(Area area, bool onTop);
    void putIntoArea(frmDump& window, QPoint place);
    QMdiSubWindow* frameOf(Area area) const;

    Machine& machine_;
    QMdiArea& area_;
    QWidget& owner_;
    QPointer<QWidget> readOrigin_;
    std::array<std::unique_ptr<frmDump>, 3> windows_;
    std::unique_ptr<frmDumpSel> frmDumpSel_;
    std::unique_ptr<frmEditMemory> frmEditMemory_;
    std::unique_ptr<frmMemoryRead> frmMemoryRead_;
};
