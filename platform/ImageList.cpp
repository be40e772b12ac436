// SPDX-License-Identifier: Apache-2.0
#include "platform/ImageList.h"

#include "platform/browser.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QResource>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr QPoint pointerTip{4, 3};
constexpr int largestScale = 3;

// The resource holds plain pixels, written when building: width, height, whether nothing shines through, then premultiplied ARGB,
// all low byte first. A decoder of pictures would take a quarter of the program's start. Pictures of the usual size are not even
// packed: they are painted from where the program lies in memory. Null if there is no such resource.
QPixmap plainPicture(const QString& path) {
    constexpr qsizetype headSize = 12;
    const QResource resource(path);
    const bool packed = resource.compressionAlgorithm() != QResource::NoCompression;
    const QByteArray bytes = packed ? resource.uncompressedData()
                                    : QByteArray::fromRawData(reinterpret_cast<const char*>(resource.data()), static_cast<qsizetype>(resource.size()));
    if (bytes.size() < headSize) {
        return {};
    }
    const auto word = [&bytes](qsizetype number) { return qFromLittleEndian<qint32>(bytes.constData() + 4 * number); };
    const QSize size(word(0), word(1));
    const QImage::Format format = word(2) != 0 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
    if (bytes.size() != headSize + qsizetype{4} * size.width() * size.height()) {
        return {};
    }
    const char* pixels = bytes.constData() + headSize;
    const bool asTheyLie =
        !packed && QSysInfo::ByteOrder == QSysInfo::LittleEndian && reinterpret_cast<std::uintptr_t>(pixels) % sizeof(QRgb) == 0;
    if (asTheyLie) {
        const QImage lying(reinterpret_cast<const uchar*>(pixels), size.width(), size.height(), format);
        return QPixmap::fromImage(lying, Qt::NoOpaqueDetection);
    }
    QImage picture(size, format);
    qFromLittleEndian<QRgb>(pixels, qsizetype{size.width()} * size.height(), picture.bits());
    return QPixmap::fromImage(std::move(picture), Qt::NoOpaqueDetection);
}

}  // namespace

QPixmap ImageList::image(int number, qreal devicePixelRatio) const {
    const int wanted = std::clamp(static_cast<int>(std::ceil(devicePixelRatio)), 1, largestScale);
    QPixmap picture = imageAt(number, wanted);
    if constexpr (inBrowser) {
        if (picture.isNull()) {
            page::wantPictures(name_, wanted);
        }
        for (int other = 1; picture.isNull() && other <= largestScale; ++other) {
            picture = imageAt(number, other);  // meanwhile
        }
    }
    return picture;
}

QPixmap ImageList::imageAt(int number, int scale) const {
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
        icon.addPixmap(plainPicture(QStringLiteral(":/icons/") + name));
    }
    return icon;
}
