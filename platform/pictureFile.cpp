#include "platform/pictureFile.h"

#include "platform/paths.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr int largestSide = 4096;

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

QImage readPicture(const std::filesystem::path& folder, const QString& name, QString& reason) {
    reason.clear();
    const std::filesystem::path file = fileInFolder(folder, name);
    if (file.empty()) {
        reason = QStringLiteral("%1 が見つかりません。").arg(name);
        return {};
    }
    QImageReader reader(textOfPath(file));
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.width() > largestSide || size.height() > largestSide) {
        reason = QStringLiteral("%1 は大きすぎます。").arg(name);
        return {};
    }
    QImage picture = reader.read();
    if (picture.isNull()) {
        reason = QStringLiteral("%1 は画像として読めません。").arg(name);
    }
    return picture;
}
