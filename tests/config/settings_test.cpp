// The settings file: numbers, forms of the file, the way of every key to its variable, and files that are none.

#include "config/settings.h"

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>

namespace {

namespace fs = std::filesystem;

// All that the settings fill, in the order of the keys; TRANSFER stands for its five elements.
using Values = std::array<int, 19>;

Values valuesOf(const Machine& m) {
    std::array<std::int16_t, 5> copies{};
    copies.fill(m.transferDefault[0]);
    EXPECT_EQ(m.transferDefault, copies);
    Values values{m.cableConnectionDefault, m.memoryClearDefault, m.cpuType, m.transferDefault[0]};
    std::copy(m.boardSA.begin(), m.boardSA.end(), &values[4]);
    std::copy(m.boardClock.begin(), m.boardClock.end(), &values[7]);
    values[11] = m.cascadeDefault;
    values[12] = m.ios52;
    values[13] = m.mode52;
    std::copy(m.openWindowDefault.begin() + 1, m.openWindowDefault.end(), &values[14]);
    return values;
}

Values only(std::size_t index, int value) {
    Values values{};
    values[index] = value;
    return values;
}

constexpr std::array<const char*, 19> keys{"CABLECONNECTION", "MEMORYCLEAR",   "CPUTYPE",     "TRANSFER",    "SA-QDA41",
                                           "SA-QDA73",        "SA-QDA52",      "CLOCK-QDA60", "CLOCK-QDA41", "CLOCK-QDA73",
                                           "CLOCK-QDA52",     "CASCADE-QDA41", "IOS-QDA52",   "MODE-QDA52",  "OPENWINDOW1",
                                           "OPENWINDOW2",     "OPENWINDOW3",   "OPENWINDOW4", "OPENWINDOW5"};
constexpr Values makersValues{1, 1, 0, 0, 1, 0, 3, 0, 0, 0, 0, 1, 5, 0, 1, 1, 1, 0, 0};

class SettingsFile : public testing::Test {
protected:
    SettingsFile() {
        const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
        folder = fs::temp_directory_path() / ("vrbts-" + test + "-" + std::to_string(std::random_device{}()));
        fs::create_directories(folder);
    }
    ~SettingsFile() override {
        std::error_code error;
        fs::remove_all(folder, error);
    }

    fs::path path() const { return folder / "VRB_TS2.INI"; }
    Machine read(const std::string& bytes) {
        std::ofstream(path(), std::ios::binary) << bytes;
        return read();
    }
    Machine read() {
        Machine machine;
        readSettings(machine, folder);
        return machine;
    }

