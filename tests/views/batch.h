// SPDX-License-Identifier: Apache-2.0
// Gestures that wait in the queue of events and come in one batch, as when the program was busy for a moment.

#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

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
            const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
            QCoreApplication::postEvent(widget,
                                        new QMouseEvent(type, place, widget->mapToGlobal(place), Qt::LeftButton, held, {}));
        }
    }
}
inline void clicks(QWidget* widget, int times) {
    clicks(widget, times, widget->rect().center());
}

}  // namespace batch
