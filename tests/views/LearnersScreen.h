// SPDX-License-Identifier: Apache-2.0
// The screen as the learner has it before him: which window lies in front where. The offscreen platform draws none and stacks
// none, so the order is kept here:
//
//   topmost                      tour window, message and write dialogs
//   owned by the main window     register window, read dialog, serial dialog
//   main window                  with the windows of its area, which Qt stacks
//
// In each layer the window that came up or was clicked last is in front. A popup is gone after two seconds and covers nothing.

#pragma once

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <optional>
#include <vector>

class LearnersScreen : public QObject {
public:
    // Windows get the titles that a desktop draws, or the thin edge that the platform has.
    explicit LearnersScreen(bool titles);

    // What a click at a point of the screen would find. Null on a title that the desktop draws, and where no window is.
    QWidget* at(QPoint global) const;
    // What keeps the learner from seeing a rectangle of a widget; empty where he sees it all.
    std::string over(const QWidget& widget, const QRect& rect) const;
    // Whether a piece of a window's title can be seen, of a window of the area or of the desktop.
    bool titleSeen(const QWidget& window, int x, int width) const;
    // Where a click on a window's title brings it to the front; none where the title is covered.
    std::optional<QPoint> titleOf(const QWidget& window) const;
    // The middle of its close box.
    static QPoint closeBoxOf(const QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* windowAt(QPoint global) const;

    bool titles_;
    std::vector<QPointer<QWidget>> order_;  // without the layers, the one in front last
};
