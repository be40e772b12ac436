// SPDX-License-Identifier: Apache-2.0
#include "aids/views/NaviSign.h"

#include "platform/look.h"

#include <QPainter>

namespace {

// By TourSign: for those who hear the page, and for those who wonder.
constexpr std::array<const char*, 3> texts{"", "このページの結果は、まだそろっていません。",
                                           "このページの結果を、すべて確認できました。"};

void drawSign(QPainter& painter, TourSign sign, QColor checkColour) {
    painter.setRenderHint(QPainter::Antialiasing);
    if (sign == TourSign::open) {
        painter.setPen(QPen(QColor::fromRgb(look::secondInk), 1.8));
        painter.drawEllipse(QRectF(1.5, 1.5, 10, 10));
    } else if (sign == TourSign::done) {
        painter.setPen(QPen(checkColour, 2.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({{1.7, 7.5}, {4.8, 11}, {11.3, 1.7}}));
    }
}

}  // namespace

void NaviSign::setSign(TourSign sign) {
    sign_ = sign;
    const QString text = texts[static_cast<std::size_t>(sign)];
    setAccessibleName(text);
    setToolTip(text);
    update();
}

QIcon NaviSign::icon(TourSign sign) {
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
        for (const int ratio : {1, 2, 3}) {
            QPixmap picture(size * ratio, size * ratio);
            picture.setDevicePixelRatio(ratio);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            // The bar of the selected row is green itself.
            drawSign(painter, sign, mode == QIcon::Selected ? Qt::white : QColor::fromRgb(look::brandGreen));
            painter.end();
            icon.addPixmap(picture, mode);
        }
    }
    return icon;
}

void NaviSign::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.translate(0, (height() - size) / 2.0);
    drawSign(painter, sign_, QColor::fromRgb(look::brandGreen));
}
