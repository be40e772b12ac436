// The settings file: numbers, forms of the file, the way of every key to its variable, and files that are none.

#include "config/settings.h"

#include "tests/bench.h"
#include "tests/config/tempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#ifdef __unix__
#include <unistd.h>
#endif

namespace {

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

class SettingsFile : public TempFolder {
protected:
    fs::path path() const { return folder / "VRB_TS2.INI"; }
    Machine read(const std::string& bytes) {
        put(path(), bytes);
        return read();
    }
    Machine read() {
        Machine machine;
        readSettings(machine, folder);
        return machine;
    }
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
             std::string("[INIT]\nMODE-QDA52=\"3\" ; \"1\"\n"),
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

// --- the dialog's operations -----------------------------------------------------------------------------------------------

std::size_t rowOf(std::string_view key) {
    return static_cast<std::size_t>(std::distance(
        settings.begin(), std::find_if(settings.begin(), settings.end(), [&](const Setting& s) { return s.key == key; })));
}

TEST_F(SettingsFile, a_saved_key_reaches_the_board_at_the_next_start) {
    struct Row {
        const char* key;
        std::int16_t value;
        int (*onTheBench)(const Machine&);
        int expected;
        int withoutIt;  // when the value is 0
    };
    for (const Row& row : {
             Row{"CABLECONNECTION", 1, [](const Machine& m) { return int{m.picBOARD2_RXD[0].plugged}; }, 1, 0},
             Row{"MEMORYCLEAR", 1, [](const Machine& m) { return int{m.memoryClearDefault}; }, 1, 0},
             Row{"TRANSFER", 1, [](const Machine& m) { return int{m.duplexBit}; }, 0, fullDuplexBit},
             Row{"CPUTYPE", 3, [](const Machine& m) { return int{bus8bit(m) && bigEndian(m)}; }, 1, 0},
             Row{"SA-QDA41", 62, [](const Machine& m) { return int{m.boardSA[saQDA41]}; }, 63, 1},
             Row{"SA-QDA73", 9, [](const Machine& m) { return int{m.boardSA[saQDA73]}; }, 10, 1},
             Row{"SA-QDA52", 15, [](const Machine& m) { return int{m.boardSA[saQDA52]}; }, 16, 1},
             Row{"CLOCK-QDA41", 2, [](const Machine& m) { return int{m.cmbClock41.listIndex}; }, 2, 0},
             Row{"CLOCK-QDA73", 3, [](const Machine& m) { return int{m.boardClock[clockQDA73]}; }, 3, 0},
             Row{"CLOCK-QDA52", 1, [](const Machine& m) { return int{m.boardClock[clockQDA52]}; }, 1, 0},
             Row{"CASCADE-QDA41", 1, [](const Machine& m) { return int{m.picBridge.visible}; }, 1, 0},
             Row{"IOS-QDA52", 7, [](const Machine& m) { return int{m.ios52}; }, 7, 0},
             Row{"MODE-QDA52", 2, [](const Machine& m) { return int{m.cmbMode.listIndex}; }, 2, 0},
             Row{"OPENWINDOW1", 1, [](const Machine& m) { return int{m.openWindowDefault[1]}; }, 1, 0},
             Row{"OPENWINDOW2", 1, [](const Machine& m) { return int{m.openWindowDefault[2]}; }, 1, 0},
             Row{"OPENWINDOW3", 1, [](const Machine& m) { return int{m.openWindowDefault[3]}; }, 1, 0},
             Row{"OPENWINDOW4", 1, [](const Machine& m) { return int{m.openWindowDefault[4]}; }, 1, 0},
             Row{"OPENWINDOW5", 1, [](const Machine& m) { return int{m.openWindowDefault[5]}; }, 1, 0},
         }) {
        SCOPED_TRACE(row.key);
        for (const bool set : {true, false}) {
            DialogValues values{};
            values[rowOf(row.key)] = set ? row.value : std::int16_t{0};
            ASSERT_FALSE(saveDialog(folder, values));
            EXPECT_EQ(loadDialog(readProfileFile(path())), values);
            Machine machine = read();
            setUpBench(machine);
            resetRegisters(machine);
            EXPECT_EQ(row.onTheBench(machine), set ? row.expected : row.withoutIt);
        }
    }
}

TEST_F(SettingsFile, a_save_keeps_what_is_not_its_own_and_writes_a_new_file_in_order) {
    const std::string made =
        "[INIT]\r\nCABLECONNECTION=1\r\nMEMORYCLEAR=1\r\nTRANSFER=0\r\nCPUTYPE=0\r\nSA-QDA41=1\r\nSA-QDA73=0\r\nSA-QDA52=3\r\n"
        "CLOCK-QDA41=0\r\nCLOCK-QDA73=0\r\nCLOCK-QDA52=0\r\nCASCADE-QDA41=1\r\nIOS-QDA52=5\r\nMODE-QDA52=0\r\nOPENWINDOW1=1\r\n"
        "OPENWINDOW2=1\r\nOPENWINDOW3=1\r\nOPENWINDOW4=0\r\nOPENWINDOW5=0";
    ASSERT_FALSE(saveDialog(folder, setDialogMaker()));
    EXPECT_EQ(bytesOf(path()), made + "\r\n");

    put(path(), "; mine\n[INIT]\nCLOCK-QDA60=2\nIOS-QDA52=1 ; first\nMINE=x\n" + made.substr(8) + "\n[MINE]\nCPUTYPE=3\n");
    std::string kept = bytesOf(path());
    kept.replace(kept.find("=1 ; first") + 1, 1, "5");
    ASSERT_FALSE(saveDialog(folder, setDialogMaker()));
    EXPECT_EQ(bytesOf(path()), kept);
    EXPECT_EQ(read().boardClock[clockCenter], 2);
}

TEST_F(SettingsFile, each_absent_key_reads_as_0_and_leaves_the_others) {
    for (std::size_t absent = 0; absent < keys.size(); ++absent) {
        std::string text = "[INIT]\n";
        Values expected = makersValues;
        for (std::size_t index = 0; index < keys.size(); ++index) {
            text += index == absent ? "" : std::string(keys[index]) + "=" + std::to_string(makersValues[index]) + "\n";
        }
        expected[absent] = 0;
        EXPECT_EQ(valuesOf(read(text)), expected) << keys[absent];
    }
}

TEST(SettingsDialog, a_box_is_ticked_for_a_number_above_0_and_a_list_takes_its_index) {
    struct Row {
        const char* text;
        int box;
        int list;
    };
    for (const Row& row : {Row{"1", 1, 1},
                           {"2", 1, 2},
                           {"0", 0, 0},
                           {"-1", 0, 0},
                           {"12abc", 1, 12},
                           {"abc", 0, 0},
                           {"99999999999", 0, 0},
                           {"0x10", 0, 0},
                           {"", 0, 0},
                           {"   ", 0, 0},
                           {" 7 ", 1, 7},
                           {"63", 1, 0}}) {
        for (const auto& [key, expected] : {std::pair{"OPENWINDOW3", row.box}, {"TRANSFER", row.box}, {"SA-QDA52", row.list}}) {
            DialogValues values{};
            values[rowOf(key)] = static_cast<std::int16_t>(expected);
            EXPECT_EQ(loadDialog(ProfileFile(std::string("[INIT]\n") + key + "=" + row.text)), values) << key << "=" << row.text;
        }
    }
    EXPECT_EQ(loadDialog(ProfileFile("[INIT]\nCLOCK-QDA60=1\n")), DialogValues{}) << "the dialog has no control for it";
}

TEST(SettingsDialog, applied_values_reach_the_machine_but_no_counter_mode_and_no_rate_of_the_center) {
    Machine machine = makersMachine();
    machine.mode52 = 2;
    machine.boardClock[clockCenter] = 3;
    DialogValues values = setDialogMaker();
    for (const auto& [key, value] : {std::pair{"TRANSFER", 1}, {"MODE-QDA52", 3}, {"IOS-QDA52", 7}, {"SA-QDA73", 20}}) {
        values[rowOf(key)] = static_cast<std::int16_t>(value);
    }
    applyDialog(machine, values);
    Values expected = makersValues;
    expected[3] = 1;
    expected[5] = 20;
    expected[12] = 7;
    EXPECT_EQ(valuesOf(machine), expected);
    setUpBench(machine);
    EXPECT_EQ(machine.boardSA, (std::array<std::int16_t, 3>{2, 21, 4})) << "indices became addresses";
    EXPECT_FALSE(machine.picPI[79].visible) << "mode 7 takes pin 15 away";
}

// --- where the file lies ---------------------------------------------------------------------------------------------------

// The superuser may write everywhere: for him somebody else looks.
template <class Action>
auto asAnybody(Action action) {
#ifdef __unix__
    const bool changed = geteuid() == 0 && seteuid(65534) == 0;
    const auto result = action();
    EXPECT_TRUE(!changed || seteuid(0) == 0);
    return result;
#else
    return action();
#endif
}

TEST_F(SettingsFile, lies_beside_the_executable_or_in_the_resources_of_its_bundle) {
    EXPECT_EQ(programFolder(folder), folder);
    EXPECT_EQ(programFolder(folder / "Contents" / "MacOS"), folder / "Contents" / "MacOS") << "no bundle";

    const fs::path contents = folder / "vrb-ts.app" / "Contents";
    fs::create_directories(contents / "Resources");
    EXPECT_EQ(programFolder(contents / "MacOS"), folder) << "as it was built";
    put(contents / "Resources" / "VRB_TS2.INI", "[INIT]\n");
    EXPECT_EQ(programFolder(contents / "MacOS"), contents / "Resources") << "as it was installed";
}

TEST_F(SettingsFile, lies_with_the_user_where_the_programs_folder_cannot_be_written) {
    const fs::path user = folder / "user";
    EXPECT_EQ(SettingsPlace(folder, user).saved(), path());
    EXPECT_EQ(SettingsPlace(folder / "missing", user).saved(), user / "VRB_TS2.INI");
    put(folder / uninstallerName, "");
    EXPECT_EQ(SettingsPlace(folder, user).saved(), user / "VRB_TS2.INI") << "the installer's folder";
    fs::remove(folder / uninstallerName);

    put(path(), "[INIT]\nIOS-QDA52=6\n; shipped\n");
    fs::permissions(folder, fs::perms(0555));
    const SettingsPlace installed = asAnybody([&] { return SettingsPlace(folder, user); });
    fs::permissions(folder, fs::perms::owner_all);
    Machine machine;
    readSettings(machine, installed);
    EXPECT_EQ(machine.ios52, 6) << "until the first save";
    ASSERT_FALSE(saveDialog(installed, setDialogMaker()));
    EXPECT_EQ(installed.saved(), user / "VRB_TS2.INI");
    EXPECT_EQ(installed.toRead(), installed.saved());
    EXPECT_NE(bytesOf(installed.saved()).find("; shipped"), std::string::npos);
    EXPECT_EQ(bytesOf(path()), "[INIT]\nIOS-QDA52=6\n; shipped\n");
}

TEST_F(SettingsFile, that_cannot_be_kept_whole_is_not_saved_over) {
    put(path(), std::string((1 << 20) + 1, ' '));
    const auto error = saveDialog(folder, setDialogMaker());
    ASSERT_TRUE(error);
    EXPECT_EQ(fs::file_size(path()), (1U << 20) + 1);
    EXPECT_EQ(saveWarning(*error), (Warning{"設定をファイルに保存できませんでした。\n\nファイル： " + path().string() +
                                            "\n理由： ファイルが大きすぎます。"}));
}

}  // namespace
