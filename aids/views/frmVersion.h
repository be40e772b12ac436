// SPDX-License-Identifier: Apache-2.0
// The start and version panel: what this program is, its warning, and while the program starts a progress bar. It closes by
// itself after three seconds or at a click, but never while the start-up is under way.

#pragma once

#include "core/mduMain.h"
#include "platform/Timer.h"

#include <QWidget>

#include <array>

class QLabel;

class frmVersion : public QWidget {
    Q_OBJECT

public:
    explicit frmVersion(const Machine& machine);

    // Shows the message line and the empty progress bar.
    void showProcess();
    // One step of the start-up display.
    void showProgress(const QString& text);
    // Shows the panel, topmost and in the middle of the screen, for three seconds.
    void open();
    // Closes the panel as a click does.
    void hideVersion();

    Timer& timTimer() { return timTimer_; }

signals:
    // The panel has closed and may be unloaded.
    void closed();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    // The panel looks the same with the keyboard and without.
    void focusInEvent(QFocusEvent* /*event*/) override {}
    void focusOutEvent(QFocusEvent* /*event*/) override {}

private:
    void makeTexts();
    void makeProgress();
    void startSeconds();
    void timTimer_Timer();

    const Machine& machine_;
    Timer timTimer_;
    int versionSeconds_ = 0;
    int progressStep_ = 0;
    QWidget* picProgress_ = nullptr;
    std::array<QLabel*, 2> lblProcess_{};  // 0 the message line, 1 the bar on top of it
};
