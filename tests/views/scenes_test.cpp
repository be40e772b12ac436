// SPDX-License-Identifier: Apache-2.0
// The scenes of windows.play.

#include "tests/views/desk.h"

namespace {

struct Scene {
    std::string name, text;
};

std::vector<Scene> scenesOfFile() {
    std::vector<Scene> scenes;
    std::ifstream file(VRB_ASSETS "/../tests/views/windows.play");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('[')) {
            scenes.push_back({line.substr(1, line.find(']') - 1), {}});
        } else if (line.starts_with(' ')) {
            scenes.back().text += line;
        }
    }
    return scenes;
}

class Scenes : public Desk, public testing::WithParamInterface<Scene> {};

TEST_P(Scenes, hold) {
    giveFolder(VRB_BIN "/HintData");
    startAtBench(withDump);
    play(GetParam().text);
    EXPECT_FALSE(player->checked().empty());
}

INSTANTIATE_TEST_SUITE_P(, Scenes, testing::ValuesIn(scenesOfFile()), [](const auto& scene) { return scene.param.name; });

}  // namespace
