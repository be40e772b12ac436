// SPDX-License-Identifier: Apache-2.0
#include "platform/OnDemand.h"

#include <QApplication>
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

void WindowLife::giveWorkBack() {
    // Qt has already forgotten that the window was active, but not yet heard from the desktop which one has the keyboard now.
    const bool atWork = window_ != nullptr && window_->isWindow() && QGuiApplication::focusWindow() == window_->windowHandle();
    if (atWork && QGuiApplication::focusWindow() != nullptr && before_ != nullptr && before_ != window_ && before_->isVisible()) {
        before_->activateWindow();
    }
}

bool WindowLife::eventFilter(QObject* watched, QEvent* event) {
    // A spontaneous one comes from the desktop: an icon is still an open window.
    if (!event->spontaneous() && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
        const bool shown = event->type() == QEvent::Show;
        if (shown) {
            before_ = QApplication::activeWindow();
        } else {
            giveWorkBack();
        }
        if (tellShown_) {
            tellShown_(shown);
        }
    }
    return QObject::eventFilter(watched, event);
}
