// SPDX-License-Identifier: Apache-2.0
// The settings: the way of every key to its variable and back, numbers that no list has, and the dialog's four operations.

#include "config/settings.h"

#include "tests/machines.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr int last = 32767;

// What each key is for: written once, by hand, beside the table that it is compared with.
struct Row {
    const char* key;
    int (*variable)(const Machine&);
    int makersValue;
    int greatest;         // of a list; else 32767
    const char* control;  // "" for what the dialog doesn't show
};
constexpr std::array<Row, 19> rows{{
    {"CABLECONNECTION", [](const Machine& m) { return int{m.cableConnectionDefault}; }, 1, last, "chkDef0"},
    {"MEMORYCLEAR", [](const Machine& m) { return int{m.memoryClearDefault}; }, 1, last, "chkDef1"},
    {"TRANSFER", [](const Machine& m) { return int{m.transferDefault[4]}; }, 0, last, "optHF1"},
    {"CPUTYPE", [](const Machine& m) { return int{m.cpuType}; }, 0, 3, "cmbCPUType"},
    {"SA-QDA41", [](const Machine& m) { return int{m.boardSA[0]}; }, 1, 62, "cmbSA0"},
    {"SA-QDA73", [](const Machine& m) { return int{m.boardSA[1]}; }, 0, 62, "cmbSA2"},
    {"SA-QDA52", [](const Machine& m) { return int{m.boardSA[2]}; }, 3, 62, "cmbSA4"},
    {"CLOCK-QDA60", [](const Machine& m) { return int{m.boardClock[0]}; }, 0, 3, ""},
    {"CLOCK-QDA41", [](const Machine& m) { return int{m.boardClock[1]}; }, 0, 2, "cmbClockDEF41"},
    {"CLOCK-QDA73", [](const Machine& m) { return int{m.boardClock[2]}; }, 0, 3, "cmbClockDEF73"},
    {"CLOCK-QDA52", [](const Machine& m) { return int{m.boardClock[3]}; }, 0, 2, "cmbClockDEF52"},
    {"CASCADE-QDA41", [](const Machine& m) { return int{m.cascadeDefault}; }, 1, last, "chkCascade"},
    {"IOS-QDA52", [](const Machine& m) { return int{m.ios52}; }, 5, 7, "cmbIOS"},
    {"MODE-QDA52", [](const Machine& m) { return int{m.mode52}; }, 0, 3, "cmbMode"},
    {"OPENWINDOW1", [](const Machine& m) { return int{m.openWindowDefault[1]}; }, 1, last, "chkDef2"},
    {"OPENWINDOW2", [](const Machine& m) { return int{m.openWindowDefault[2]}; }, 1, last, "chkDef3"},
    {"OPENWINDOW3", [](const Machine& m) { return int{m.openWindowDefault[3]}; }, 1, last, "chkDef4"},
    {"OPENWINDOW4", [](const Machine& m) { return int{m.openWindowDefault[4]}; }, 0, last, "chkDef5"},
    {"OPENWINDOW5", [](const Machine& m) { return int{m.openWindowDefault[5]}; }, 0, last, "chkDef6"},
}};

using Values = std::array<int, rows.size()>;

Values valuesOf(const Machine& machine) {
    Values values{};
    std::transform(rows.begin(), rows.end(), values.begin(), [&machine](const Row& row) { return row.variable(machine); });
    EXPECT_EQ(std::count(machine.transferDefault.begin(), machine.transferDefault.end(), machine.transferDefault[0]), 5);
    return values;
}

Values makersValues() {
    Values values{};
    std::transform(rows.begin(), rows.end(), values.begin(), [](const Row& row) { return row.makersValue; });
    return values;
}

Values valuesIn(const std::string& text) {
    Machine machine;
    readSettings(machine, ProfileFile(text));
    return valuesOf(machine);
}

std::size_t rowOf(std::string_view key) {
    return static_cast<std::size_t>(
        std::distance(rows.begin(), std::find_if(rows.begin(), rows.end(), [key](const Row& row) { return row.key == key; })));
}

DialogValues with(DialogValues values, std::initializer_list<std::pair<const char*, int>> changes) {
    for (const auto& [key, value] : changes) {
        values[rowOf(key)] = static_cast<std::int16_t>(value);
    }
    return values;
}

TEST(Settings, every_key_reaches_its_variable_and_control_and_no_other_and_reads_as_absent_outside_its_list) {
    using Case = std::tuple<std::string, int, int>;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const Row& row = rows[index];
        const bool list = row.greatest != last;
        EXPECT_EQ(settings[index].control, row.control) << row.key;
        for (const auto& [text, taken, shown] :
             {Case{std::to_string(row.greatest), row.greatest, list ? row.greatest : 1}, Case{"1", 1, 1},
              Case{"2 ", 2, list ? 2 : 1}, Case{std::to_string(row.greatest + 1), 0, 0}, Case{"-1", list ? 0 : -1, 0},
              Case{"-32769", 0, 0}, Case{"65537", 0, 0}, Case{"4294967297", 0, 0}, Case{"abc", 0, 0}}) {
            const std::string file = "[INIT]\n" + std::string(row.key) + "=" + text;
            Values expected{};
            expected[index] = taken;
            EXPECT_EQ(valuesIn(file), expected) << file;
            EXPECT_EQ(loadDialog(ProfileFile(file)), with({}, {{row.key, *row.control != '\0' ? shown : 0}})) << file;
        }
    }
}

