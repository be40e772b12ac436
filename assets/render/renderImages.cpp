// Renders one image list: the SVG source of an image list is a strip of equally wide cells, one per image, and each cell
// holds one element "image-1", "image-2", ... The pictures come out as PNG at 1x, 2x and 3x, so that the program itself
// needs no SVG renderer.
//
//     renderImages SOURCE.svg OUTPUT-FOLDER
//
// writes OUTPUT-FOLDER/SOURCE-<n>.png, SOURCE-<n>@2x.png and SOURCE-<n>@3x.png. Exit code 1 and a line on stderr when the
// source can't be read, holds no image, or a picture can't be written.

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

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

QImage renderCell(QSvgRenderer& source, const QRectF& cell, int scale) {
    QImage picture((cell.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    source.setViewBox(cell);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    source.render(&painter, QRectF(QPointF(0, 0), QSizeF(picture.size())));
    return picture;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        return fail(QStringLiteral("expected SOURCE.svg and OUTPUT-FOLDER"));
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
    for (int image = 1; image <= count; ++image) {
        const QRectF cell(strip.left() + width * (image - 1), strip.top(), width, strip.height());
        for (const int scale : {1, 2, 3}) {
            const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
            const QString file = QDir(arguments[2]).filePath(QStringLiteral("%1-%2%3.png").arg(name).arg(image).arg(suffix));
            if (!renderCell(source, cell, scale).save(file)) {
                return fail(file + QStringLiteral(" can't be written"));
            }
        }
    }
    return 0;
}
