// SPDX-License-Identifier: Apache-2.0
#include "platform/settingsFile.h"

#include "platform/paths.h"
#include "platform/wholeFile.h"

#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

namespace fs = std::filesystem;

namespace {

fs::path fileIn(const fs::path& folder) {
    const fs::path found = fileInFolder(folder, settingsFileName);
    std::error_code error;
    // A folder of that name is in the way of every save, and is to be told of.
    return found.empty() && fs::exists(folder / settingsFileName, error) ? folder / settingsFileName : found;
}

bool isOwnFolder(const fs::path& programFolder) {
    std::error_code error;
    return !fs::exists(programFolder / uninstallerName, error) && folderWritable(programFolder);
}

}  // namespace

fs::path programFolder(const fs::path& executableFolder) {
    const fs::path contents = executableFolder.parent_path();
    const fs::path bundle = contents.parent_path();
    if (executableFolder.filename() != "MacOS" || contents.filename() != "Contents" || bundle.extension() != ".app") {
        return executableFolder;
    }
    std::error_code error;
    const fs::path resources = contents / "Resources";
    return fs::exists(resources / settingsFileName, error) ? resources : bundle.parent_path();
}

fs::path userFolder() {
#ifdef Q_OS_WIN
    constexpr auto place = QStandardPaths::AppDataLocation;
#else
    constexpr auto place = QStandardPaths::AppConfigLocation;
#endif
    return pathOf(QStandardPaths::writableLocation(place));
}

SettingsPlace::SettingsPlace(fs::path programFolder, const fs::path& userFolder)
    : shippedFolder_(std::move(programFolder)), savedFolder_(isOwnFolder(shippedFolder_) ? shippedFolder_ : userFolder) {}

fs::path SettingsPlace::saved() const {
    const fs::path found = fileIn(savedFolder_);
    return found.empty() ? savedFolder_ / settingsFileName : found;
}

fs::path SettingsPlace::toRead() const {
    const fs::path found = fileIn(savedFolder_);
    return found.empty() ? fileIn(shippedFolder_) : found;
}

void SettingsPlace::clearAway() const {
    static const QRegularExpression leftBehind(R"(^vrb_ts2\.ini\.\d+\.tmp$)", QRegularExpression::CaseInsensitiveOption);
    std::error_code error;
    // Behind a link they lie beside the file itself.
    const fs::path file = fs::weakly_canonical(saved(), error);
    QDir folder(textOfPath((error ? saved() : file).parent_path()));
    const QStringList names = folder.entryList(QDir::Files | QDir::NoSymLinks).filter(leftBehind);
    for (const QString& name : names) {
        folder.remove(name);
    }
}
