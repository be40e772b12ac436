#include "platform/screen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

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

void placeWindow(QWidget& window, QPoint place) {
    // Before the first showing the frame isn't known yet; the size of the content is near enough.
    const QSize size = window.frameGeometry().size().expandedTo(window.sizeHint());
    window.move(keptOnScreen({place, size}).topLeft());
}
