// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchCombo.h"

#include "platform/look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>

namespace {

constexpr int boxHeight = 20;
constexpr int itemsAtOnce = 16;

}  // namespace

BenchCombo::BenchCombo(const QString& name, const QStringList& items, int width, QWidget* parent) : QComboBox(parent) {
    setObjectName(name);
    setFont(look::hexFont(11));
    addItems(items);
    setMaxVisibleItems(itemsAtOnce);
    setFixedSize(width, boxHeight);
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        // Its own list is a window for itself.
        if (now == this && before != nullptr && before->window() == window()) {
            keyboard_.remember(before);
        }
    });
    connect(this, &QComboBox::activated, this, [this] {
        if (!walking_) {
            close();
        }
    });
}

void BenchCombo::open(int listIndex) {
    setCurrentIndex(listIndex);
    view()->setTextElideMode(Qt::ElideNone);
    first_ = listIndex;
    open_ = true;
    hadFocus_ = false;
    show();
    raise();
    emit opened(true);
}

void BenchCombo::close() {
    end(hadFocus_);
}

void BenchCombo::end(bool commit) {
    if (!open_) {
        return;
    }
    // The focus goes with the box, and must not commit a second time.
    open_ = false;
    hadFocus_ = false;
    const int chosen = currentIndex();
    hidePopup();
    keyboard_.giveBack(*this, parentWidget());  // else the first part of the bench would have it
    hide();
    if (commit) {
        emit committed(chosen);
    }
    emit opened(false);
}

// A list takes over the font of its box when it is made, at the first opening. Qt's box would make it
// to hand the font on: so that step is passed by.
void BenchCombo::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange && isHidden()) {
        QWidget::changeEvent(event);  // NOLINT(bugprone-parent-virtual-call)
    } else {
        QComboBox::changeEvent(event);
    }
}

void BenchCombo::focusInEvent(QFocusEvent* event) {
    hadFocus_ = open_;
    QComboBox::focusInEvent(event);
}

void BenchCombo::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    // The list that drops down takes the focus for itself, on some desktops as a window of its own.
    if (event->reason() != Qt::PopupFocusReason && !view()->isVisible()) {
        end(hadFocus_);
    }
}

void BenchCombo::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape:
            setCurrentIndex(first_);
            close();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter: close(); break;
        default:
            // The arrow keys choose item after item, and none of them is the last word.
            walking_ = true;
            QComboBox::keyPressEvent(event);
            walking_ = false;
    }
}

void BenchCombo::wheelEvent(QWheelEvent* event) {
    // Only for the one at work: the wheel also scrolls and zooms the bench.
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
