// SPDX-License-Identifier: Apache-2.0
#include "platform/textFile.h"

#include "platform/browser.h"
#include "platform/paths.h"
#include "platform/wholeFile.h"

#include <QStringDecoder>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

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

std::optional<QString> decodedShiftJis(const std::string& bytes) {
    if constexpr (inBrowser) {
        QString text = page::decoded(bytes, "shift_jis");
        return text.contains(QChar::ReplacementCharacter) ? std::nullopt : std::optional(std::move(text));
    }
#ifdef Q_OS_WIN
    // Qt has no table of its own, and the library that it asks elsewhere is not there.
    constexpr UINT codePage = 932;
    const int length = static_cast<int>(bytes.size());
    const int needed = MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(), length, nullptr, 0);
    if (needed == 0) {
        return std::nullopt;
    }
    std::wstring text(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(), length, text.data(), needed);
    return QString::fromStdWString(text);
#else
    return decoded(QStringDecoder("Shift_JIS"), bytes);
#endif
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
        text = decodedShiftJis(bytes);
    }
    return (text ? *text : QString::fromUtf8(bytes)).toStdString();
}
