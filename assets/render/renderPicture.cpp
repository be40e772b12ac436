// SPDX-License-Identifier: Apache-2.0
// Renders one drawing for the folders beside the program.
//
//     renderPicture SOURCE.svg OUTPUT-FOLDER NAME.BMP
//     renderPicture OUTPUT-FOLDER/NAME.BMP
//
// The first writes OUTPUT-FOLDER/NAME.BMP with 256 colours, plain because a packed one takes longer to read, and NAME@2x.png
// of twice its size, with 256 colours of its own, for screens of high resolution. The second says how far the two are apart. Exit
// code 1 and a line on stderr when the source can't be read, a picture can't be written, or the two don't show the same colours.

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <libimagequant.h>
#include <memory>
#include <vector>

namespace {

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

// --- the palette ---------------------------------------------------------------------------------------------------------------

template <auto destroy>
struct Destroyed {
    template <typename Part>
    void operator()(Part* part) const {
        destroy(part);
    }
};
using Attributes = std::unique_ptr<liq_attr, Destroyed<liq_attr_destroy>>;
using Pixels = std::unique_ptr<liq_image, Destroyed<liq_image_destroy>>;
using Result = std::unique_ptr<liq_result, Destroyed<liq_result_destroy>>;

// The 256 colours that come closest to what the picture has, the rare and strong ones too: a red word, a lit lamp. Without
// dithering, which would put dots into the paper. Null when there is no memory.
QImage withPalette(const QImage& picture) {
    const QImage pixels = picture.convertToFormat(QImage::Format_RGBA8888);
    const Attributes attributes(liq_attr_create());
    if (!attributes) {
        return {};
    }
    const Pixels source(liq_image_create_rgba(attributes.get(), pixels.constBits(), pixels.width(), pixels.height(), 0));
    liq_result* found = nullptr;
    if (!source || liq_image_quantize(source.get(), attributes.get(), &found) != LIQ_OK) {
        return {};
    }
    const Result result(found);
    liq_set_dithering_level(result.get(), 0);
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    std::vector<uchar*> rows;
    rows.reserve(static_cast<std::size_t>(indexed.height()));
    for (int y = 0; y < indexed.height(); ++y) {
        rows.push_back(indexed.scanLine(y));
    }
    if (liq_write_remapped_image_rows(result.get(), source.get(), rows.data()) != LIQ_OK) {
        return {};
    }
    const liq_palette& palette = *liq_get_palette(result.get());
    QList<QRgb> colours;
    for (unsigned entry = 0; entry < palette.count; ++entry) {
        const liq_color& colour = palette.entries[entry];
        colours.append(qRgb(colour.r, colour.g, colour.b));
    }
    indexed.setColorTable(colours);
    return indexed;
}

// --- how far the two sizes are apart -------------------------------------------------------------------------------------------
//
// Both are drawn from one source, but each has its own palette. The large one is halved, and the mean colours of patches of 8 x 8
// pixels are compared: about a letter, the least of which the eye tells a colour and not only an edge. Only hue and chroma count,
// weighed as in CIE94, which forgives more in strong colours than in grey: lightness differs along every letter anyway, since a
// font falls differently into the pixels of each size. About 1 is the least that the eye notices side by side. In full colour the
// worst patch of any picture is at 2.9 (bold red words), while a red word that has turned olive is at 10 to 27 and a lamp that
// has turned grey at 8 and more.

constexpr int patch = 8;
constexpr double forgiven = 4;

// The mean colours of all patches of a picture.
class PatchMeans {
public:
    explicit PatchMeans(const QImage& picture) : width_(picture.width() + 1) {
        sums_.resize(static_cast<std::size_t>(width_) * (static_cast<std::size_t>(picture.height()) + 1));
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QRgb colour = picture.pixel(x, y);
                const std::array<int, 3> parts{qRed(colour), qGreen(colour), qBlue(colour)};
                for (std::size_t part = 0; part < parts.size(); ++part) {
                    sum(x + 1, y + 1)[part] = parts[part] + sum(x, y + 1)[part] + sum(x + 1, y)[part] - sum(x, y)[part];
                }
            }
        }
    }

    // Red, green and blue, 0 to 1, of the patch that begins at x, y.
    std::array<double, 3> at(int x, int y) {
        std::array<double, 3> mean{};
        for (std::size_t part = 0; part < mean.size(); ++part) {
            const int total =
                sum(x + patch, y + patch)[part] - sum(x, y + patch)[part] - sum(x + patch, y)[part] + sum(x, y)[part];
            mean[part] = total / (255.0 * patch * patch);
        }
        return mean;
    }

