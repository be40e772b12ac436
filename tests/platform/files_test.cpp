// SPDX-License-Identifier: Apache-2.0
// Files that somebody else wrote, and files that break while they are written: bounded, whole, inside their folder.

#include "platform/paths.h"
#include "platform/pictureFile.h"
#include "platform/settingsFile.h"
#include "platform/textFile.h"
#include "platform/wholeFile.h"
#include "tests/platform/failingDisk.h"
#include "tests/tempFolder.h"

#include <QBuffer>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <future>
#include <optional>
#include <set>

#ifdef __unix__
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

class Files : public TempFolder {
protected:
    static std::set<std::string> namesIn(const fs::path& place) {
        std::set<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(place)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }
    fs::path path = folder / "VRB_TS2.INI";
};

#ifdef __unix__
// The superuser may do everything: for him somebody else tries.
template <class Action>
auto asAnybody(Action action) {
    const bool changed = geteuid() == 0 && seteuid(65534) == 0;
    const auto result = action();
    EXPECT_TRUE(!changed || seteuid(0) == 0);
    return result;
}
#endif

// --- names -----------------------------------------------------------------------------------------------------------------

TEST_F(Files, names_in_lists_stay_inside_their_folder_and_count_in_any_case) {
    fs::create_directories(folder / "below");
    put(folder / "T1.TXT", "");
    put(folder / "t1.txt", "");
    put(folder / "below" / "two.Txt", "");
    put(folder.string() + "-outside.txt", "");
    for (const auto& [name, found] : {std::pair{"T1.TXT", "T1.TXT"},
                                      {"t1.txt", "t1.txt"},
                                      {"T1.txt", "T1.TXT"},
                                      {"BELOW\\TWO.TXT", fs::exists(folder / "BELOW") ? "below/two.Txt" : ""},
                                      {"below\\TWO.TXT", "below/two.Txt"},
                                      {"./below/two.txt", "./below/two.Txt"},
                                      {"none.txt", ""},
                                      {"", ""}}) {
        const fs::path there = fileInFolder(folder, name);
        EXPECT_TRUE(*found != '\0' ? fs::equivalent(there, folder / found) : there.empty()) << name;
    }
    const QString outside = QString::fromStdString("../" + folder.filename().string() + "-outside.txt");
    const QString upper = QString(outside).replace('/', '\\').toUpper();
    for (const QString& name : {outside, upper, "below/" + outside, textOfPath(folder / "t1.txt"), QStringLiteral("..")}) {
        EXPECT_TRUE(fileInFolder(folder, name).empty()) << name.toStdString();
    }
    for (const char* name :
         {"C:\\x.bmp", "c:x.bmp", "x.bmp:stream", "\\\\server\\share\\x.bmp", "//server/x.bmp", "\\x.bmp", "a\\..\\x.bmp",
          ".. /x.bmp", "a/. ./x.bmp", ".../x.bmp", "NUL", "a\\con.bmp", "com1.txt", "lpt9 .bmp"}) {
        EXPECT_FALSE(staysInFolder(name)) << name;
    }
    for (const char* name : {"x.bmp", "a/b.c/x.bmp", "..x", "x..", ".x", "./x", "console.bmp", "com10.bmp", "日本.bmp"}) {
        EXPECT_TRUE(staysInFolder(name)) << name;
    }
    fs::remove(folder.string() + "-outside.txt");
}

// --- reading ---------------------------------------------------------------------------------------------------------------

TEST_F(Files, are_read_to_their_end_and_never_without_a_bound) {
    put(folder / "full", std::string(100, 'x'));
    put(folder / "more", std::string(101, 'x'));
    put(folder / "sparse", "");
    fs::resize_file(folder / "sparse", std::uintmax_t{12} << 30);
    fs::create_directory(folder / "folder");
    using enum std::errc;
    using Row = std::pair<fs::path, std::errc>;
    constexpr std::errc none{};
    std::vector rows{Row{"full", none}, Row{"more", file_too_large}, Row{"sparse", file_too_large}, Row{"folder", is_a_directory},
                     Row{"none", no_such_file_or_directory}};
#ifdef __linux__  // Windows gives links to administrators alone, and has no such files
    fs::create_symlink("full", folder / "link");
    fs::create_symlink("loop", folder / "loop");
    fs::create_symlink("/dev/zero", folder / "endless");
    // The memory of a process fails at its first byte, and its map is longer than its 0 bytes.
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    rows.insert(rows.end(), {Row{"link", none}, Row{"full/below", not_a_directory}, Row{"loop", too_many_symbolic_link_levels},
                             Row{"endless", invalid_argument}, Row{"pipe", invalid_argument}, Row{"/proc/self/mem", io_error},
                             Row{"/proc/self/smaps", file_too_large}});
#endif
    for (const auto& [name, error] : rows) {
        std::string bytes = "old";
        EXPECT_EQ(readWholeFile(folder / name, 100, bytes), error) << name;
        EXPECT_EQ(bytes, error != none ? "" : std::string(100, 'x')) << name;
    }
#ifdef __unix__  // elsewhere the bits take no one's permission to read
    std::string bytes;
    fs::permissions(folder / "full", fs::perms::none);
    EXPECT_EQ(asAnybody([&] { return readWholeFile(folder / "full", 100, bytes); }), std::errc::permission_denied);
#endif
}

