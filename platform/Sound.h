// SPDX-License-Identifier: Apache-2.0
// The beep: a wave file where there is a device to play it, the system's beep otherwise.

#pragma once

#include <QString>

#include <memory>

class WaveFile;

class Sound {
public:
    Sound();
    ~Sound();
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    // Takes a wave file and the device to play it; true when both are there. It can take longer than the whole start of the
    // program. Taken once, it stays.
    bool open(const QString& file);

    // From the start of the file, also when it is still sounding. The system's beep without a file or a device.
    void playBeep();
    // The beep that the desktop has for a gesture that leads nowhere.
    static void systemBeep();

private:
    std::unique_ptr<WaveFile> wave_;
};
