// SPDX-License-Identifier: Apache-2.0
#include "tests/views/LearnersScreen.h"

#include <QMdiSubWindow>

#include <algorithm>
#include <array>

namespace {

// Of a desktop; the platform has a thin edge instead.
constexpr int titleHeight = 22;
constexpr int thinEdge = 2;

// These are placed by a point of the main window's area, and so their faces stand lower by what a title is higher than that edge.
// The others are placed by the frame of the main window, which the player has lowered by as much, or from the foot of the screen.
constexpr std::array<const char*, 7> placedByArea{"frmMemoryRead", "frmEditMemory", "frmEditSerial", "frmOsiro",
                                                  "frmDumpCDIO",   "frmDumpC17",    "frmDumpDRC"};

constexpr int step = 3;        // less than any part is wide
constexpr int titleIcon = 32;  // opens the menu
constexpr int titleButtons = 80;
constexpr int titlePiece = 30;  // wide enough to be seen and hit

constexpr int closeBoxMiddle = 15;

bool inArea(const QWidget& window) {
    return qobject_cast<const QMdiSubWindow*>(&window) != nullptr;
}

int titleMiddle(const QWidget& window) {
    return inArea(window) ? window.contentsMargins().top() / 2 : -titleHeight / 2;
}

int layerOf(const QWidget& window) {
    return window.windowFlags().testFlag(Qt::WindowStaysOnTopHint) ? 2 : window.parentWidget() != nullptr ? 1 : 0;
}

bool covers(const QWidget& window) {
    // One that went back into the area is no window of its own any more.
    return window.isVisible() && window.isWindow() && window.windowType() != Qt::ToolTip && window.windowType() != Qt::Popup;
}

// With the title that a desktop draws over it.
QRect framed(const QWidget& window) {
    return window.geometry().adjusted(0, window.windowFlags().testFlag(Qt::FramelessWindowHint) ? 0 : -titleHeight, 0, 0);
}

std::string nameOf(const QWidget* widget) {
    while (widget != nullptr && !widget->isWindow() && !inArea(*widget)) {
        widget = widget->parentWidget();
    }
    return widget == nullptr ? "the edge of the screen" : widget->windowTitle().toStdString();
}

}  // namespace

LearnersScreen::LearnersScreen(bool titles) : titles_(titles) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        order_.emplace_back(window);
    }
    qApp->installEventFilter(this);
}

bool LearnersScreen::eventFilter(QObject* watched, QEvent* event) {
    const bool forward =
        event->type() == QEvent::Show || event->type() == QEvent::ZOrderChange || event->type() == QEvent::WindowActivate;
    if (forward && watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow()) {
        auto* shown = static_cast<QWidget*>(watched);
        const bool lower = titles_ && std::count(placedByArea.begin(), placedByArea.end(), shown->objectName()) != 0;
        if (event->type() == QEvent::Show && lower) {
            shown->move(shown->pos() + QPoint(0, titleHeight - thinEdge));
        }
        std::erase_if(order_, [watched](const QPointer<QWidget>& window) { return window.isNull() || window == watched; });
        order_.emplace_back(shown);
    }
    return QObject::eventFilter(watched, event);
}

QWidget* LearnersScreen::windowAt(QPoint global) const {
    QWidget* front = nullptr;
    for (const QPointer<QWidget>& window : order_) {
        if (window != nullptr && covers(*window) && framed(*window).contains(global) &&
            (front == nullptr || layerOf(*window) >= layerOf(*front))) {
            front = window;
        }
    }
    return front;
}

QWidget* LearnersScreen::at(QPoint global) const {
    QWidget* window = windowAt(global);
    if (window == nullptr || !window->geometry().contains(global)) {
        return nullptr;
    }
    QWidget* child = window->childAt(window->mapFromGlobal(global));
    return child != nullptr ? child : window;
}

std::string LearnersScreen::over(const QWidget& widget, const QRect& rect) const {
    for (int y = rect.top();; y = std::min(y + step, rect.bottom())) {
        for (int x = rect.left();; x = std::min(x + step, rect.right())) {
            const QPoint global = widget.mapToGlobal(QPoint(x, y));
            if (const QWidget* there = at(global); there != &widget && !widget.isAncestorOf(there)) {
                return nameOf(there != nullptr ? there : windowAt(global));
            }
            if (x >= rect.right()) {
                break;
            }
        }
        if (y >= rect.bottom()) {
            return {};
        }
    }
}

bool LearnersScreen::titleSeen(const QWidget& window, int x, int width) const {
    const int y = titleMiddle(window);
    if (inArea(window)) {
        return over(window, {x, y, width, 1}).empty();
    }
    return windowAt(window.mapToGlobal(QPoint(x, y))) == &window && windowAt(window.mapToGlobal(QPoint(x + width, y))) == &window;
}

std::optional<QPoint> LearnersScreen::titleOf(const QWidget& window) const {
    for (int x = titleIcon; x + titlePiece < window.width() - titleButtons; x += step) {
        if (titleSeen(window, x, titlePiece)) {
            return window.mapToGlobal(QPoint(x + titlePiece / 2, titleMiddle(window)));
        }
    }
    return std::nullopt;
}

QPoint LearnersScreen::closeBoxOf(const QWidget& window) {
    return {window.width() - closeBoxMiddle, titleMiddle(window)};
}
