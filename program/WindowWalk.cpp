// SPDX-License-Identifier: Apache-2.0
#include "program/WindowWalk.h"

#include "core/runControl.h"
#include "platform/AreaWindow.h"
#include "program/frmMDI.h"

#include <QApplication>
#include <QMdiArea>
#include <QShortcut>

WindowWalk::WindowWalk(frmMDI& mainWindow) : mainWindow_(mainWindow) {
    bind(Qt::Key_F6, [this] { toStripOrBack(); });
    for (const QKeySequence& next : {QKeySequence(Qt::CTRL | Qt::Key_F6), QKeySequence(Qt::CTRL | Qt::Key_Tab)}) {
        bind(next, [this] { toWindow(1); });
    }
    // Shift turns Tab into a key of its own name.
    for (const QKeySequence& before :
         {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F6), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab)}) {
        bind(before, [this] { toWindow(-1); });
    }
    for (std::size_t mode = 0; mode < runModes.size(); ++mode) {
        bind(QKeySequence(frmMDI::runModeKeys[mode]), [this, mode] { mainWindow_.lblRunMode(static_cast<int>(mode)).click(); });
    }
}

void WindowWalk::bind(const QKeySequence& keys, const std::function<void()>& action) {
    auto* shortcut = new QShortcut(keys, &mainWindow_);
    shortcut->setContext(Qt::ApplicationShortcut);  // the windows in front of the main window have them too
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, action);
    connect(shortcut, &QShortcut::activatedAmbiguously, this, action);
}

void WindowWalk::toStripOrBack() {
    QWidget* now = QApplication::focusWidget();
    if (qobject_cast<ToolLabel*>(now) == nullptr) {
        beforeStrip_ = now;
        mainWindow_.activateWindow();
        mainWindow_.label(Tool::registerWindow).setFocus(Qt::TabFocusReason);
    } else if (beforeStrip_ != nullptr && beforeStrip_->isVisible()) {
        beforeStrip_->window()->activateWindow();
        beforeStrip_->setFocus(Qt::TabFocusReason);
    } else {
        mainWindow_.area().setFocus(Qt::TabFocusReason);
    }
}

// Those of the area in the order in which they were made, then those in front of the main window.
QWidgetList WindowWalk::openWindows() const {
    QWidgetList windows;
    for (QMdiSubWindow* window : mainWindow_.area().subWindowList()) {
        if (window->isVisible()) {
            windows.push_back(window);
        }
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool takesKeys = window->windowType() == Qt::Tool || window->windowType() == Qt::Dialog;
        if (window->isVisible() && takesKeys) {
            windows.push_back(window);
        }
    }
    return windows;
}

void WindowWalk::toWindow(int step) {
    const QWidgetList windows = openWindows();
    if (windows.isEmpty()) {
        return;
    }
    const QWidget* active = QApplication::activeWindow();
    const QWidget* now = active == &mainWindow_ ? mainWindow_.area().activeSubWindow() : active;
    const auto count = windows.size();
    const auto at = windows.indexOf(const_cast<QWidget*>(now));
    QWidget* next = windows[at < 0 ? 0 : (at + step + count) % count];
    if (auto* child = qobject_cast<QMdiSubWindow*>(next)) {
        mainWindow_.activateWindow();
        mainWindow_.area().setActiveSubWindow(child);
        if (QWidget* content = child->widget()) {
            QWidget* keyboard = content->focusWidget() != nullptr ? content->focusWidget() : content;
            keyboard->setFocus(Qt::TabFocusReason);
        }
    } else {
        next->raise();
        next->activateWindow();
    }
}
