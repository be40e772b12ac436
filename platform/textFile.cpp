#include "platform/textFile.h"

#include "platform/paths.h"

#include <QFile>
#include <QStringDecoder>

namespace {

constexpr qint64 largestFile = qint64{4} * 1024 * 1024;

// The text, if all of its bytes are of this encoding.
std::optional<QString> decoded(QStringDecoder decoder, const QByteArray& bytes) {
    if (!decoder.isValid()) {
        return std::nullopt;
    }
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

}  // namespace

std::optional<std::string> readTextFile(const std::filesystem::path& path) {
    if (path.empty()) {
        return std::nullopt;
    }
    QFile file(textOfPath(path));
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile) {
        return std::nullopt;
    }
    const QByteArray bytes = file.read(largestFile);
    // A text that is both is ASCII, and the same in both.
    auto text = decoded(QStringDecoder(QStringDecoder::Utf8), bytes);
    if (!text) {
        text = decoded(QStringDecoder("Shift_JIS"), bytes);
    }
    return (text ? *text : QString::fromUtf8(bytes)).toStdString();
}
