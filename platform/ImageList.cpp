// SPDX-License-Identifier: Apache-2.0
#include "platform/ImageList.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QResource>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace {

constexpr QPoint pointerTip{4, 3};
constexpr int largestScale = 3;

// The resource holds plain pixels, written when building: width, height, then premultiplied ARGB, all low byte first. A decoder
// of pictures would take a quarter of the program's start. Null if there is no such resource.
QPixmap plainPicture(const QString& path) {
    constexpr qsizetype headSize = 8;
    const QByteArray bytes = QResource(path).uncompressedData();
    if (bytes.size() < headSize) {
        return {};
    }
    const QSize size(qFromLittleEndian<qint32>(bytes.constData()), qFromLittleEndian<qint32>(bytes.constData() + 4));
    if (bytes.size() != headSize + qsizetype{4} * size.width() * size.height()) {
        return {};
    }
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    qFromLittleEndian<QRgb>(bytes.constData() + headSize, qsizetype{size.width()} * size.height(), picture.bits());
    return QPixmap::fromImage(std::move(picture));
}

}  // namespace

QPixmap ImageList::image(int number, qreal devicePixelRatio) const {
    const int scale = std::clamp(static_cast<int>(std::ceil(devicePixelRatio)), 1, largestScale);
    const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
    QPixmap picture = plainPicture(QStringLiteral(":/images/%1-%2%3.argb").arg(name_).arg(number).arg(suffix));
    picture.setDevicePixelRatio(scale);
    return picture;
}

QCursor ImageList::cursor(int number, QPoint hotSpot) const {
    return QCursor(image(number, qApp->devicePixelRatio()), hotSpot.x(), hotSpot.y());
}

// Hundreds of parts wear them: each is made once.
QCursor singleClickPointer() {
    static const QCursor pointer = ImageList(QStringLiteral("ilsMouse")).cursor(1, pointerTip);
    return pointer;
}

QCursor doubleClickPointer() {
    static const QCursor pointer = ImageList(QStringLiteral("ilsMouse")).cursor(2, pointerTip);
    return pointer;
}

QIcon programIcon() {
    QIcon icon;
    for (const QString& name : QDir(QStringLiteral(":/icons")).entryList()) {
        icon.addFile(QStringLiteral(":/icons/") + name);
    }
    return icon;
}
