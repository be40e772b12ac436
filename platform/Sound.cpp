// SPDX-License-Identifier: Apache-2.0
#include "platform/Sound.h"

#include "platform/waveFile.h"

#include <QApplication>
#include <QFileInfo>

Sound::Sound() = default;
Sound::~Sound() = default;

bool Sound::open(const QString& file) {
    wave_.reset();
    file_ = wavesArePlayed && QFileInfo(file).isFile() ? file : QString();
    return !file_.isEmpty();
}

void Sound::playBeep() {
    if (wave_ == nullptr && !file_.isEmpty()) {
        wave_ = openWaveFile(file_);
        if (wave_ == nullptr) {
            file_.clear();  // no device: it isn't asked for again
        }
    }
    if (wave_ == nullptr || !wave_->play()) {
        QApplication::beep();
    }
}
