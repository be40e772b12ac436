// SPDX-License-Identifier: Apache-2.0
#include "program/DeskArea.h"

#include "platform/look.h"

#include <QPainter>

namespace {

constexpr int lineSize = 14;
constexpr int aboveFoot = 14;

}  // namespace

DeskArea::DeskArea(QWidget* parent) : QMdiArea(parent) {
    setBackground(QColor::fromRgb(look::workspace));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    // When a window goes, the one that was at work before it is at work again, and no other.
    setActivationOrder(ActivationHistoryOrder);
}

void DeskArea::paintEvent(QPaintEvent* event) {
    QMdiArea::paintEvent(event);
    QPainter painter(viewport());
    painter.setFont(look::textFont(lineSize));
    painter.setPen(QColor::fromRgb(look::secondInk));
    painter.drawText(viewport()->rect().adjusted(aboveFoot, 0, 0, -aboveFoot), Qt::AlignLeft | Qt::AlignBottom,
                     QStringLiteral("はじめての方は、右上の \"Navigator\" をダブルクリックしてください。"));
}
