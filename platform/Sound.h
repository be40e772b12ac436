// The beep: a wave file where there is a device to play it, the system's beep otherwise.

#pragma once

#include <QString>

#include <memory>

class QSoundEffect;

class Sound {
public:
    Sound();
    ~Sound();
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    // Opens the device with a wave file. False, and nothing else, when there is no device or no such file.
    bool open(const QString& file);

    // From the start of the file, also when it is still sounding. The system's beep when nothing is open.
    void playBeep();

private:
    std::unique_ptr<QSoundEffect> effect_;
};
