#include "platform/userFolder.h"

#include "platform/paths.h"

#include <QStandardPaths>

std::filesystem::path userFolder() {
#ifdef Q_OS_WIN
    constexpr auto place = QStandardPaths::AppDataLocation;
#else
    constexpr auto place = QStandardPaths::AppConfigLocation;
#endif
    return pathOf(QStandardPaths::writableLocation(place));
}
