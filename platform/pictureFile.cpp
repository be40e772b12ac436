// SPDX-License-Identifier: Apache-2.0
#include "platform/pictureFile.h"

#include "platform/wholeFile.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>

#include <optional>

namespace {

constexpr int largestSide = 4096;
constexpr std::size_t largestFile = std::size_t{largestSide} * largestSide * 4 + 4096;  // no more than its pixels and a heading

// A reader that takes one format and no other.
class Reader {
public:
    Reader(const std::string& bytes, PictureFormat format)
        : bytes_(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()))), buffer_(&bytes_) {
        buffer_.open(QIODevice::ReadOnly);
        reader_.setAutoDetectImageFormat(false);
        reader_.setFormat(format == PictureFormat::bmp ? "bmp" : "png");
        reader_.setDevice(&buffer_);
    }

    // As the heading tells it, which costs nothing; not valid when the bytes are no such picture.
    QSize size() { return reader_.canRead() ? reader_.size() : QSize(); }
    QImage read() { return reader_.read(); }

private:
    QByteArray bytes_;
    QBuffer buffer_;
    QImageReader reader_;
};

bool tooLarge(QSize size) {
    return size.width() > largestSide || size.height() > largestSide;
}

// The companion, where there is one that fits.
QImage twiceAsLarge(const std::filesystem::path& file, QSize size) {
    const QFileInfo info(textOfPath(file));
    const QFileInfo twice(info.dir().filePath(info.completeBaseName() + "@2x.png"));
    std::string bytes;
    if (!twice.isFile() || twice.lastModified() < info.lastModified() ||
        readWholeFile(pathOf(twice.filePath()), largestFile, bytes) || Reader(bytes, PictureFormat::png).size() != 2 * size) {
        return {};
    }
    QImage picture = decodePicture(bytes, PictureFormat::png);
    picture.setDevicePixelRatio(2);
    return picture;
}

}  // namespace

QImage decodePicture(const std::string& bytes, PictureFormat format) {
    Reader reader(bytes, format);
    const QSize size = reader.size();
    return size.isEmpty() || tooLarge(size) ? QImage() : reader.read();
}

Picture loadPicture(const std::filesystem::path& folder, const QString& name, qreal screenRatio) {
    const auto none = [&name](const char* why) { return Picture{{}, name + QString::fromUtf8(why)}; };
    if (name.isEmpty()) {
        return none("画像のファイル名がありません。");
    }
    if (!staysInFolder(name)) {
        return none(" はフォルダの外のファイルです。");
    }
    const std::filesystem::path file = fileInFolder(folder, name);
    if (file.empty()) {
        return none(" が見つかりません。");
    }
    std::string bytes;
    if (const std::error_code error = readWholeFile(file, largestFile, bytes)) {
        return none(error == std::errc::file_too_large ? " は大きすぎます。" : " を読めません。");
    }
    const QSize size = Reader(bytes, PictureFormat::bmp).size();
    if (tooLarge(size)) {
        return none(" は大きすぎます。");
    }
    QImage picture = screenRatio > 1 && !size.isEmpty() ? twiceAsLarge(file, size) : QImage();
    if (picture.isNull()) {
        picture = decodePicture(bytes, PictureFormat::bmp);
    }
    return picture.isNull() ? none(" は BMP 形式の画像として読めません。") : Picture{picture, {}};
}