    fs::path folder;
};

TEST(SettingsNumber, is_what_the_text_begins_with) {
    for (const auto& [text, number] :
         {std::pair{"12", 12}, {"12abc", 12}, {"abc", 0},  {"", 0},     {"-1", -1},   {"+7", 7},
          {"  5 ", 5},         {"\t5", 5},    {"007", 7},  {"--1", 0},  {"0x10", 0},  {"&H10", 0},
          {"1e3", 1},          {"1d3", 1},    {"3;4", 3},  {"0.5", 0},  {"0.51", 1},  {"1.5", 2},
          {"2.5", 2},          {"2.51", 3},   {"2.49", 2}, {"-0.5", 0}, {"-1.5", -2}, {"-2.5", -2},
          {".9", 1},           {"2.5.1", 2},  {".", 0},    {"-", 0},    {"1,9", 1},   {"32767.4", 32767}}) {
        EXPECT_EQ(leadingNumber(text), number) << "\"" << text << "\"";
    }
}

TEST_F(SettingsFile, every_key_reaches_its_variable_and_no_other) {
    for (std::size_t index = 0; index < keys.size(); ++index) {
        EXPECT_EQ(valuesOf(read(std::string("[INIT]\r\n") + keys[index] + "=2\r\n")), only(index, 2)) << keys[index];
    }
    std::string text = "[INIT]\r\n";
    Values opposite{};
    for (std::size_t index = keys.size(); index-- > 0;) {  // the order in the file is of no account
        opposite[index] = makersValues[index] != 0 ? 0 : 1;
        text += std::string(keys[index]) + "=" + std::to_string(opposite[index]) + "\r\n";
    }
    EXPECT_EQ(valuesOf(read(text)), opposite);
    EXPECT_EQ(read(text).iniPath, path().string());
}

TEST_F(SettingsFile, clears_the_board_state_first) {
    std::ofstream(path()) << "[INIT]\nIOS-QDA52=6\n";
    Machine machine;
    Mdef_Set(machine);
    machine.mode52 = 3;
    machine.doLatch52 = 9;
    machine.writeTempHighFull = true;
    readSettings(machine, folder);
    EXPECT_EQ(valuesOf(machine), only(12, 6));
    EXPECT_EQ(machine.doLatch52, 0U);
    EXPECT_FALSE(machine.writeTempHighFull);
}

TEST_F(SettingsFile, is_read_in_every_form_of_text) {
    const std::string mark = "\xEF\xBB\xBF";
    const std::string codePage = "\x93\xfa\x96\x7b=1\r\n; \x83\x5c\x83\x5d\r\n\x83\x5c=\x83\x5b\r\n";
    for (const std::string& text : {
             std::string("[INIT]\nMODE-QDA52=3\n"),
             std::string("[INIT]\r\nMODE-QDA52=3"),
             mark + "[INIT]\r\nMODE-QDA52=3\r\n",
             mark + "; 設定\n[INIT]\n日本=1\nMODE-QDA52=3\n",
             "[INIT]\r\n" + codePage + "MODE-QDA52=3\r\n",
             std::string("[OTHER]\nMODE-QDA52=1\n[init]\n;MODE-QDA52=2\nmode-Qda52=3\n[MORE]\nMODE-QDA52=1\n"),
             std::string("  [INIT]  \n\t MODE-QDA52\t = \t3 \n"),
             std::string("[INIT]\nMODE-QDA52=\"3\"\n"),
             std::string("[INIT]\nMODE-QDA52= '3' \r\n"),
             std::string("[INIT]\nMODE-QDA52=3\nMODE-QDA52=1\n"),
             std::string("[INIT]\nMODE-QDA5=1\nMODE-QDA522=1\nMODE-QDA52=3=1\n"),
             std::string("[\n[]\n]\n=\n[INIT]\n]\n=\n\nno equals sign\nMODE-QDA52=3\n"),
             "[INIT]\nLONG=" + std::string(300000, 'x') + "\n" + std::string(300000, 'y') + "\nMODE-QDA52=3\n",
             "[INIT]\nMODE-QDA52=" + std::string(100000, ' ') + "3\n",
             "[INIT]\nMODE-QDA52=" + std::string(254, '0') + "3\n",
             std::string("[INIT]\n\0\0\nMODE-QDA52=3\n\0", 25),
         }) {
        EXPECT_EQ(valuesOf(read(text)), only(13, 3)) << text.substr(0, 80);
    }
    for (const std::string& text :
         {std::string("MODE-QDA52=3\n"), std::string("[INITIAL]\nMODE-QDA52=3\n"), std::string("[INIT]\n[MORE]\nMODE-QDA52=3\n"),
          std::string("[INIT]\nMODE-QDA52=\n"), "[INIT]\nMODE-QDA52=" + std::string(255, '0') + "3\n"}) {
        EXPECT_EQ(valuesOf(read(text)), Values{}) << text.substr(0, 80);
    }
}

TEST_F(SettingsFile, an_index_outside_its_list_or_16_bits_reads_as_absent) {
    constexpr int last = 32767;
    constexpr Values greatest{last, last, 3, last, 62, 62, 62, 3, 2, 3, 2, last, 7, 3, last, last, last, last, last};
    for (std::size_t index = 0; index < keys.size(); ++index) {
        const bool list = greatest[index] != last;
        const auto expect = [this, index](const std::string& number, int taken) {
            EXPECT_EQ(valuesOf(read(std::string("[INIT]\n") + keys[index] + "=" + number)), only(index, taken))
                << keys[index] << "=" << number;
        };
        expect(std::to_string(greatest[index]), greatest[index]);
        expect(std::to_string(greatest[index] + 1), 0);
        expect("-1", list ? 0 : -1);
        expect("-32768", list ? 0 : -32768);
        for (const char* number : {"-32769", "65537", "4294967297", "99999999999999999999"}) {
            expect(number, 0);
        }
    }
}

TEST_F(SettingsFile, that_is_missing_a_folder_or_noise_reads_as_a_missing_one) {
    EXPECT_EQ(valuesOf(read()), Values{});

    std::string noise(1 << 19, ' ');
    std::minstd_rand random;
    for (char& byte : noise) {
        byte = static_cast<char>(random() >> 8);
    }
    EXPECT_EQ(valuesOf(read(noise)), Values{});

    fs::resize_file(path(), 100'000'000);
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(valuesOf(read()), Values{});
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(2)) << "the start must not hang on it";

