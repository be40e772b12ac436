// SPDX-License-Identifier: Apache-2.0
// The ways of the keyboard through the program, from wherever it stands.
//
//   F6                            between the tool strip and the window at work
//   Ctrl+F6, Ctrl+Tab             the next window; with Shift the one before
//   F5, Shift+F5, Ctrl+F5, F10    RUN, STOP, SLOW, 1-Time
//
// Qt's Tab key stays inside a window of the area, so without these the strip and the other windows were out of reach.

#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

class QKeySequence;
class frmMDI;

class WindowWalk : public QObject {
    Q_OBJECT

public:
    explicit WindowWalk(frmMDI& mainWindow);

    void toStripOrBack();
    // To the next window that is open, or for -1 the one before.
    void toWindow(int step);

private:
    void bind(const QKeySequence& keys, const std::function<void()>& action);
    QWidgetList openWindows() const;

    frmMDI& mainWindow_;
    QPointer<QWidget> beforeStrip_;  // had the keyboard when it went to the strip
};
