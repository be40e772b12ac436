// SPDX-License-Identifier: Apache-2.0
#include "program/ToolLabel.h"

#include "platform/HouseStyle.h"
#include "platform/ImageList.h"

#include <QKeyEvent>

ToolLabel::ToolLabel(const QString& caption, Gesture gesture, QWidget* parent) : QPushButton(caption, parent), gesture_(gesture) {
    setButtonUse(*this, ButtonUse::tool);
    setFocusPolicy(Qt::TabFocus);  // a click leaves the focus with the window at work
    setAccessibleName(caption.trimmed());
    setWindowOpen(false);
    if (gesture != Gesture::doubleClick) {
        connect(this, &QPushButton::clicked, this, &ToolLabel::activated);
    }
}

void ToolLabel::setWindowOpen(bool open) {
    windowOpen_ = open;
    const QCursor wanted = gesture_ == Gesture::doubleClick ? doubleClickPointer() : singleClickPointer();
    setCursor(open ? QCursor(Qt::ArrowCursor) : wanted);
    setAccessibleDescription(open ? QStringLiteral("open") : QString());
    setButtonFoot(*this, open);
}

void ToolLabel::keyPressEvent(QKeyEvent* event) {
    const bool gestureKey = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                            (event->key() == Qt::Key_Space && gesture_ == Gesture::doubleClick);
    if (!gestureKey) {
        QPushButton::keyPressEvent(event);
    } else if (gesture_ == Gesture::doubleClick) {
        emit activated();
    } else {
        click();
    }
}

void ToolLabel::mouseReleaseEvent(QMouseEvent* event) {
    QPushButton::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) {
        emit mouseUp();
    }
}

void ToolLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    if (gesture_ == Gesture::click) {
        event->accept();  // many people double-click everything: what the first click has opened stays open
        return;
    }
    QPushButton::mouseDoubleClickEvent(event);
    if (gesture_ == Gesture::doubleClick && event->button() == Qt::LeftButton) {
        emit activated();
    }
}
