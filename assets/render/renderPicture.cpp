// Renders one drawing for the folders beside the program.
//
//     renderPicture SOURCE.svg OUTPUT-FOLDER NAME.BMP
//
// writes OUTPUT-FOLDER/NAME.BMP with 256 colours, its rows packed as runs, and NAME@2x.png of twice its size, with 256 colours of
// its own, for screens of high resolution. Exit code 1 and a line on stderr when the source can't be read or a picture can't be
// written.

#include <QColor>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype paletteSize = 256;

int fail(const QString& message) {
    QTextStream(stderr) << "renderPicture: " << message << '\n';
    return 1;
}

QImage render(QSvgRenderer& source, int scale) {
    QImage picture((source.viewBoxF().size() * scale).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    source.render(&painter, QRectF(QPointF(0, 0), QSizeF(picture.size())));
    return picture;
}

int distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

qsizetype nearest(const QList<QRgb>& palette, QRgb colour) {
    qsizetype best = 0;
    int least = std::numeric_limits<int>::max();
    for (qsizetype entry = 0; entry < palette.size(); ++entry) {
        if (const int away = distance(palette[entry], colour); away < least) {
            least = away;
            best = entry;
        }
    }
    return best;
}

// The drawings are flat colours with soft edges: the colours that occur most stay as they are, and only pixels of an edge move
// to a neighbour. Without dithering, which would put dots into the paper.
QImage withPalette(const QImage& picture) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    QList<QRgb> palette = counts.keys();
    // Equal counts in a fixed order: the same drawing gives the same file.
    std::sort(palette.begin(), palette.end(),
              [&](QRgb a, QRgb b) { return counts[a] != counts[b] ? counts[a] > counts[b] : a < b; });
    palette.resize(std::min(palette.size(), paletteSize));
    QHash<QRgb, uchar> entries;
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(palette);
    for (int y = 0; y < picture.height(); ++y) {
        uchar* line = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            auto entry = entries.constFind(colour);
            if (entry == entries.constEnd()) {
                entry = entries.insert(colour, static_cast<uchar>(nearest(palette, colour)));
            }
            line[x] = entry.value();
        }
    }
    return indexed;
}

// --- the bitmap file -----------------------------------------------------------------------------------------------------------

// One row as runs: a count and a colour; 0, a count and that many colours, filled up to an even number; 0 and 0 at its end. The
// hint pages lie in memory as their files do, and packed they take a tenth.
QByteArray packed(const uchar* row, int width) {
    constexpr int longest = 255;
    constexpr int worthAListOfColours = 3;  // below it, single runs are as short
    const auto runAt = [&](int x) {
        int length = 1;
        while (x + length < width && length < longest && row[x + length] == row[x]) {
            ++length;
        }
        return length;
    };
    QByteArray bytes;
    for (int x = 0; x < width;) {
        int single = 0;  // colours that are not worth a run
        while (x + single < width && single < longest && runAt(x + single) < worthAListOfColours) {
            ++single;
        }
        if (single >= worthAListOfColours) {
            bytes.append('\0').append(static_cast<char>(single));
            bytes.append(reinterpret_cast<const char*>(row) + x, single);
            if (single % 2 != 0) {
                bytes.append('\0');
            }
            x += single;
            continue;
        }
        const int run = runAt(x);
        bytes.append(static_cast<char>(run)).append(static_cast<char>(row[x]));
        x += run;
    }
    return bytes.append('\0').append('\0');
}

QByteArray bitmapFile(const QImage& picture) {
    constexpr quint32 fileHead = 14;
    constexpr quint32 pictureHead = 40;
    constexpr quint32 asRuns = 1;
    QByteArray rows;
    for (int y = picture.height() - 1; y >= 0; --y) {
        rows += packed(picture.constScanLine(y), picture.width());
    }
    rows.append('\0').append('\1');  // the end
    const auto colours = static_cast<quint32>(picture.colorCount());
    const quint32 start = fileHead + pictureHead + 4 * colours;
    const auto length = static_cast<quint32>(rows.size());
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("BM", 2);
    out << start + length << quint32(0) << start;
    out << pictureHead << picture.width() << picture.height() << quint16(1) << quint16(8) << asRuns << length;
    out << qint32(0) << qint32(0) << colours << quint32(0);
    for (const QRgb colour : picture.colorTable()) {
        out << (colour & RGB_MASK);
    }
    out.writeRawData(rows.constData(), static_cast<int>(rows.size()));
    return bytes;
}

bool writeBitmap(const QString& path, const QImage& picture) {
    const QByteArray bytes = bitmapFile(picture);
    // What a reader makes of it is what was drawn.
    if (QImage::fromData(bytes, "BMP").convertToFormat(QImage::Format_RGB32) != picture.convertToFormat(QImage::Format_RGB32)) {
        return false;
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        return fail(QStringLiteral("expected SOURCE.svg, OUTPUT-FOLDER and NAME.BMP"));
    }
    QSvgRenderer source(arguments[1]);
    if (!source.isValid()) {
        return fail(arguments[1] + QStringLiteral(" can't be read"));
    }
    const QDir folder(arguments[2]);
    const QString bitmap = folder.filePath(arguments[3]);
    const QString large = folder.filePath(QFileInfo(arguments[3]).completeBaseName() + QStringLiteral("@2x.png"));
    if (!writeBitmap(bitmap, withPalette(render(source, 1)))) {
        return fail(bitmap + QStringLiteral(" can't be written"));
    }
    if (!withPalette(render(source, 2)).save(large, "PNG")) {
        return fail(large + QStringLiteral(" can't be written"));
    }
    return 0;
}
