// SPDX-License-Identifier: Apache-2.0
#include "platform/textFile.h"

#include "platform/paths.h"
#include "platform/wholeFile.h"

#include <QStringDecoder>

namespace {

constexpr std::size_t largestFile = std::size_t{4} * 1024 * 1024;

// The text, if all of its bytes are of this encoding.
std::optional<QString> decoded(QStringDecoder decoder, const std::string& bytes) {
    if (!decoder.isValid()) {
        return std::nullopt;
    }
    QString text = decoder.decode(QByteArrayView(bytes));
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

}  // namespace

std::optional<std::string> readTextFile(const std::filesystem::path& path) {
    std::string bytes;
    if (readWholeFile(path, largestFile, bytes)) {
        return std::nullopt;
    }
    // A text that is both is ASCII, and the same in both.
    const auto marked = QStringConverter::encodingForData(bytes);
    auto text = decoded(QStringDecoder(marked.value_or(QStringConverter::Utf8)), bytes);
    if (!text) {
        text = decoded(QStringDecoder("Shift_JIS"), bytes);
    }
    return (text ? *text : QString::fromUtf8(bytes)).toStdString();
}
