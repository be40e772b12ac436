// SPDX-License-Identifier: Apache-2.0
// The popup: a short yellow notice that goes away by itself after two seconds, or at a click. There is one; the next text
// takes the place of the one before. It never takes the keyboard away from the window at work.

#pragma once

#include "platform/Timer.h"

#include <QWidget>

class QLabel;

class frmMessage : public QWidget {
    Q_OBJECT

public:
    explicit frmMessage(QWidget* owner);

    // Shows the text below `point`, centered on it, wholly on the screen.
    void popup(const QString& text, QPoint point);
    QString text() const;
    Timer& timErase() { return timErase_; }

signals:
    void appeared(const QString& text);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void timErase_Timer();

    QLabel* lblMessage_;
    Timer timErase_;
    int secondsLeft_ = 0;
};
