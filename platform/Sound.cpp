#include "platform/Sound.h"

#include <QApplication>
#include <QFileInfo>

#ifdef VRB_MULTIMEDIA
#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>
#else
class QSoundEffect {};
#endif

Sound::Sound() = default;
Sound::~Sound() = default;

bool Sound::open([[maybe_unused]] const QString& file) {
    effect_.reset();
#ifdef VRB_MULTIMEDIA
    // The file comes first: asking for devices is what costs time.
    if (!QFileInfo(file).isFile() || QMediaDevices::defaultAudioOutput().isNull()) {
        return false;
    }
    effect_ = std::make_unique<QSoundEffect>();
    effect_->setSource(QUrl::fromLocalFile(file));
#endif
    return effect_ != nullptr;
}

void Sound::playBeep() {
#ifdef VRB_MULTIMEDIA
    if (effect_ != nullptr && effect_->status() != QSoundEffect::Error) {
        effect_->stop();
        effect_->play();
        return;
    }
#endif
    QApplication::beep();
}