TEST(Settings, of_the_maker_take_the_place_of_all_others) {
    Machine machine;
    readSettings(machine, ProfileFile("[INIT]\nTRANSFER=1\nCLOCK-QDA60=2\nMODE-QDA52=2\nOPENWINDOW5=1\n"));
    Mdef_Set(machine);
    EXPECT_EQ(valuesOf(machine), makersValues());
}

TEST(Settings, a_save_writes_a_new_file_in_order_and_keeps_what_is_not_its_own) {
    std::string made = "[INIT]\r\n";
    for (const Row& row : rows) {
        made += *row.control != '\0' ? std::string(row.key) + "=" + std::to_string(row.makersValue) + "\r\n" : "";
    }
    ProfileFile profile;
    saveDialog(profile, setDialogMaker());
    EXPECT_EQ(profile.bytes(), made);

    const std::string mine =
        "; mine\n[INIT]\nCLOCK-QDA60=2\nIOS-QDA52=1 ; first\nMINE=x\n" + made.substr(8) + "[MINE]\nCPUTYPE=3\n";
    std::string kept = mine;
    kept.replace(kept.find("=1 ; first") + 1, 1, "5");
    profile = ProfileFile(mine);
    saveDialog(profile, setDialogMaker());
    EXPECT_EQ(profile.bytes(), kept);
    EXPECT_EQ(valuesIn(kept)[rowOf("CLOCK-QDA60")], 2);
}

TEST(Settings, saved_ones_reach_a_cleared_bench_at_the_next_start) {
    ProfileFile profile;
    saveDialog(profile,
               with({}, {{"CABLECONNECTION", 1}, {"TRANSFER", 1}, {"SA-QDA41", 62}, {"SA-QDA52", 15}, {"IOS-QDA52", 7}}));
    Machine machine = makersMachine();
    machine.doLatch52 = 9;
    machine.writeTempHighFull = true;
    readSettings(machine, ProfileFile(profile.bytes()));
    EXPECT_FALSE(machine.doLatch52 != 0 || machine.writeTempHighFull);
    machine.cpuType = 3;
    machine.boardClock = {0, 2, 1, 2};
    machine.mode52 = 2;
    setUpBench(machine);
    EXPECT_TRUE(machine.picBOARD2_RXD[0].plugged && !machine.picBridge.visible && machine.duplexBit == 0);
    EXPECT_EQ(machine.boardSA, (std::array<std::int16_t, 3>{63, 1, 16})) << "indices became addresses";
    const std::array shown{machine.cmbCPUType, machine.cmbClock41, machine.cmbBPS73, machine.cmbClock52, machine.cmbMode};
    EXPECT_EQ(shown, (std::array<Combo, 5>{{{3}, {2}, {1}, {2}, {2}}}));
    EXPECT_FALSE(machine.picPI[79].visible) << "mode 7 takes pin 15 away";
}

TEST(Settings, applied_ones_reach_the_machine_but_no_counter_mode_and_no_rate_of_the_center) {
    Machine machine = makersMachine();
    machine.mode52 = 2;
    machine.boardClock[clockCenter] = 3;
    applyDialog(machine, with(setDialogMaker(), {{"TRANSFER", 1}, {"MODE-QDA52", 3}, {"IOS-QDA52", 7}, {"SA-QDA73", 20}}));
    Values expected = makersValues();
    expected[rowOf("TRANSFER")] = 1;
    expected[rowOf("SA-QDA73")] = 20;
    expected[rowOf("IOS-QDA52")] = 7;
    EXPECT_EQ(valuesOf(machine), expected);
}

TEST(Settings, that_fail_on_the_disk_are_told_with_file_and_reason) {
    using enum FileError::Access;
    for (const auto& [code, access, reason] : std::initializer_list<std::tuple<std::errc, FileError::Access, std::string>>{
             {std::errc::permission_denied, reading, "読み取りが許可されていません。"},
             {std::errc::permission_denied, writing, "書き込みが許可されていません。"},
             {std::errc::no_space_on_device, writing, "ディスクの空き容量がありません。"},
             {std::errc::is_a_directory, reading, "同じ名前のフォルダがあります。"},
             {std::errc::owner_dead, writing, std::make_error_code(std::errc::owner_dead).message()}}) {
        const FileError error{"/設定/VRB_TS2.INI", std::make_error_code(code), access};
        const std::string end = "\n\nファイル： /設定/VRB_TS2.INI\n理由： " + reason;
        EXPECT_EQ(saveWarning(error), (Warning{"設定をファイルに保存できませんでした。" + end}));
        EXPECT_TRUE(readWarning(error).text.starts_with("設定ファイルを読み込めない") && readWarning(error).text.ends_with(end));
    }
}

}  // namespace
