#include "program/ToolLabel.h"

#include "platform/ImageList.h"

#include <QKeyEvent>
#include <QStyle>

ToolLabel::ToolLabel(const QString& caption, Gesture gesture, QWidget* parent) : QPushButton(caption, parent), gesture_(gesture) {
    setFocusPolicy(Qt::TabFocus);  // a click leaves the focus with the window at work
    setAccessibleName(caption.trimmed());
    setWindowOpen(false);
    if (gesture == Gesture::click) {
        connect(this, &QPushButton::clicked, this, &ToolLabel::activated);
    }
}

void ToolLabel::setWindowOpen(bool open) {
    windowOpen_ = open;
    const QCursor wanted = gesture_ == Gesture::click ? singleClickPointer() : doubleClickPointer();
    setCursor(open ? QCursor(Qt::ArrowCursor) : wanted);
    setAccessibleDescription(open ? QStringLiteral("open") : QString());
    setProperty("windowOpen", open);
    style()->unpolish(this);
    style()->polish(this);
}

void ToolLabel::keyPressEvent(QKeyEvent* event) {
    const bool gestureKey = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                            (event->key() == Qt::Key_Space && gesture_ == Gesture::doubleClick);
    if (!gestureKey) {
        QPushButton::keyPressEvent(event);
    } else if (gesture_ == Gesture::click) {
        click();
    } else {
        emit activated();
    }
}

void ToolLabel::mouseReleaseEvent(QMouseEvent* event) {
    QPushButton::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) {
        emit mouseUp();
    }
}

void ToolLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    QPushButton::mouseDoubleClickEvent(event);  // the second press of a click label is a press like any other
    if (gesture_ == Gesture::doubleClick && event->button() == Qt::LeftButton) {
        emit activated();
    }
}
