// SPDX-License-Identifier: Apache-2.0
// Paths of the model and texts of the desktop, and names of files that a list beside the program gives.

#pragma once

#include <QHash>
#include <QString>

#include <filesystem>

// From one to the other, on every platform without loss.
std::filesystem::path pathOf(const QString& text);
QString textOfPath(const std::filesystem::path& path);

// Whether a name in a list stays within the list's folder. The same on every platform, so that a folder of tours or pages that
// works on one works on all: no absolute path, no "..", no drive, no network name, no device. Folders below may be named, with
// either slash. A link that leaves the folder is the teacher's own.
bool staysInFolder(const QString& name);

// Finds the files of a folder by their names in any case, since these names come from systems that don't tell cases apart. The
// exact name wins.
class FolderFiles {
public:
    explicit FolderFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // Empty when there is none, and for a name that leaves the folder. What is found may still be unreadable.
    std::filesystem::path find(const QString& name);

private:
    std::filesystem::path folder_;
    // Each folder is listed once: its files by their names in one case.
    QHash<QString, QHash<QString, QString>> listed_;
};

// The same for one name.
std::filesystem::path fileInFolder(const std::filesystem::path& folder, const QString& name);
