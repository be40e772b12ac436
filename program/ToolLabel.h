// SPDX-License-Identifier: Apache-2.0
// A label of the tool strip: a caption that takes a click or a double click and tells which by its pointer. The keyboard
// reaches it with Tab; Enter and Space are its gesture.

#pragma once

#include <QPushButton>

class ToolLabel : public QPushButton {
    Q_OBJECT

public:
    // A fast series on a label of `everyClick` is so many clicks; on one of `click` it is one.
    enum class Gesture { click, everyClick, doubleClick };

    ToolLabel(const QString& caption, Gesture gesture, QWidget* parent);

    // A label whose window is open has a green foot and the plain arrow, the others the pointer of their gesture.
    void setWindowOpen(bool open);
    bool windowOpen() const { return windowOpen_; }

signals:
    // The gesture was made.
    void activated();
    // The mouse button came up on the label, after the gesture.
    void mouseUp();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    Gesture gesture_;
    bool windowOpen_ = false;
};
