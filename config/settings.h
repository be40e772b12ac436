// The settings: the 19 numbers of VRB_TS2.INI, section INIT, in one table that says for each key which variable of the
// machine takes it, which values it may have and what the maker recommends.
//
// The file is read once, at start. An absent key reads as 0, and so does a list index outside its list and a number outside
// 16 bits. No message tells of a missing file.

#pragma once

#include "config/profileFile.h"
#include "core/mduMain.h"

#include <limits>
#include <string_view>

inline constexpr std::string_view settingsFileName = "VRB_TS2.INI";
inline constexpr std::string_view settingsSection = "INIT";

struct Setting {
    std::string_view key;
    std::int16_t& (*variable)(Machine&);
    std::int16_t makersValue;
    // The range that is taken. Of a list index: that of its list.
    std::int16_t least = std::numeric_limits<std::int16_t>::min();
    std::int16_t most = std::numeric_limits<std::int16_t>::max();
};

constexpr Setting listSetting(std::string_view key, std::int16_t& (*variable)(Machine&), std::int16_t makersValue,
                              std::int16_t lastIndex) {
    return {key, variable, makersValue, 0, lastIndex};
}

// In the order in which they are read.
inline constexpr std::array<Setting, 19> settings{{
    {"CABLECONNECTION", [](Machine& m) -> std::int16_t& { return m.cableConnectionDefault; }, 1},
    {"MEMORYCLEAR", [](Machine& m) -> std::int16_t& { return m.memoryClearDefault; }, 1},
    listSetting(
        "CPUTYPE", [](Machine& m) -> std::int16_t& { return m.cpuType; }, 0, 3),
    {"TRANSFER", [](Machine& m) -> std::int16_t& { return m.transferDefault[0]; }, 0},
    listSetting(
        "SA-QDA41", [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA41]; }, 1, 62),
    listSetting(
        "SA-QDA73", [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA73]; }, 0, 62),
    listSetting(
        "SA-QDA52", [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA52]; }, 3, 62),
    listSetting(
        "CLOCK-QDA60", [](Machine& m) -> std::int16_t& { return m.boardClock[clockCenter]; }, 0, 3),
    listSetting(
        "CLOCK-QDA41", [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA41]; }, 0, 2),
    listSetting(
        "CLOCK-QDA73", [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA73]; }, 0, 3),
    listSetting(
        "CLOCK-QDA52", [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA52]; }, 0, 2),
    {"CASCADE-QDA41", [](Machine& m) -> std::int16_t& { return m.cascadeDefault; }, 1},
    listSetting(
        "IOS-QDA52", [](Machine& m) -> std::int16_t& { return m.ios52; }, 5, 7),
    listSetting(
        "MODE-QDA52", [](Machine& m) -> std::int16_t& { return m.mode52; }, 0, 3),
    {"OPENWINDOW1", [](Machine& m) -> std::int16_t& { return m.openWindowDefault[1]; }, 1},
    {"OPENWINDOW2", [](Machine& m) -> std::int16_t& { return m.openWindowDefault[2]; }, 1},
    {"OPENWINDOW3", [](Machine& m) -> std::int16_t& { return m.openWindowDefault[3]; }, 1},
    {"OPENWINDOW4", [](Machine& m) -> std::int16_t& { return m.openWindowDefault[4]; }, 0},
    {"OPENWINDOW5", [](Machine& m) -> std::int16_t& { return m.openWindowDefault[5]; }, 0},
}};

// Clears the board state and takes all settings from the file VRB_TS2.INI in `folder`, whose path iniPath keeps.
void readSettings(Machine& machine, const std::filesystem::path& folder);

// Takes all settings from a profile that has been read.
void takeSettings(Machine& machine, const ProfileFile& profile);

// The maker's values into the variables; the file stays as it is.
void Mdef_Set(Machine& machine);
