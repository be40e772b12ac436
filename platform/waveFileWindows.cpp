// SPDX-License-Identifier: Apache-2.0
#include "platform/waveFile.h"

#include <QDir>

#include <string>

// The second one wants the types of the first.
// clang-format off
#include <windows.h>
#include <mmsystem.h>
// clang-format on

namespace {

class SystemWave : public WaveFile {
public:
    explicit SystemWave(const QString& file) : file_(QDir::toNativeSeparators(file).toStdWString()) {}

    // The system plays one wave of a program at a time: the new one ends the old one.
    bool play() override { return PlaySoundW(file_.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT) != FALSE; }

private:
    std::wstring file_;
};

}  // namespace

std::unique_ptr<WaveFile> openWaveFile(const QString& file) {
    return waveOutGetNumDevs() == 0 ? nullptr : std::make_unique<SystemWave>(file);
}
