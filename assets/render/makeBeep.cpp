// Makes the beep: a short bell of two tones, as a wave file of 16-bit samples.
//
//     makeBeep OUTPUT.WAV

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <numbers>
#include <vector>

namespace {

constexpr std::uint32_t sampleRate = 44100;  // a second
constexpr double length = 0.16;              // seconds
constexpr double attack = 0.004;             // seconds until the tone is full: no click
constexpr double decay = 0.045;              // seconds in which it falls to a third
constexpr double loudness = 0.35;            // of full scale

std::vector<std::int16_t> bell() {
    constexpr std::array<double, 2> tones{880.0, 1318.5};  // hertz, a fifth apart
    std::vector<std::int16_t> samples;
    for (std::uint32_t n = 0; n < static_cast<std::uint32_t>(length * sampleRate); ++n) {
        const double time = static_cast<double>(n) / sampleRate;
        double wave = 0;
        for (const double tone : tones) {
            wave += std::sin(2 * std::numbers::pi * tone * time) / static_cast<double>(tones.size());
        }
        const double envelope = std::min(1.0, time / attack) * std::exp(-time / decay);
        samples.push_back(static_cast<std::int16_t>(std::lround(32767 * loudness * envelope * wave)));
    }
    return samples;
}

void put(std::ostream& file, std::uint32_t value, int bytes) {
    for (int byte = 0; byte < bytes; ++byte) {
        file.put(static_cast<char>(value >> (8 * byte) & 0xFF));
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "makeBeep: expected OUTPUT.WAV\n";
        return 1;
    }
    const std::vector<std::int16_t> samples = bell();
    const auto dataSize = static_cast<std::uint32_t>(2 * samples.size());
    std::ofstream file(argv[1], std::ios::binary);
    file << "RIFF";
    put(file, 36 + dataSize, 4);
    file << "WAVEfmt ";
    put(file, 16, 4);  // size of the format block
    put(file, 1, 2);   // plain samples
    put(file, 1, 2);   // one channel
    put(file, sampleRate, 4);
    put(file, 2 * sampleRate, 4);  // bytes a second
    put(file, 2, 2);               // bytes a sample
    put(file, 16, 2);              // bits a sample
    file << "data";
    put(file, dataSize, 4);
    for (const std::int16_t sample : samples) {
        put(file, static_cast<std::uint16_t>(sample), 2);
    }
    file.close();
    if (!file) {
        std::cerr << "makeBeep: " << argv[1] << " can't be written\n";
        return 1;
    }
    return 0;
}