TEST_F(Files, of_text_are_read_in_every_encoding) {
    const auto read = [this](const std::string& bytes) {
        put(path, bytes);
        return readTextFile(path);
    };
    for (const char* bytes :
         {"\xEF\xBB\xBF試験", "試験", "\x8e\x8e\x8c\xb1", "\xFF\xFE\x66\x8A\x13\x9A", "\xFE\xFF\x8A\x66\x9A\x13"}) {
        EXPECT_EQ(read(bytes), "試験") << bytes;
    }
    EXPECT_TRUE(read("\x81\xff\xff").has_value());
    EXPECT_EQ(read(std::string(std::size_t{4} << 20, 'x'))->size(), std::size_t{4} << 20);
    EXPECT_EQ(read(std::string((std::size_t{4} << 20) + 1, 'x')), std::nullopt);
    EXPECT_EQ(readTextFile(folder / "none"), std::nullopt);
}

// --- pictures --------------------------------------------------------------------------------------------------------------

std::string encoded(const char* format, int width, int height, Qt::GlobalColor colour = Qt::white) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(colour);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, format));
    return buffer.data().toStdString();
}

TEST_F(Files, of_pictures_are_of_the_formats_meant_and_within_their_bounds) {
    const std::string svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><rect width="9" height="9"/></svg>)";
    std::string claims = encoded("BMP", 1, 1);
    claims.replace(18, 8, std::string("\x88\x13\0\0\x88\x13\0\0", 8));  // 5000 on each side
    const std::string notBmp = " は BMP 形式の画像として読めません。";
    struct Row {
        std::string name;
        std::string bytes;
        std::string reason;
    };
    for (const Row& row :
         {Row{"1.BMP", encoded("BMP", 9, 9), ""}, Row{"2.BMP", encoded("BMP", 4096, 1), ""},
          Row{"3.BMP", encoded("BMP", 4097, 1), " は大きすぎます。"}, Row{"4.BMP", encoded("BMP", 1, 4097), " は大きすぎます。"},
          Row{"5.BMP", claims, " は大きすぎます。"}, Row{"6.BMP", svg, notBmp}, Row{"7.BMP", encoded("PNG", 9, 9), notBmp},
          Row{"8.BMP", encoded("JPG", 9, 9), notBmp}, Row{"9.BMP", "", notBmp},
          Row{"../" + folder.filename().string() + "/1.BMP", "", " はフォルダの外のファイルです。"},
          Row{"none.BMP", "", " が見つかりません。"}, Row{"", "", "画像のファイル名がありません。"}}) {
        if (row.name.size() == 5) {
            put(folder / row.name, row.bytes);
        }
        const Picture picture = loadPicture(folder, QString::fromStdString(row.name), 1);
        EXPECT_EQ(picture.reason.toStdString(), row.reason.empty() ? "" : row.name + row.reason);
        EXPECT_EQ(picture.image.isNull(), !row.reason.empty()) << row.name;
    }
    EXPECT_TRUE(decodePicture(encoded("PNG", 4097, 1), PictureFormat::png).isNull());
    fs::resize_file(folder / "1.BMP", std::uintmax_t{12} << 30);
    EXPECT_EQ(loadPicture(folder, "1.BMP", 1).reason, "1.BMP は大きすぎます。");
#ifdef __linux__
    fs::remove(folder / "1.BMP");
    fs::create_symlink("/dev/zero", folder / "1.BMP");
    EXPECT_EQ(loadPicture(folder, "1.BMP", 1).reason, "1.BMP を読めません。");
#endif
}

