// SPDX-License-Identifier: Apache-2.0
#include "platform/OnDemand.h"

#include <QEvent>

WindowLife::~WindowLife() {
    delete window_.data();
}

void WindowLife::keep(QWidget* window) {
    window_ = window;
    window->installEventFilter(this);
}

void WindowLife::hide() {
    if (window_ != nullptr) {
        window_->hide();
    }
}

void WindowLife::forget() {
    if (QWidget* window = window_.data()) {
        window->hide();
        window_.clear();
        window->removeEventFilter(this);
        QObject::disconnect(window, nullptr, &set_, nullptr);
        window->deleteLater();
    }
}

bool WindowLife::eventFilter(QObject* watched, QEvent* event) {
    // A spontaneous one comes from the desktop: an icon is still an open window.
    if (tellShown_ && !event->spontaneous() && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
        tellShown_(event->type() == QEvent::Show);
    }
    return QObject::eventFilter(watched, event);
}
