#include "platform/pictureFile.h"

#include "platform/paths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr int largestSide = 4096;
constexpr qint64 largestFile = qint64{largestSide} * largestSide * 4 + 4096;  // no more than its pixels and a heading

QSize sizeOf(const std::filesystem::path& file) {
    QImageReader reader(textOfPath(file));
    reader.setDecideFormatFromContent(true);
    return reader.size();
}

std::filesystem::path twiceAsLarge(const std::filesystem::path& file, QSize size) {
    const QFileInfo info(textOfPath(file));
    const QFileInfo twice(info.dir().filePath(info.completeBaseName() + "@2x.png"));
    const bool fits =
        twice.isFile() && twice.lastModified() >= info.lastModified() && sizeOf(pathOf(twice.filePath())) == 2 * size;
    return fits ? pathOf(twice.filePath()) : std::filesystem::path();
}

QString unreadable(const QString& name) {
    return QStringLiteral("%1 は画像として読めません。").arg(name);
}

}  // namespace

std::filesystem::path fileInFolder(const std::filesystem::path& folder, const QString& name) {
    const std::filesystem::path exact = folder / pathOf(QString(name).replace('\\', '/'));  // lists are written with either
    if (name.isEmpty() || QFileInfo(textOfPath(exact)).isFile()) {
        return name.isEmpty() ? std::filesystem::path() : exact;
    }
    // A name may lead into a folder below.
    const QFileInfo wanted(textOfPath(exact));
    const QStringList files = wanted.dir().entryList(QDir::Files);
    for (const QString& file : files) {
        if (file.compare(wanted.fileName(), Qt::CaseInsensitive) == 0) {
            return pathOf(wanted.dir().filePath(file));
        }
    }
    return {};
}

PictureFile loadPicture(const std::filesystem::path& folder, const QString& name, qreal screenRatio) {
    const std::filesystem::path file = fileInFolder(folder, name);
    if (file.empty()) {
        return {{},
                1,
                name.isEmpty() ? QStringLiteral("画像のファイル名がありません。")
                               : QStringLiteral("%1 が見つかりません。").arg(name)};
    }
    const QSize size = sizeOf(file);
    if (size.width() > largestSide || size.height() > largestSide || QFileInfo(textOfPath(file)).size() > largestFile) {
        return {{}, 1, QStringLiteral("%1 は大きすぎます。").arg(name)};
    }
    const std::filesystem::path twice = screenRatio > 1 ? twiceAsLarge(file, size) : std::filesystem::path();
    QFile source(textOfPath(twice.empty() ? file : twice));
    if (!source.open(QIODevice::ReadOnly)) {
        return {{}, 1, unreadable(name)};
    }
    return {source.readAll(), twice.empty() ? 1.0 : 2.0, {}};
}

QImage decodePicture(PictureFile& file, const QString& name) {
    if (!file.reason.isEmpty()) {
        return {};
    }
    QImage picture = QImage::fromData(file.bytes);
    if (picture.isNull()) {
        file.reason = unreadable(name);
        return {};
    }
    picture.setDevicePixelRatio(file.ratio);
    return picture;
}
