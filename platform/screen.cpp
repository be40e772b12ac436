// SPDX-License-Identifier: Apache-2.0
#include "platform/screen.h"

#include "platform/twips.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int besideEdge = twips(50);
constexpr int aboveFoot = twips(500);

void bringWindowsBack() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool placedByHand = !(window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized));
        if (window->isVisible() && window->windowType() != Qt::Popup && placedByHand) {
            const QRect frame = window->frameGeometry();
            if (const QRect kept = keptOnScreen(frame); kept != frame) {
                window->move(kept.topLeft());
            }
        }
    }
}

}  // namespace

QRect usableScreen(QPoint point) {
    const QScreen* screen = QGuiApplication::screenAt(point);
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    return screen->availableGeometry();
}

QRect keptOnScreen(QRect frame) {
    const QRect screen = usableScreen(frame.center());
    frame.moveLeft(std::max(screen.left(), std::min(frame.left(), screen.right() + 1 - frame.width())));
    frame.moveTop(std::max(screen.top(), std::min(frame.top(), screen.bottom() + 1 - frame.height())));
    return frame;
}

QSize sizeWithFrame(const QWidget& window) {
    const QSize framed = window.frameGeometry().size();
    if (framed.height() > window.height()) {
        return framed;
    }
    // The desktop has not yet put its frame around it: the owner's is as large.
    const QWidget* owner = window.parentWidget() != nullptr ? window.parentWidget()->window() : nullptr;
    const QSize frame = owner != nullptr ? owner->frameGeometry().size() - owner->size() : QSize();
    return window.size() + (frame.height() > 0 ? frame : QSize(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight)));
}

void placeWindow(QWidget& window, QPoint place) {
    // A layout that only takes its size while the window comes up would have the place mean the inside of the frame.
    if (!window.isVisible() && window.layout() != nullptr) {
        window.ensurePolished();
        window.layout()->activate();
        window.adjustSize();
    }
    window.move(keptOnScreen({place, sizeWithFrame(window)}).topLeft());
}

void followScreens(QObject& context) {
    // Queued: first the desktop moves what it moves by itself.
    const auto follow = [&context](QScreen* screen) {
        QObject::connect(screen, &QScreen::availableGeometryChanged, &context, bringWindowsBack, Qt::QueuedConnection);
    };
    for (QScreen* screen : QGuiApplication::screens()) {
        follow(screen);
    }
    QObject::connect(qApp, &QGuiApplication::screenAdded, &context, follow);
    QObject::connect(qApp, &QGuiApplication::screenRemoved, &context, bringWindowsBack, Qt::QueuedConnection);
}

void placeBottomRight(QWidget& window) {
    const QWidget& owner = window.parentWidget() != nullptr ? *window.parentWidget() : window;
    const QRect screen = owner.screen()->geometry();
    const QSize size = sizeWithFrame(window);
    placeWindow(window, {screen.right() + 1 - size.width() - besideEdge, screen.bottom() + 1 - size.height() - aboveFoot});
}