private:
    std::array<int, 3>& sum(int x, int y) {
        return sums_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)];
    }

    int width_;
    std::vector<std::array<int, 3>> sums_;
};

// Green to red and blue to yellow of the CIELAB space.
std::array<double, 2> chromaOf(const std::array<double, 3>& colour) {
    std::array<double, 3> light{};
    std::transform(colour.begin(), colour.end(), light.begin(),
                   [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); });
    const auto& [red, green, blue] = light;
    const auto response = [](double part) { return part > 216.0 / 24389 ? std::cbrt(part) : (24389.0 / 27 * part + 16) / 116; };
    const double x = response((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.9505);
    const double y = response(0.2126 * red + 0.7152 * green + 0.0722 * blue);
    const double z = response((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.089);
    return {500 * (x - y), 200 * (y - z)};
}

double distance(const std::array<double, 2>& a, const std::array<double, 2>& b) {
    const double chroma = std::hypot(b[0], b[1]);
    const double more = std::hypot(a[0], a[1]) - chroma;
    const double hue = std::sqrt(std::max(0.0, std::pow(a[0] - b[0], 2) + std::pow(a[1] - b[1], 2) - more * more));
    return std::hypot(more / (1 + 0.045 * chroma), hue / (1 + 0.015 * chroma));
}

struct Difference {
    double most = 0;
    QPoint where;
};

Difference differenceOf(const QImage& small, const QImage& large) {
    PatchMeans one(small);
    PatchMeans two(large.scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    Difference worst;
    for (int y = 0; y + patch <= small.height(); y += 2) {
        for (int x = 0; x + patch <= small.width(); x += 2) {
            if (const double away = distance(chromaOf(one.at(x, y)), chromaOf(two.at(x, y))); away > worst.most) {
                worst = {away, {x, y}};
            }
        }
    }
    return worst;
}

// Reads both sizes as a window does.
int compare(const QString& bitmap, const QString& large, bool speak) {
    const QImage small(bitmap);
    const QImage twice(large);
    if (small.isNull() || twice.size() != 2 * small.size()) {
        return fail(QStringLiteral("%1 or %2 can't be read").arg(bitmap, large));
    }
    const Difference found =
        differenceOf(small.convertToFormat(QImage::Format_RGB32), twice.convertToFormat(QImage::Format_RGB32));
    const QString figure =
        QStringLiteral("%1 %2 at %3, %4").arg(bitmap).arg(found.most, 0, 'f', 2).arg(found.where.x()).arg(found.where.y());
    if (speak) {
        QTextStream(stdout) << figure << '\n';
    }
    return found.most <= forgiven ? 0 : fail(figure + QStringLiteral(": its colours are not those of the large picture"));
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const bool drawing = arguments.size() == 4;
    if (!drawing && arguments.size() != 2) {
        return fail(QStringLiteral("expected SOURCE.svg, OUTPUT-FOLDER and NAME.BMP, or NAME.BMP alone"));
    }
    const QFileInfo bitmap(drawing ? QDir(arguments[2]).filePath(arguments[3]) : arguments[1]);
    const QString large = bitmap.dir().filePath(bitmap.completeBaseName() + QStringLiteral("@2x.png"));
    if (drawing) {
        QSvgRenderer source(arguments[1]);
        if (!source.isValid()) {
            return fail(arguments[1] + QStringLiteral(" can't be read"));
        }
        if (!withPalette(render(source, 1)).save(bitmap.filePath(), "BMP")) {
            return fail(bitmap.filePath() + QStringLiteral(" can't be written"));
        }
        constexpr int smallest = 0;  // packed as well as can be
        if (!withPalette(render(source, 2)).save(large, "PNG", smallest)) {
            return fail(large + QStringLiteral(" can't be written"));
        }
    }
    const int result = compare(bitmap.filePath(), large, !drawing);
    if (drawing && result != 0) {
        // Left behind, they would look finished to the next build.
        QFile::remove(bitmap.filePath());
        QFile::remove(large);
    }
    return result;
}
