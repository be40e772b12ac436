// SPDX-License-Identifier: Apache-2.0
#include "platform/waveFile.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace {

class EffectWave : public WaveFile {
public:
    explicit EffectWave(const QString& file) { effect_.setSource(QUrl::fromLocalFile(file)); }

    bool play() override {
        if (effect_.status() == QSoundEffect::Error) {
            return false;
        }
        effect_.stop();
        effect_.play();
        return true;
    }

private:
    QSoundEffect effect_;
};

}  // namespace

std::unique_ptr<WaveFile> openWaveFile(const QString& file) {
    return QMediaDevices::defaultAudioOutput().isNull() ? nullptr : std::make_unique<EffectWave>(file);
}
