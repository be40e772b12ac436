// SPDX-License-Identifier: Apache-2.0
// The chooser of the memory windows: five buttons under the tool label "Memory Window". Any of them puts it away again, and the
// keyboard goes back to where it was.

#pragma once

#include "platform/KeyboardLoan.h"

#include <QFrame>

#include <array>

class QPushButton;

class frmDumpSel : public QFrame {
    Q_OBJECT

public:
    enum Choice { controlDoDi, c1ToC7, drc, memoryRead, closeAll };

    explicit frmDumpSel(QWidget* area);

    // By keyboard it begins at its first button.
    void open(QPoint place, bool byKeyboard);
    void setVisible(bool visible) override;
    QPushButton& cmdAREA(int index) { return *cmdAREA_[static_cast<std::size_t>(index)]; }

signals:
    void chosen(int choice);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void walk(int step);

    std::array<QPushButton*, 5> cmdAREA_{};
    KeyboardLoan keyboard_;
};
