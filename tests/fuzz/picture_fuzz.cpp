// SPDX-License-Identifier: Apache-2.0
// Noise as a picture. Whatever the bytes claim to be: it is one of the format meant and within the bounds, or none; its pixels
// can be had; and no text is a picture.

#include "platform/pictureFile.h"
#include "tests/fuzz/demand.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    for (const PictureFormat format : {PictureFormat::bmp, PictureFormat::png}) {
        const QImage picture = decodePicture(bytes, format);
        demand(picture.isNull() || bytes.starts_with(format == PictureFormat::bmp ? "BM" : "\x89PNG"));
        demand(picture.width() <= 4096 && picture.height() <= 4096);
        if (!picture.isNull()) {
            demand(picture.convertToFormat(QImage::Format_ARGB32).pixelColor(picture.rect().bottomRight()).isValid());
        }
    }
    return 0;
}
