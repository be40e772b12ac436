// SPDX-License-Identifier: Apache-2.0
// The view of the bench: zoom, and the walk over its parts by keyboard.
//
//   Ctrl + wheel, Ctrl + plus, minus, 0     zoom
//   Tab, Shift + Tab                        next and previous part in the order of the boards
//   arrow keys                              the next part on that side
//
// Only who walks here begins a walk: when a window that had the keyboard goes away and it falls on the bench, no part comes to
// the keyboard by that, and none shows its ring.

#pragma once

#include <QGraphicsView>

class BenchPart;

class BenchView : public QGraphicsView {
    Q_OBJECT

public:
    explicit BenchView(QGraphicsScene* scene, QWidget* parent = nullptr);

    // The parts in the order of the walk.
    void setParts(std::vector<BenchPart*> parts) { parts_ = std::move(parts); }
    const std::vector<BenchPart*>& parts() const { return parts_; }

    qreal zoom() const { return zoom_; }
    // Kept between half and three times the size.
    void setZoom(qreal zoom);

signals:
    void zoomed();
    // What stands over the picture has to follow it.
    void scrolled();

protected:
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void enter(const QWidget* from);
    BenchPart* partAtWork() const;
    void walkTo(BenchPart* part, Qt::FocusReason reason);
    BenchPart* neighbour(const BenchPart& from, QPointF direction) const;
    bool zoomByKey(const QKeyEvent& event);

    std::vector<BenchPart*> parts_;
    qreal zoom_ = 1;
    Qt::FocusReason entering_ = Qt::NoFocusReason;
};