TEST_F(Files, beside_a_picture_twice_its_size_are_taken_where_they_fit) {
    const auto later = std::chrono::hours(1);
    put(folder / "A.BMP", encoded("BMP", 60, 40));
    const fs::path twice = folder / "A@2x.png";
    std::string broken = encoded("PNG", 120, 80);
    broken.resize(broken.size() / 2);
    struct Row {
        std::string bytes;
        qreal screen;
        qreal ratio;
        bool older = false;
        std::uintmax_t length = 0;
    };
    for (const Row& row : {Row{encoded("PNG", 120, 80, Qt::red), 2, 2}, Row{encoded("PNG", 120, 80, Qt::red), 1.5, 2},
                           Row{encoded("PNG", 120, 80, Qt::red), 1, 1}, Row{encoded("PNG", 120, 80, Qt::red), 2, 1, true},
                           Row{encoded("PNG", 120, 81, Qt::red), 2, 1}, Row{encoded("BMP", 120, 80, Qt::red), 2, 1},
                           Row{broken, 2, 1}, Row{encoded("PNG", 120, 80, Qt::red), 2, 1, false, std::uintmax_t{12} << 30}}) {
        put(twice, row.bytes);
        if (row.length != 0) {
            fs::resize_file(twice, row.length);
        }
        fs::last_write_time(twice, fs::last_write_time(folder / "A.BMP") + (row.older ? -later : later));
        const Picture picture = loadPicture(folder, "A.BMP", row.screen);
        EXPECT_EQ(picture.image.devicePixelRatio(), row.ratio);
        EXPECT_EQ(picture.image.deviceIndependentSize(), QSizeF(60, 40)) << picture.reason.toStdString();
        EXPECT_EQ(picture.image.pixelColor(30, 20), QColor(row.ratio == 2 ? Qt::red : Qt::white));
    }
}

// --- saving ----------------------------------------------------------------------------------------------------------------

const std::string before = "[INIT]\nA=1\n";
const std::string after = "[INIT]\nA=2\n;" + std::string(100000, 'x');

#ifdef __linux__
TEST_F(Files, whose_save_fails_at_any_call_of_the_system_are_the_old_ones_and_say_why) {
    std::vector<std::string> calls;
    for (std::size_t failing = 0;; ++failing) {
        SCOPED_TRACE(failing);
        put(path, before);
        calls.clear();
        failingDisk::before = [&](const char* call) {
            calls.emplace_back(call);
            return calls.size() == failing + 1 ? ENOSPC : 0;
        };
        const std::error_code error = saveWholeFile(path, after);
        failingDisk::before = {};
        EXPECT_EQ(namesIn(folder), (std::set<std::string>{"VRB_TS2.INI"})) << "nothing is left beside it";
        EXPECT_EQ(bytesOf(path), error ? before : after);
        if (calls.size() <= failing) {
            EXPECT_FALSE(error);
            break;
        }
        // Permissions that can't be kept are no reason to keep nothing; the last fsync is the folder's.
        const bool matters = calls.back() == "write" || calls.back() == "rename" || calls.back() == "linkat" ||
                             (calls.back() == "fsync" && std::count(calls.begin(), calls.end(), "rename") == 0);
        if (matters && calls.back() != "linkat") {
            EXPECT_EQ(error, std::errc::no_space_on_device) << calls.back();
        }
    }
    for (const char* call : {"write", "fsync", "rename"}) {
        EXPECT_GE(std::count(calls.begin(), calls.end(), call), 1) << call;
    }
}

TEST_F(Files, whose_save_is_killed_at_any_call_of_the_system_are_the_old_ones_or_the_new) {
    bool whole = false;
    for (int last = 0; !whole; ++last) {
        SCOPED_TRACE(last);
        put(path, before);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            failingDisk::before = [left = last](const char*) mutable { return left-- == 0 ? raise(SIGKILL) : 0; };
            saveWholeFile(path, after);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        whole = WIFEXITED(status);
        EXPECT_TRUE(bytesOf(path) == after || (!whole && bytesOf(path) == before));
        EXPECT_FALSE(saveWholeFile(path, before)) << "what the kill left is in nobody's way";
    }
}

#endif

TEST_F(Files, that_two_programs_save_at_once_are_always_one_of_theirs_and_whole) {
    const std::string theirs = "[INIT]\nA=3\n;" + std::string(200000, 'y');
    const auto failures = [&](const std::string& bytes) {
        int count = 0;
        for (int done = 0; done < 200; ++done) {
            std::string found;
            const bool kept = !saveWholeFile(path, bytes) && !readWholeFile(path, 1 << 20, found);
            count += kept && (found == after || found == theirs) ? 0 : 1;
        }
        return count;
    };
    auto others = std::async(std::launch::async, failures, theirs);
    EXPECT_EQ(failures(after), 0);
    EXPECT_EQ(others.get(), 0);
    EXPECT_EQ(namesIn(folder).size(), 1U);
}

