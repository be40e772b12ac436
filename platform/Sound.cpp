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
    file_.clear();
#ifdef VRB_MULTIMEDIA
    if (QFileInfo(file).isFile()) {
        file_ = file;
    }
#endif
    return !file_.isEmpty();
}

void Sound::playBeep() {
#ifdef VRB_MULTIMEDIA
    if (effect_ == nullptr && !file_.isEmpty()) {
        openDevice();
    }
    if (effect_ != nullptr && effect_->status() != QSoundEffect::Error) {
        effect_->stop();
        effect_->play();
        return;
    }
#endif
    QApplication::beep();
}

void Sound::openDevice() {
#ifdef VRB_MULTIMEDIA
    if (QMediaDevices::defaultAudioOutput().isNull()) {
        file_.clear();
        return;
    }
    effect_ = std::make_unique<QSoundEffect>();
    effect_->setSource(QUrl::fromLocalFile(file_));
#endif
}
