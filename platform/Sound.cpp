// SPDX-License-Identifier: Apache-2.0
#include "platform/Sound.h"

#include "platform/browser.h"
#include "platform/waveFile.h"

#include <QApplication>
#include <QFileInfo>

Sound::Sound() = default;
Sound::~Sound() = default;

bool Sound::open(const QString& file) {
    if (wave_ == nullptr && QFileInfo(file).isFile()) {
        wave_ = openWaveFile(file);
    }
    return wave_ != nullptr;
}

void Sound::playBeep() {
    if (wave_ == nullptr || !wave_->play()) {
        systemBeep();
    }
}

void Sound::systemBeep() {
    if constexpr (inBrowser) {
        page::playTone();
    } else {
        QApplication::beep();
    }
}
