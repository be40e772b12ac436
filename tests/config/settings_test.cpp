#include "config/settings.h"

#include "boards/boardSet.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

namespace {

class SettingsFile : public testing::Test {
protected:
    SettingsFile() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        folder = std::filesystem::temp_directory_path() / ("vrbts-" + std::string(test->name()));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~SettingsFile() override {
        std::error_code error;
        std::filesystem::remove_all(folder, error);
    }

    std::filesystem::path path() const { return folder / settingsFileName; }
    Machine read(const std::string& bytes) {
        std::ofstream(path(), std::ios::binary) << bytes;
        return read();
    }
    Machine read() {
        Machine machine;
        readSettings(machine, folder);
        return machine;
    }

    std::filesystem::path folder;
};

// All that the settings fill.
std::vector<int> valuesOf(Machine& machine) {
    std::vector<int> values;
    for (const Setting& setting : settings) {
        values.push_back(setting.variable(machine));
    }
    return values;
}

TEST(SettingsNumber, is_what_the_text_begins_with) {
    struct Row {
        const char* text;
        int number;
    };
    for (const Row& row : {Row{"12", 12},
                           Row{"12abc", 12},
                           Row{"abc", 0},
                           Row{"", 0},
                           Row{"-1", -1},
                           Row{"+7", 7},
                           Row{"  5 ", 5},
                           Row{"- 3", -3},
                           Row{"0x10", 0},
                           Row{"1e3", 1},
                           Row{"0.5", 0},
                           Row{"1.5", 2},
                           Row{"2.5", 2},
                           Row{"2.51", 3},
                           Row{"-1.5", -2},
                           Row{".9", 1},
                           Row{"1.2.9", 1},
                           Row{".", 0},
                           Row{"99999999999", 2147483647},
                           Row{"-99999999999", -2147483647}}) {
        EXPECT_EQ(leadingNumber(row.text), row.number) << "\"" << row.text << "\"";
    }
    EXPECT_EQ(leadingNumber(std::string(100000, '9')), 2147483647);
}

TEST_F(SettingsFile, every_key_reaches_a_variable_of_its_own) {
    std::set<const std::int16_t*> variables;
    for (const Setting& setting : settings) {
        Machine machine = read("[INIT]\r\n" + std::string(setting.key) + "=2\r\n");
        EXPECT_EQ(setting.variable(machine), 2) << setting.key;
        std::vector<int> values = valuesOf(machine);
        EXPECT_EQ(std::count(values.begin(), values.end(), 0), 18) << setting.key << " alone is set";
    }
    Machine machine = read("[INIT]\nSA-QDA73=5\nOPENWINDOW4=1\nTRANSFER=1\nCLOCK-QDA52=2\n");
    EXPECT_EQ(machine.boardSA[saQDA73], 5);
    EXPECT_EQ(machine.openWindowDefault[4], 1);
    EXPECT_EQ(machine.boardClock[clockQDA52], 2);
    EXPECT_EQ(machine.transferDefault, (std::array<std::int16_t, 5>{1, 1, 1, 1, 1}));
    EXPECT_EQ(machine.iniPath, path().string());
}

TEST_F(SettingsFile, is_read_in_every_form_that_was_ever_written) {
    const std::string japanese = "\x93\xfa\x96\x7b=1\r\n; \x83\x5c\x83\x5d\r\n";  // the Japanese code page
    for (const std::string& text : {
             std::string("[INIT]\nMODE-QDA52=3\n"),
             std::string("[INIT]\r\nMODE-QDA52=3"),
             std::string("\xEF\xBB\xBF[INIT]\r\nMODE-QDA52=3\r\n"),
             std::string("[OTHER]\nMODE-QDA52=1\n[init]\n;MODE-QDA52=2\nmode-qda52 = 3 \n[MORE]\nMODE-QDA52=1\n"),
             std::string("  [ INIT ]  \n\tMODE-QDA52\t=\t\"3\"\n"),
             std::string("[INIT]\nMODE-QDA52='3'\nMODE-QDA52=1\n"),
             "[INIT]\r\n" + japanese + "MODE-QDA52=3\r\n",
             "[INIT]\nLONG=" + std::string(100000, 'x') + "\nno equals sign\n=\n\nMODE-QDA52=3\n",
         }) {
        EXPECT_EQ(read(text).mode52, 3) << text.substr(0, 80);
    }
    EXPECT_EQ(read("MODE-QDA52=3\n").mode52, 0) << "outside the section";
    EXPECT_EQ(read("[INIT\nMODE-QDA52=3\n").mode52, 3) << "an unclosed bracket";
}

TEST_F(SettingsFile, an_index_outside_its_list_or_16_bits_reads_as_absent) {
    struct Row {
        const char* key;
        const char* value;
        int taken;
    };
    for (const Row& row :
         {Row{"CPUTYPE", "3", 3}, Row{"CPUTYPE", "4", 0}, Row{"CPUTYPE", "-1", 0}, Row{"SA-QDA41", "62", 62},
          Row{"SA-QDA41", "63", 0}, Row{"CLOCK-QDA41", "2", 2}, Row{"CLOCK-QDA41", "3", 0}, Row{"CLOCK-QDA73", "3", 3},
          Row{"CLOCK-QDA52", "3", 0}, Row{"IOS-QDA52", "7", 7}, Row{"IOS-QDA52", "8", 0}, Row{"MODE-QDA52", "4", 0},
          Row{"TRANSFER", "-1", -1}, Row{"MEMORYCLEAR", "32767", 32767}, Row{"MEMORYCLEAR", "32768", 0},
          Row{"MEMORYCLEAR", "-32768", -32768}, Row{"MEMORYCLEAR", "-32769", 0}}) {
        Machine machine = read(std::string("[INIT]\n") + row.key + "=" + row.value + "\n");
        const std::vector<int> values = valuesOf(machine);
        std::vector<int> expected(settings.size(), 0);
        for (std::size_t index = 0; index < settings.size(); ++index) {
            expected[index] = settings[index].key == row.key ? row.taken : 0;
        }
        EXPECT_EQ(values, expected) << row.key << "=" << row.value;
    }
}

TEST_F(SettingsFile, that_is_missing_a_folder_or_huge_noise_starts_as_a_missing_one) {
    Machine missing = read();
    EXPECT_EQ(valuesOf(missing), std::vector<int>(settings.size(), 0));

    std::ofstream(path(), std::ios::binary) << "[INIT]\nMODE-QDA52=3\n";
    std::filesystem::resize_file(path(), 100'000'000);
    EXPECT_EQ(read().mode52, 0) << "100 MB are no settings";

    std::filesystem::remove(path());
    std::filesystem::create_directory(path());
    EXPECT_EQ(read().mode52, 0);

    std::filesystem::remove_all(folder);
    EXPECT_EQ(read().mode52, 0);
}

TEST_F(SettingsFile, without_one_all_boards_stand_on_SA_1_and_off_the_cable) {
    Machine machine = read();
    setUpBench(machine);
    EXPECT_EQ(machine.boardSA, (std::array<std::int16_t, 3>{1, 1, 1}));
    EXPECT_FALSE(machine.picBOARD2_RXD[0].plugged || machine.picBOARD2_RXD[1].plugged || machine.picBOARD2_RXD[3].plugged);
    EXPECT_FALSE(machine.picBridge.visible);
    EXPECT_EQ(machine.duplexBit, 16);
    EXPECT_FALSE(machine.picPI[64].output) << "IOS mode 0: inputs";
}

TEST(MakersValues, put_the_boards_on_SA_1_to_4_with_all_cables_plugged) {
    Machine machine;
    machine.transferDefault.fill(1);
    machine.boardClock.fill(3);
    Mdef_Set(machine);
    EXPECT_EQ(machine.transferDefault, (std::array<std::int16_t, 5>{}));
    EXPECT_EQ(machine.boardClock, (std::array<std::int16_t, 4>{}));
    setUpBench(machine);
    EXPECT_EQ(machine.boardSA, (std::array<std::int16_t, 3>{2, 1, 4}));
    EXPECT_TRUE(machine.picBOARD1_RXD[0].plugged && machine.picBridge.visible);
    EXPECT_TRUE(machine.picPI[64].output) << "IOS mode 5: outputs";
    EXPECT_EQ(machine.openWindowDefault, (std::array<std::int16_t, 6>{0, 1, 1, 1, 0, 0}));
}

TEST(BenchSettings, plug_and_fit_only_by_exactly_1) {
    for (const std::int16_t setting : {std::int16_t{0}, std::int16_t{2}, std::int16_t{-1}}) {
        Machine machine;
        Mdef_Set(machine);
        machine.cableConnectionDefault = setting;
        machine.cascadeDefault = setting;
        machine.transferDefault.fill(setting);
        setUpBench(machine);
        EXPECT_FALSE(machine.picBOARD2_RXD[0].plugged || machine.picBridge.visible) << setting;
        EXPECT_EQ(machine.duplexBit, 16) << "the jumpers ask for exactly 1";
        resetRegisters(machine);
        EXPECT_EQ(machine.duplexBit, setting == 0 ? 16 : 0) << "the reset for anything but 0";
    }
}

}  // namespace
