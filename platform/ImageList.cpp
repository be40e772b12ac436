#include "platform/ImageList.h"

#include <QDir>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr QPoint pointerTip{4, 3};
constexpr int largestScale = 3;

}  // namespace

QPixmap ImageList::image(int number, qreal devicePixelRatio) const {
    const int scale = std::clamp(static_cast<int>(std::ceil(devicePixelRatio)), 1, largestScale);
    const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
    QPixmap picture;
    // The file's own "@2x" says nothing here: the ratio is set by hand.
    if (picture.load(QStringLiteral(":/images/%1-%2%3.png").arg(name_).arg(number).arg(suffix))) {
        picture.setDevicePixelRatio(scale);
    }
    return picture;
}

QCursor ImageList::cursor(int number, QPoint hotSpot) const {
    return QCursor(image(number, qApp->devicePixelRatio()), hotSpot.x(), hotSpot.y());
}

QCursor singleClickPointer() {
    return ImageList(QStringLiteral("ilsMouse")).cursor(1, pointerTip);
}

QCursor doubleClickPointer() {
    return ImageList(QStringLiteral("ilsMouse")).cursor(2, pointerTip);
}

QIcon programIcon() {
    QIcon icon;
    for (const QString& name : QDir(QStringLiteral(":/icons")).entryList()) {
        icon.addFile(QStringLiteral(":/icons/") + name);
    }
    return icon;
}
