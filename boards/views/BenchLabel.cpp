// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchLabel.h"

#include "platform/look.h"

#include <QFontMetricsF>
#include <QPainter>

BenchLabel::BenchLabel(const LabelRow& row, QGraphicsItem* parent)
    : QGraphicsItem(parent), row_(row), font_(look::printFont(row.pixelSize)) {
    setPos(row.place);
    setAcceptedMouseButtons(Qt::NoButton);
}

bool BenchLabel::refresh(const Machine& machine) {
    const std::string_view wanted = row_.text(machine, row_.index);
    const bool visible = row_.visible == nullptr || row_.visible(machine, row_.index);
    if (wanted == text_ && visible == visible_) {
        return false;
    }
    visible_ = visible;
    setVisible(visible);
    if (wanted != text_) {
        constexpr qreal boxWidth = 40;
        constexpr qreal boxHeight = 11;
        prepareGeometryChange();
        text_ = wanted;
        const QFontMetricsF metrics(font_);
        const qreal width = metrics.horizontalAdvance(text());
        const qreal left = row_.align == Align::centre ? -width / 2 : 0;
        bounds_ = row_.boxed ? QRectF(-boxWidth / 2, -boxHeight + 2, boxWidth, boxHeight)
                             : QRectF(left, -metrics.ascent(), width + 1, metrics.height());
        update();
    }
    return true;
}

void BenchLabel::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/) {
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    if (row_.boxed) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(0xf3, 0xf7, 0xf1));
        painter->drawRoundedRect(bounds_, 1.5, 1.5);
    }
    painter->setFont(font_);
    painter->setPen(QColor::fromRgb(row_.colour));
    if (row_.boxed) {
        painter->drawText(bounds_, Qt::AlignCenter, text());
    } else {
        painter->drawText(QPointF(bounds_.left(), 0), text());
    }
}
