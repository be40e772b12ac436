// SPDX-License-Identifier: Apache-2.0
// Pictures that lie beside the program, where learners and teachers put their own.
//
//   NAME.BMP       the picture: a BMP file, whatever it is called
//   NAME@2x.png    the same as PNG, twice as large, for screens of high resolution. One that is older than NAME.BMP, or has
//                  another shape, belongs to a picture that somebody has replaced, and is left alone, as is one that can't be
//                  read
//
// Other formats are refused: some of them open further files, or need minutes and gigabytes. No side of a picture is longer than
// 4096 pixels, and no file larger than its pixels need.

#pragma once

#include "platform/paths.h"

#include <QImage>
#include <QString>

#include <string>

// The picture, or why there is none: one line for the learner.
struct Picture {
    QImage image;
    QString reason;
};

// Reads the picture that fits a screen of `screenRatio` best, with its ratio. `name` as a list gives it.
Picture loadPicture(const std::filesystem::path& folder, const QString& name, qreal screenRatio);

enum class PictureFormat { bmp, png };

// The picture that the bytes are; null when they are none of this format, or one that is too large.
QImage decodePicture(const std::string& bytes, PictureFormat format);
