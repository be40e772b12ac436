// SPDX-License-Identifier: Apache-2.0
#include "aids/views/frmMessage.h"

#include "platform/look.h"
#include "platform/screen.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int seconds = 2;
constexpr int border = 2;            // between label and edge
constexpr int pointerClearance = 3;  // between pointer and popup, beside the popup's own height
constexpr int sidePadding = 11;
constexpr int topPadding = 5;

}  // namespace

frmMessage::frmMessage(QWidget* owner)
    : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus), lblMessage_(new QLabel(this)) {
    setObjectName("frmMessage");
    setAttribute(Qt::WA_ShowWithoutActivating);
    lblMessage_->setObjectName("lblMessage");
    lblMessage_->setFont(look::textFont(14));
    lblMessage_->setTextFormat(Qt::PlainText);
    lblMessage_->setContentsMargins(sidePadding, topPadding, sidePadding, topPadding);
    lblMessage_->move(border, border);
    timErase_.setEnabled(false);
    timErase_.setInterval(1000);
    connect(&timErase_, &Timer::timeout, this, &frmMessage::timErase_Timer);
}

void frmMessage::popup(const QString& text, QPoint point) {
    lblMessage_->setText(text);
    setAccessibleName(text);
    lblMessage_->adjustSize();
    resize(lblMessage_->size() + QSize(2 * border, 2 * border));
    const QPoint place(point.x() - width() / 2, point.y() + pointerClearance + height());
    move(keptOnScreen({place, size()}).topLeft());
    secondsLeft_ = seconds;
    show();
    raise();
    timErase_.setEnabled(true);  // and the first second starts anew
    emit appeared(text);
}

QString frmMessage::text() const {
    return lblMessage_->text();
}

void frmMessage::timErase_Timer() {
    if (secondsLeft_ <= 0) {
        return;
    }
    if (--secondsLeft_ == 0) {
        timErase_.setEnabled(false);
        hide();
    }
}

void frmMessage::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        secondsLeft_ = 1;
        timErase_Timer();
    }
}

void frmMessage::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    look::paintPanel(painter, rect(), look::popupFace, look::popupLine);
}
