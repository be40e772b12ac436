// SPDX-License-Identifier: Apache-2.0
#include "platform/browser.h"
#include "platform/paths.h"
#include "platform/waveFile.h"
#include "platform/wholeFile.h"

namespace {

constexpr std::size_t largestFile = std::size_t{1} << 22;

class PageWave : public WaveFile {
public:
    explicit PageWave(const std::string& bytes) { page::takeWave(bytes); }

    bool play() override {
        page::playWave();
        return true;
    }
};

}  // namespace

std::unique_ptr<WaveFile> openWaveFile(const QString& file) {
    std::string bytes;
    return readWholeFile(pathOf(file), largestFile, bytes) ? nullptr : std::make_unique<PageWave>(bytes);
}
