// SPDX-License-Identifier: Apache-2.0
#include "platform/AreaWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMenu>

#include <algorithm>

namespace {

constexpr Qt::WindowFlags areaFlags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                      Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;

}  // namespace

AreaWindow::AreaWindow(QMdiArea& area) : QMdiSubWindow(&area, areaFlags) {
    setAttribute(Qt::WA_DeleteOnClose, false);  // the close box hides
    area.addSubWindow(this, areaFlags);
    // Qt's menu has an entry "Stay on Top" that means the other windows of the area: not what a learner would take it for.
    for (QAction* action : systemMenu()->actions()) {
        if (action->isCheckable()) {
            systemMenu()->removeAction(action);
        }
    }
    connect(this, &QMdiSubWindow::windowStateChanged, this, [this](Qt::WindowStates before, Qt::WindowStates now) {
        if (!(before & Qt::WindowActive) && (now & Qt::WindowActive)) {
            emit activated();
        }
    });
}

void AreaWindow::setContent(QWidget& content) {
    setWidget(&content);
    setWindowTitle(content.windowTitle());
    fit();
}

void AreaWindow::releaseContent() {
    setWidget(nullptr);
}

void AreaWindow::fit() {
    // An icon is smaller than the content, so only the upper limit can stand for good.
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    // Qt's own hint leaves a hidden content out.
    const QSize wanted = widget()->minimumSize().grownBy(contentsMargins());
    setMaximumSize(wanted);
    if (!isMinimized()) {
        resize(wanted);
    }
}

void AreaWindow::placeAt(QPoint place) {
    const QSize room = mdiArea()->viewport()->size() - size();
    move(std::max(0, std::min(place.x(), room.width())), std::max(0, std::min(place.y(), room.height())));
}

void AreaWindow::setVisible(bool visible) {
    QMdiArea* area = mdiArea();
    const bool wasAtWork = !visible && isVisible() && area != nullptr && area->activeSubWindow() == this;
    QMdiSubWindow::setVisible(visible);
    if (wasAtWork) {
        workGoesBack(*area);
    }
}

// The window that was at work before this one has the keyboard again.
void AreaWindow::workGoesBack(QMdiArea& area) {
    const QList<QMdiSubWindow*> windows = area.subWindowList(QMdiArea::ActivationHistoryOrder);
    const auto before = std::find_if(windows.crbegin(), windows.crend(),
                                     [this](const QMdiSubWindow* window) { return window != this && window->isVisible(); });
    if (before != windows.crend()) {
        area.setActiveSubWindow(*before);
        giveKeyboardTo(**before);
    }
}

void AreaWindow::giveKeyboardTo(QMdiSubWindow& window) {
    QWidget* content = window.widget();
    if (content != nullptr && content->focusPolicy() != Qt::NoFocus) {
        QWidget* before = content->focusWidget();
        (before != nullptr ? before : content)->setFocus(Qt::OtherFocusReason);
    }
}

void AreaWindow::bringUp() {
    if (isMinimized()) {
        showNormal();
    }
    if (QWidget* content = widget()) {
        content->show();
    }
    show();
    mdiArea()->setActiveSubWindow(this);
    raise();
    giveKeyboardTo(*this);
}

void AreaWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
}

void AreaWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !isMinimized()) {
        close();
    } else {
        QMdiSubWindow::keyPressEvent(event);
    }
}