TEST_F(Files, saved_keep_permissions_owner_and_links_and_their_protection) {
    const fs::path deep = folder / "user" / "config" / "VRB_TS2.INI";
    EXPECT_FALSE(saveWholeFile(deep, after)) << "with the folders that are missing";
#ifdef __unix__  // elsewhere there are no such permissions and owners, and links for administrators alone
    constexpr fs::perms ownersAlone = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(deep, ownersAlone);
    fs::create_symlink(deep, folder / "first");
    fs::create_symlink("first", path);
    const bool mayGive = ::chown(deep.c_str(), 4321, 1234) == 0;
    EXPECT_FALSE(saveWholeFile(path, before));
    EXPECT_TRUE(fs::is_symlink(path) && fs::is_symlink(folder / "first"));
    EXPECT_EQ(bytesOf(deep), before);
    EXPECT_EQ(fs::status(deep).permissions(), ownersAlone);
    struct stat status {};
    ASSERT_EQ(stat(deep.c_str(), &status), 0);
    EXPECT_TRUE(!mayGive || (status.st_uid == 4321 && status.st_gid == 1234));
#else
    EXPECT_FALSE(saveWholeFile(path, before) || saveWholeFile(deep, before));
    fs::permissions(path, fs::perms::owner_read);
#endif
    fs::permissions(deep, fs::perms::owner_read | fs::perms::group_read);
    for (const fs::path& name : {deep, path}) {
        EXPECT_EQ(saveWholeFile(name, after), std::errc::permission_denied) << "who protects a file means it";
    }
    EXPECT_EQ(bytesOf(deep), before);

    put(folder / "file", before);
    fs::create_directory(folder / "folder");
    EXPECT_EQ(saveWholeFile(folder / "file" / "below" / "it", after), std::errc::not_a_directory);
    EXPECT_EQ(saveWholeFile(folder / "folder", after), std::errc::is_a_directory);
}

// --- the settings' place ---------------------------------------------------------------------------------------------------

TEST_F(Files, of_settings_lie_beside_the_program_or_with_the_user_in_any_case_of_their_name) {
    EXPECT_EQ(programFolder(folder), folder);
    EXPECT_EQ(programFolder(folder / "Contents" / "MacOS"), folder / "Contents" / "MacOS") << "no bundle";
    const fs::path contents = folder / "vrb-ts.app" / "Contents";
    fs::create_directories(contents / "Resources");
    EXPECT_EQ(programFolder(contents / "MacOS"), folder) << "as it was built";
    put(contents / "Resources" / "VRB_TS2.INI", "");
    EXPECT_EQ(programFolder(contents / "MacOS"), contents / "Resources") << "as it was installed";

    const fs::path user = folder / "user";
    const SettingsPlace own(folder, user);
    EXPECT_EQ(own.saved(), path);
    EXPECT_EQ(own.toRead(), fs::path());
    put(folder / "vrb_ts2.ini", "");
    EXPECT_TRUE(fs::equivalent(own.saved(), folder / "vrb_ts2.ini"));
    EXPECT_EQ(own.toRead(), own.saved());
    EXPECT_EQ(SettingsPlace(folder / "missing", user).saved(), user / "VRB_TS2.INI");
    put(folder / uninstallerName, "");
    EXPECT_EQ(SettingsPlace(folder, user).saved(), user / "VRB_TS2.INI") << "the installer's folder";
    fs::remove(folder / uninstallerName);

#ifdef __unix__  // elsewhere the bits of a folder keep nobody from making files in it
    fs::permissions(folder, fs::perms(0555));
    const SettingsPlace installed = asAnybody([&] { return SettingsPlace(folder, user); });
    fs::permissions(folder, fs::perms::owner_all);
#else
    put(folder / uninstallerName, "");
    const SettingsPlace installed(folder, user);
#endif
    EXPECT_TRUE(fs::equivalent(installed.toRead(), folder / "vrb_ts2.ini")) << "until the first save";
    EXPECT_FALSE(saveWholeFile(installed.saved(), ""));
    EXPECT_EQ(installed.toRead(), user / "VRB_TS2.INI");
}

TEST_F(Files, of_killed_saves_go_and_no_others) {
    fs::create_directory(folder / "real");
#ifdef __unix__  // Windows gives links to administrators alone
    fs::create_symlink("real/VRB_TS2.INI", path);
    const SettingsPlace place(folder);
#else
    const SettingsPlace place(folder / "real");
#endif
    const std::set<std::string> kept{"VRB_TS2.INI", "VRB_TS2.INI.backup", "VRB_TS2.INI.mine.tmp", "OTHER.INI.1.tmp"};
    for (const std::string& name : kept) {
        put(folder / "real" / name, "");
    }
    put(folder / "real/VRB_TS2.INI.4711.tmp", "");
    put(folder / "real/vrb_ts2.ini.1.tmp", "");
    place.clearAway();
    EXPECT_EQ(namesIn(folder / "real"), kept);
}

}  // namespace
