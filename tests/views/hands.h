// SPDX-License-Identifier: Apache-2.0
// The learner's hands: real mouse events at the place where a part of the bench is seen, and gestures that wait in the queue of
// events and come in one batch, as when the program was busy for a moment.

#pragma once

#include "boards/views/BenchView.h"
#include "boards/views/frmHard.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

// A window that nobody has asked for is none.
inline bool isUp(const QWidget* window) {
    return window != nullptr && window->isVisible();
}

class BenchHand {
public:
    explicit BenchHand(frmHard& bench) : bench_(bench) {}

    BenchPart& part(std::string_view name, std::size_t index = 0) const {
        BenchPart* found = bench_.part(name, index);
        EXPECT_NE(found, nullptr) << name << index;
        return *found;
    }
    QWidget* viewport() const { return bench_.view().viewport(); }
    QPoint at(const BenchPart& part) const { return bench_.view().mapFromScene(part.sceneBoundingRect().center()); }

    void press(const BenchPart& part) const { QTest::mousePress(viewport(), Qt::LeftButton, {}, at(part)); }
    void release(QPoint place) const { QTest::mouseRelease(viewport(), Qt::LeftButton, {}, place); }
    void click(const BenchPart& part) const { QTest::mouseClick(viewport(), Qt::LeftButton, {}, at(part)); }
    // Press, release, and the second press; the release is the caller's.
    void doublePress(const BenchPart& part) const {
        click(part);
        const QPointF place = at(part);
        const QPointF global = viewport()->mapToGlobal(place);
        QMouseEvent second(QEvent::MouseButtonDblClick, place, global, Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport(), &second);
    }
    void doubleClick(const BenchPart& part) const {
        doublePress(part);
        release(at(part));
    }

private:
    frmHard& bench_;
};

// To the widget itself: moving the pointer of the screen would reach whatever window lies above it.
inline void hover(QWidget& widget, QPointF place) {
    QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&widget, &move);
}

namespace batch {

inline void close(QWidget* window) {
    QCoreApplication::postEvent(window, new QCloseEvent);
}

inline void key(QWidget* window, Qt::Key key) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QCoreApplication::postEvent(window, new QKeyEvent(type, key, Qt::NoModifier));
    }
}

// So many fast clicks at a place of a widget: every second press is a double click.
inline void clicks(QWidget* widget, int times, QPointF place) {
    for (int time = 0; time < times; ++time) {
        const QEvent::Type press = time % 2 == 0 ? QEvent::MouseButtonPress : QEvent::MouseButtonDblClick;
        for (const QEvent::Type type : {press, QEvent::MouseButtonRelease}) {
            const auto held = type == press ? Qt::LeftButton : Qt::NoButton;
            const QPointF global = widget->mapToGlobal(place);
            QCoreApplication::postEvent(widget, new QMouseEvent(type, place, global, Qt::LeftButton, held, {}));
        }
    }
}
inline void clicks(QWidget* widget, int times) {
    clicks(widget, times, widget->rect().center());
}

}  // namespace batch
