// Pictures and folders that lie beside the program, where learners and teachers put their own.
//
//   NAME.BMP       the picture
//   NAME@2x.png    the same, twice as large, for screens of high resolution; one that is older than NAME.BMP, or has another
//                  shape, belongs to a picture that somebody has replaced, and is left alone

#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <filesystem>

// A file of a folder by its name in any case, since these names come from systems that don't tell cases apart. The exact name
// wins. Empty when there is none.
std::filesystem::path fileInFolder(const std::filesystem::path& folder, const QString& name);

// A picture as its file holds it.
struct PictureFile {
    QByteArray bytes;
    qreal ratio = 1;  // pixels of the picture to one of the window
    QString reason;   // why there is none, one line for the learner
};

// Reads the picture that fits a screen of `screenRatio` best. A picture of more than 4096 x 4096 pixels would freeze the
// window and is not read.
PictureFile loadPicture(const std::filesystem::path& folder, const QString& name, qreal screenRatio);

// The picture with its ratio. Null when the file is none; `reason` then says why, and `name` is what it calls it.
QImage decodePicture(PictureFile& file, const QString& name);