    fs::remove(path());
    fs::create_directory(path());
    EXPECT_EQ(valuesOf(read()), Values{});

    fs::remove_all(folder);
    EXPECT_EQ(valuesOf(read()), Values{});
}

TEST_F(SettingsFile, that_cannot_be_read_reads_as_a_missing_one) {
    std::ofstream(path()) << "[INIT]\nMODE-QDA52=3\n";
    fs::permissions(path(), fs::perms::none);
    if (!std::ifstream(path())) {  // somebody who may read everything learns nothing here
        EXPECT_EQ(valuesOf(read()), Values{});
    }
    fs::remove(path());

    const fs::path failing = "/proc/self/mem";  // opens, and fails at the first byte
    if (!fs::exists(failing)) {
        GTEST_SKIP() << "no file here that fails when it is read";
    }
    fs::create_symlink(failing, path());
    EXPECT_EQ(valuesOf(read()), Values{});
}

TEST_F(SettingsFile, without_one_all_boards_stand_on_SA_1_and_off_the_cable) {
    Machine machine = read();
    setUpBench(machine);
    EXPECT_EQ(machine.boardSA, (std::array<std::int16_t, 3>{1, 1, 1}));
    for (const Connector& link : machine.picBOARD2_RXD) {
        EXPECT_FALSE(link.plugged);
    }
    EXPECT_FALSE(machine.picBOARD1_RXD[0].plugged || machine.picBridge.visible);
    EXPECT_EQ(machine.duplexBit, 16);
}

TEST(MakersValues, put_four_answering_stations_on_the_cable) {
    Machine machine;
    for (const Setting& setting : settings) {
        setting.variable(machine) = 2;
    }
    machine.transferDefault.fill(1);
    Mdef_Set(machine);
    EXPECT_EQ(valuesOf(machine), makersValues);
    EXPECT_EQ(machine.iniPath, "");

    setUpBench(machine);
    resetRegisters(machine);
    machine.chipMemory[reg::scrHigh] = 5;
    for (const int slot : {slotQDA73, slotQDA41, slotCascade, slotQDA52}) {
        setInput(machine, slot, slot);
    }
    ticks(machine, 5);
    for (const auto& [sa, slot] : Rows<2>{{1, slotQDA73}, {2, slotQDA41}, {3, slotCascade}, {4, slotQDA52}}) {
        EXPECT_EQ(memoryWord(machine, diBase + 2 * sa), slot);
        EXPECT_EQ(statusOf(machine, sa), 0);
    }
    EXPECT_EQ(statusOf(machine, 5), 0x14) << "nobody there";
}

}  // namespace
