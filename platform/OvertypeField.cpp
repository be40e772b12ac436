// SPDX-License-Identifier: Apache-2.0
#include "platform/OvertypeField.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>

namespace {

bool isHexDigit(QChar c) {
    return QStringLiteral("0123456789abcdefABCDEF").contains(c);
}

}  // namespace

OvertypeField::OvertypeField(Case letters, QWidget* parent) : QLineEdit(parent), letters_(letters) {
    setAttribute(Qt::WA_InputMethodEnabled, false);  // digits come from the keys as they are
    setDragEnabled(false);
    setAcceptDrops(false);
}

void OvertypeField::setValue(const QString& text) {
    setText(text);
    select(0);
}

void OvertypeField::select(int place) {
    place_ = std::clamp(place, 0, std::max(0, static_cast<int>(text().size()) - 1));
    setSelection(place_, 1);
}

void OvertypeField::overtype(const QString& typed) {
    QString value = text();
    for (const QChar c : typed) {
        if (!isHexDigit(c) || place_ >= value.size()) {
            continue;
        }
        value[place_] = letters_ == Case::upper ? c.toUpper() : c;
        place_ = std::min(place_ + 1, static_cast<int>(value.size()) - 1);
    }
    const int place = place_;
    setText(value);
    select(place);
}

void OvertypeField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    select(0);
}

void OvertypeField::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(text());
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        overtype(QGuiApplication::clipboard()->text());
        return;
    }
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Backspace: select(place_ - 1); return;
        case Qt::Key_Right: select(place_ + 1); return;
        case Qt::Key_Home: select(0); return;
        case Qt::Key_End: select(static_cast<int>(text().size()) - 1); return;
        case Qt::Key_Delete:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: return;
        default: break;
    }
    const bool character = !event->text().isEmpty() && event->text().front().isPrint();
    const bool shortcut = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (character && !shortcut) {
        overtype(event->text());
        return;
    }
    event->ignore();  // Return, Escape and the access keys are the dialog's
}

void OvertypeField::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    select(cursorPosition());
}

void OvertypeField::mouseMoveEvent(QMouseEvent* event) {
    event->accept();  // no selection of several characters by dragging
}

void OvertypeField::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

void OvertypeField::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);  // a second click is a click
}

void OvertypeField::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();  // its Cut and Delete would break the length
}

void OvertypeField::dropEvent(QDropEvent* event) {
    event->ignore();
}
