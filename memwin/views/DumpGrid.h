// SPDX-License-Identifier: Apache-2.0
// The grid of a dump window: one painted widget with the hexadecimal cells (Picture1) and the characters beside them
// (Picture2). It repaints the cells that changed and no others.
//
//   |picInd| lblTitle  lblOff 0 to 15 under linLow, linHigh | Label1, lblOff 16 to 31 |
//   |      | lblAdr 0  lblData 0 ... 15                     | lblASC 0 ... 15         |
//   |      | lblAdr 1  lblData 16 ...                       | lblASC 16 ...           |      Line1 after eight rows
//
// The keyboard walks over the cells with the arrows, Home, End, Page Up and Page Down; Enter is the double click.

#pragma once

#include "memwin/mduMemoryWindow.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

class DumpGrid : public QWidget {
    Q_OBJECT

public:
    enum class Side { data, ascii };

    DumpGrid(const DumpView& view, QWidget* parent);

    // Repaints the cells that the last operation on the view touched.
    void showTouched();
    // Places the cells by the view's bytes or words.
    void setPiMode(ByteView piMode);

    int gridHeight() const;
    // Place of a cell in this widget.
    QRect cellRect(int cell, Side side) const;

signals:
    void pointed(int cell);
    void pointedNowhere();
    void doubleClicked(int cell, DumpGrid::Side side);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Hit {
        int cell;
        Side side;
    };
    std::optional<Hit> hitAt(QPoint point) const;
    int rows() const { return view_.area->cells / cellsPerRow; }
    int rowAt(int y) const;
    void walkTo(int cell);

    const QPixmap& glyphOf(Side side, bool changed, std::uint8_t value);
    void paintFrames(QPainter& painter);
    void paintHeading(QPainter& painter);
    void paintWedges(QPainter& painter) const;
    void paintStrips(QPainter& painter);
    void paintRow(QPainter& painter, int row, const QRect& clip);

    const DumpView& view_;
    ByteView piMode_ = ByteView::word;
    int current_ = 0;    // where the keyboard stands
    bool ring_ = false;  // and whether it is shown
    // Bytes and characters, unchanged and changed, each drawn when it is first shown.
    std::array<std::array<std::array<QPixmap, 256>, 2>, 2> glyphs_;
    qreal glyphRatio_ = 0;
};
