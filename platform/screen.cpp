#include "platform/screen.h"

#include "platform/twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int besideEdge = twips(50);
constexpr int aboveFoot = twips(500);

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
    return window.size() + QSize(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

void placeWindow(QWidget& window, QPoint place) {
    window.move(keptOnScreen({place, sizeWithFrame(window)}).topLeft());
}

void placeBottomRight(QWidget& window) {
    const QWidget& owner = window.parentWidget() != nullptr ? *window.parentWidget() : window;
    const QRect screen = owner.screen()->geometry();
    const QSize size = sizeWithFrame(window);
    placeWindow(window, {screen.right() + 1 - size.width() - besideEdge, screen.bottom() + 1 - size.height() - aboveFoot});
}
