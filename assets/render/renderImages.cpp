// SPDX-License-Identifier: Apache-2.0
// Renders one image list: the SVG source of an image list is a strip of equally wide cells, one per image, and each cell
// holds one element "image-1", "image-2", ... The pictures come out at 1x, 2x and 3x, so that the program itself needs no SVG
// renderer, and as plain pixels, so that it needs no decoder either: width, height and 1 for a picture that nothing shines
// through (else 0) as 32-bit numbers, low byte first, then the rows from the top, each pixel as blue, green, red and alpha, the
// colours multiplied by alpha. What packs them is the compression of the resources.
//
//     renderImages SOURCE.svg OUTPUT-FOLDER
//     renderImages SOURCE.svg OUTPUT-FOLDER SIZE...
//
// The first writes OUTPUT-FOLDER/SOURCE-<n>.argb, SOURCE-<n>@2x.argb and SOURCE-<n>@3x.argb. The second makes icons of the first
// cell: SOURCE-<size>.png and SOURCE-<size>.argb for each size, SOURCE.ico for Windows and SOURCE.icns for macOS. Exit code 1 and
// a line on stderr when the source can't be read, holds no image, or a file can't be written.

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

namespace {

int fail(const QString& message) {
    QTextStream(stderr) << "renderImages: " << message << '\n';
    return 1;
}

int countImages(const QSvgRenderer& source) {
    int count = 0;
    while (source.elementExists(QStringLiteral("image-%1").arg(count + 1))) {
        ++count;
    }
    return count;
}

QImage renderCell(QSvgRenderer& source, const QRectF& cell, QSize size) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    source.setViewBox(cell);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    source.render(&painter, QRectF(QPointF(0, 0), QSizeF(picture.size())));
    return picture;
}

bool writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool isOpaque(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (std::any_of(row, row + picture.width(), [](QRgb pixel) { return qAlpha(pixel) != 255; })) {
            return false;
        }
    }
    return true;
}

QByteArray plainPixels(const QImage& picture) {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << static_cast<quint32>(picture.width()) << static_cast<quint32>(picture.height())
        << static_cast<quint32>(isOpaque(picture));
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        std::for_each(row, row + picture.width(), [&out](QRgb pixel) { out << pixel; });
    }
    return bytes;
}

// An icon: its side in pixels and its PNG file.
struct Icon {
    int side;
    QByteArray png;
};

// A directory of the pictures, then the pictures.
QByteArray icoOf(const std::vector<Icon>& icons) {
    constexpr int headSize = 6;
    constexpr int rowSize = 16;
    constexpr int largestSide = 256;  // written as 0
    std::vector<Icon> kept;
    std::copy_if(icons.begin(), icons.end(), std::back_inserter(kept), [](const Icon& icon) { return icon.side <= largestSide; });
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << static_cast<quint16>(kept.size());
    auto offset = static_cast<quint32>(headSize + rowSize * static_cast<int>(kept.size()));
    for (const Icon& icon : kept) {
        const auto side = static_cast<quint8>(icon.side % largestSide);
        const auto length = static_cast<quint32>(icon.png.size());
        out << side << side << quint8(0) << quint8(0) << quint16(1) << quint16(32) << length << offset;
        offset += length;
    }
    for (const Icon& icon : kept) {
        out.writeRawData(icon.png.constData(), static_cast<int>(icon.png.size()));
    }
    return bytes;
}

// Pictures one after another, each with its kind and length. The kinds stand for sides; "ic12" is 32 points at 2x.
QByteArray icnsOf(const std::vector<Icon>& icons) {
    constexpr int headSize = 8;
    using Kind = std::pair<int, const char*>;
    constexpr std::array<Kind, 6> kinds{Kind{16, "icp4"}, {32, "icp5"},  {64, "ic12"},
                                        {128, "ic07"},    {256, "ic08"}, {512, "ic09"}};
    QByteArray pictures;
    QDataStream out(&pictures, QIODevice::WriteOnly);
    for (const auto& [side, kind] : kinds) {
        for (const Icon& icon : icons) {
            if (icon.side == side) {
                out.writeRawData(kind, 4);
                out << static_cast<quint32>(headSize + icon.png.size());
                out.writeRawData(icon.png.constData(), static_cast<int>(icon.png.size()));
            }
        }
    }
    QByteArray head;
    QDataStream(&head, QIODevice::WriteOnly) << quint32(0x69636e73) << static_cast<quint32>(headSize + pictures.size());
    return head + pictures;
}

int makeIcons(QSvgRenderer& source, const QRectF& cell, const QString& pathWithoutEnd, const QStringList& sizes) {
    std::vector<Icon> icons;
    for (const QString& size : sizes) {
        const int side = size.toInt();
        if (side <= 0) {
            return fail(size + QStringLiteral(" is no size"));
        }
        Icon icon{side, {}};
        QBuffer buffer(&icon.png);
        buffer.open(QIODevice::WriteOnly);
        const QString file = QStringLiteral("%1-%2.png").arg(pathWithoutEnd).arg(side);
        const QImage picture = renderCell(source, cell, QSize(side, side));
        if (!picture.save(&buffer, "PNG") || !writeFile(file, icon.png) ||
            !writeFile(QStringLiteral("%1-%2.argb").arg(pathWithoutEnd).arg(side), plainPixels(picture))) {
            return fail(file + QStringLiteral(" or its plain pixels can't be written"));
        }
        icons.push_back(icon);
    }
    if (!writeFile(pathWithoutEnd + ".ico", icoOf(icons)) || !writeFile(pathWithoutEnd + ".icns", icnsOf(icons))) {
        return fail(pathWithoutEnd + QStringLiteral(".ico or .icns can't be written"));
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3) {
        return fail(QStringLiteral("expected SOURCE.svg, OUTPUT-FOLDER and maybe sizes"));
    }
    QSvgRenderer source(arguments[1]);
    if (!source.isValid()) {
        return fail(arguments[1] + QStringLiteral(" can't be read"));
    }
    const int count = countImages(source);
    if (count == 0) {
        return fail(arguments[1] + QStringLiteral(" holds no element image-1"));
    }
    const QRectF strip = source.viewBoxF();
    const qreal width = strip.width() / count;
    const QString name = QFileInfo(arguments[1]).baseName();
    if (arguments.size() > 3) {
        const QRectF first(strip.left(), strip.top(), width, strip.height());
        return makeIcons(source, first, QDir(arguments[2]).filePath(name), arguments.mid(3));
    }
    for (int image = 1; image <= count; ++image) {
        const QRectF cell(strip.left() + width * (image - 1), strip.top(), width, strip.height());
        for (const int scale : {1, 2, 3}) {
            const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
            const QString file = QDir(arguments[2]).filePath(QStringLiteral("%1-%2%3.argb").arg(name).arg(image).arg(suffix));
            if (!writeFile(file, plainPixels(renderCell(source, cell, (cell.size() * scale).toSize())))) {
                return fail(file + QStringLiteral(" can't be written"));
            }
        }
    }
    return 0;
}
