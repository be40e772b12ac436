// SPDX-License-Identifier: Apache-2.0
// A field of hexadecimal digits that works by overtyping: exactly one character is always selected, a typed digit takes its
// place and the selection moves on. The field never gets longer or shorter by the keyboard.
//
//   focus                    the first character is selected
//   click                    the character at the caret, the last one behind the end
//   Left, Backspace, Right   one place, not past the ends; Home, End the ends
//   Delete, Up, Down, Page Up, Page Down   nothing
//   paste                    the hexadecimal digits of the clipboard, one after the other, as if typed

#pragma once

#include <QLineEdit>

class OvertypeField : public QLineEdit {
    Q_OBJECT

public:
    enum class Case { upper, asTyped };

    explicit OvertypeField(Case letters, QWidget* parent = nullptr);

    // Takes a new value with the first character selected.
    void setValue(const QString& text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void select(int place);
    void overtype(const QString& typed);

    Case letters_;
    int place_ = 0;
};
