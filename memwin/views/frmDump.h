// SPDX-License-Identifier: Apache-2.0
// A dump window: frmDumpCDIO, frmDumpC17 and frmDumpDRC are its three instances, told apart by their row of dumpAreas.

#pragma once

#include "memwin/mduMemoryWindow.h"
#include "memwin/views/DumpGrid.h"
#include "platform/Timer.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

class frmDump : public QWidget {
    Q_OBJECT

public:
    frmDump(Machine& machine, Area area);

    Area area() const { return view_.area->area; }
    const DumpView& view() const { return view_; }
    DumpGrid& grid() { return *grid_; }
    Timer& timColor() { return timColor_; }
    bool topMost() const;

    // Brings the window up to date; nothing while it is hidden.
    void refreshArea();
    // Gives the window the view of the bus type.
    void setAreaLayout();
    // Colours the word at a cell as the write dialog wants it.
    void markWord(int cell, bool evenRed, bool oddRed);

signals:
    // A cell was double-clicked; `place` is its top left corner on the screen.
    void cellDoubleClicked(Area area, int cell, DumpGrid::Side side, QPoint place);
    // The check box was clicked: the window is to leave the main window's area, or to come back.
    void topMostWanted(Area area, bool onTop);
    // The window became the one at work, outside the main window's area.
    void activated();
    // The view got narrower or wider: the window moves by so many pixels.
    void moveWanted(int dx);

protected:
    bool event(QEvent* event) override;

private:
    void layoutCells(ByteView piMode);
    void cmbBit_Click(ByteView piMode);
    void showPointing(int cell);
    void showResting();

    Machine& machine_;
    DumpView view_;
    char width_ = 'W';  // which of the two widths the window was last given, "B" or "W"
    DumpGrid* grid_;
    std::array<QPushButton*, 2> cmbBit_{};  // 0 Byte, 1 Word
    QLabel* lblCPUType_;
    QLabel* lblPointAddress_;
    QLabel* lblPointSA_;
    QCheckBox* chkTopMost_;
    Timer timColor_;
};
