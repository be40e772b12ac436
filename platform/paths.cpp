// SPDX-License-Identifier: Apache-2.0
#include "platform/paths.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace fs = std::filesystem;

namespace {

QHash<QString, QString> filesOf(const QDir& folder) {
    QHash<QString, QString> files;
    const QStringList names = folder.entryList(QDir::Files, QDir::Name | QDir::Reversed);  // the first of several stays
    for (const QString& name : names) {
        files.insert(name.toCaseFolded(), name);
    }
    return files;
}

}  // namespace

fs::path pathOf(const QString& text) {
    return {text.toStdU16String()};
}

QString textOfPath(const fs::path& path) {
    return QString::fromStdU16String(path.u16string());
}

bool staysInFolder(const QString& name) {
    static const QRegularExpression leaves(
        R"(^[/\\])"                                                            // from the root, or from another machine
        R"(|:)"                                                                // a drive, or a second content of a file
        R"(|(^|[/\\])\s*\.[. ]*\.\s*([/\\]|$))"                                // one up, also as some systems read it
        R"(|(^|[/\\])(con|prn|aux|nul|com\d|lpt\d)\s*(\.[^/\\]*)?([/\\]|$))",  // devices, whatever stands behind the dot
        QRegularExpression::CaseInsensitiveOption);
    return !name.isEmpty() && !name.contains(QChar(u'\0')) && !leaves.match(name).hasMatch();
}

fs::path FolderFiles::find(const QString& name) {
    if (!staysInFolder(name)) {
        return {};
    }
    fs::path exact = folder_ / pathOf(QString(name).replace('\\', '/'));  // lists are written with either
    const QFileInfo wanted(textOfPath(exact));
    if (wanted.exists() && !wanted.isDir()) {
        return exact;
    }
    // A name may lead into a folder below.
    const QDir folder = wanted.dir();
    if (!listed_.contains(folder.path())) {
        listed_.insert(folder.path(), filesOf(folder));
    }
    const QString file = listed_[folder.path()].value(wanted.fileName().toCaseFolded());
    return file.isEmpty() ? fs::path() : pathOf(folder.filePath(file));
}

fs::path fileInFolder(const fs::path& folder, const QString& name) {
    return FolderFiles(folder).find(name);
}
