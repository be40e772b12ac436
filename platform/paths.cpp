#include "platform/paths.h"

std::filesystem::path pathOf(const QString& text) {
    return {text.toStdU16String()};
}

QString textOfPath(const std::filesystem::path& path) {
    return QString::fromStdU16String(path.u16string());
}
