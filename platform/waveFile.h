// SPDX-License-Identifier: Apache-2.0
// A wave file as the desktop plays it: each platform has its own way.

#pragma once

#include <QString>

#include <memory>

class WaveFile {
public:
    WaveFile() = default;
    virtual ~WaveFile() = default;
    WaveFile(const WaveFile&) = delete;
    WaveFile& operator=(const WaveFile&) = delete;

    // From its start, also when it is still sounding. False when it can't be played.
    virtual bool play() = 0;
};

// Null without a device, or where the platform has no way.
std::unique_ptr<WaveFile> openWaveFile(const QString& file);
