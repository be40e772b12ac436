// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchView.h"

#include "boards/views/BenchPart.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr qreal zoomStep = 1.25;
constexpr qreal smallestZoom = 0.5;
constexpr qreal largestZoom = 3;

bool reachable(const BenchPart& part) {
    return part.isVisible() && part.reactions().any();
}

QPointF middleOf(const BenchPart& part) {
    return part.sceneBoundingRect().center();
}

}  // namespace

BenchView::BenchView(QGraphicsScene* scene, QWidget* parent) : QGraphicsView(scene, parent) {
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setFocusPolicy(Qt::StrongFocus);
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    setOptimizationFlag(DontSavePainterState);
    setCacheMode(CacheNone);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* before, const QWidget* now) {
        if (now == this) {
            enter(before);
        }
    });
}

void BenchView::setZoom(qreal zoom) {
    zoom = std::clamp(zoom, smallestZoom, largestZoom);
    if (std::abs(zoom - 1) < 0.01) {
        zoom = 1;
    }
    if (zoom == zoom_) {
        return;
    }
    zoom_ = zoom;
    setTransform(QTransform::fromScale(zoom, zoom));
    emit zoomed();
}

bool BenchView::zoomByKey(const QKeyEvent& event) {
    if ((event.modifiers() & Qt::ControlModifier) == 0) {
        return false;
    }
    switch (event.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
        case Qt::Key_Semicolon: setZoom(zoom_ * zoomStep); return true;  // where plus is on the key of the semicolon
        case Qt::Key_Minus: setZoom(zoom_ / zoomStep); return true;
        case Qt::Key_0: setZoom(1); return true;
        default: return false;
    }
}

void BenchView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() & Qt::ControlModifier) {
        if (event->angleDelta().y() != 0) {
            setZoom(event->angleDelta().y() > 0 ? zoom_ * zoomStep : zoom_ / zoomStep);
        }
        event->accept();
        return;
    }
    QGraphicsView::wheelEvent(event);
}

void BenchView::scrollContentsBy(int dx, int dy) {
    QGraphicsView::scrollContentsBy(dx, dy);
    emit scrolled();
}

// --- the walk by keyboard ----------------------------------------------------------------------------------------------------

BenchPart* BenchView::partAtWork() const {
    return dynamic_cast<BenchPart*>(scene()->focusItem());
}

void BenchView::walkTo(BenchPart* part, Qt::FocusReason reason) {
    constexpr int clearance = 12;
    part->setFocus(reason);
    ensureVisible(part, clearance, clearance);
}

bool BenchView::focusNextPrevChild(bool next) {
    const auto count = static_cast<std::ptrdiff_t>(parts_.size());
    const BenchPart* here = partAtWork();
    std::ptrdiff_t at = next ? -1 : count;
    if (here != nullptr) {
        at = std::find(parts_.begin(), parts_.end(), here) - parts_.begin();
    }
    const std::ptrdiff_t step = next ? 1 : -1;
    for (at += step; at >= 0 && at < count; at += step) {
        BenchPart* part = parts_[static_cast<std::size_t>(at)];
        if (reachable(*part)) {
            walkTo(part, next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    scene()->setFocusItem(nullptr);
    return QGraphicsView::focusNextPrevChild(next);
}

// The scene takes up the part that it had, with the ring that it had; whether a walk begins shows when the event is through.
void BenchView::focusInEvent(QFocusEvent* event) {
    const bool walk = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    entering_ = walk ? event->reason() : Qt::NoFocusReason;
    QFocusEvent quiet(event->type(), walk ? Qt::OtherFocusReason : event->reason());
    QGraphicsView::focusInEvent(&quiet);
}

// Qt hands the keyboard on by the same reason as the Tab key when the widget that has it is hidden.
void BenchView::enter(const QWidget* from) {
    const Qt::FocusReason reason = std::exchange(entering_, Qt::NoFocusReason);
    if (reason == Qt::NoFocusReason || (from != nullptr && !from->isVisible())) {
        return;
    }
    if (BenchPart* part = partAtWork()) {
        walkTo(part, reason);
        return;
    }
    focusNextPrevChild(reason == Qt::TabFocusReason);
}

BenchPart* BenchView::neighbour(const BenchPart& from, QPointF direction) const {
    BenchPart* nearest = nullptr;
    qreal least = std::numeric_limits<qreal>::max();
    for (BenchPart* part : parts_) {
        if (part == &from || !reachable(*part)) {
            continue;
        }
        const QPointF way = middleOf(*part) - middleOf(from);
        const qreal along = QPointF::dotProduct(way, direction);
        const qreal aside = std::abs(way.x() * direction.y() - way.y() * direction.x());
        // What lies more to the side than ahead is another direction's.
        if (along > 1 && aside <= along * 2) {
            const qreal distance = along + 2 * aside;
            if (distance < least) {
                least = distance;
                nearest = part;
            }
        }
    }
    return nearest;
}

void BenchView::keyPressEvent(QKeyEvent* event) {
    if (zoomByKey(*event)) {
        event->accept();
        return;
    }
    const auto direction = [key = event->key()]() -> QPointF {
        switch (key) {
            case Qt::Key_Left: return {-1, 0};
            case Qt::Key_Right: return {1, 0};
            case Qt::Key_Up: return {0, -1};
            case Qt::Key_Down: return {0, 1};
            default: return {};
        }
    }();
    const BenchPart* here = partAtWork();
    if (here == nullptr || direction.isNull()) {
        QGraphicsView::keyPressEvent(event);
        return;
    }
    if (BenchPart* part = neighbour(*here, direction)) {
        walkTo(part, Qt::TabFocusReason);
    }
    event->accept();
}
