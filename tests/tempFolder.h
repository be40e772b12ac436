// SPDX-License-Identifier: Apache-2.0
// A folder of the test's own, gone with it.

#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace fs = std::filesystem;

inline void put(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string bytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class TempFolder : public testing::Test {
protected:
    TempFolder() {
        const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
        folder = fs::temp_directory_path() / ("vrbts-" + test + "-" + std::to_string(std::random_device{}()));
        fs::create_directories(folder);
    }
    ~TempFolder() override {
        std::error_code error;
        fs::remove_all(folder, error);
    }

    fs::path folder;
};
