// SPDX-License-Identifier: Apache-2.0
#include "platform/LateIcon.h"

const QIcon& LateIcon::icon() {
    if (make_) {
        icon_ = make_();
        make_ = nullptr;
    }
    return icon_;
}

void LateIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QPixmap LateIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    return icon().pixmap(size, 1, mode, state);
}

QPixmap LateIcon::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) {
    return icon().pixmap(size / scale, scale, mode, state);
}

QSize LateIcon::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    return icon().actualSize(size, mode, state);
}

QList<QSize> LateIcon::availableSizes(QIcon::Mode mode, QIcon::State state) {
    return icon().availableSizes(mode, state);
}

QIconEngine* LateIcon::clone() const {
    return new LateIcon(*this);
}
