// Pictures and folders that lie beside the program, where learners and teachers put their own.

#pragma once

#include <QImage>
#include <QString>

#include <filesystem>

// A file of a folder by its name in any case, since these names come from systems that don't tell cases apart. The exact name
// wins. Empty when there is none.
std::filesystem::path fileInFolder(const std::filesystem::path& folder, const QString& name);

// A picture file, at most 4096 x 4096 pixels: what is larger would freeze the window. Null with the reason in `reason`, one
// line for the learner, when it is missing, broken or too large.
QImage readPicture(const std::filesystem::path& folder, const QString& name, QString& reason);
