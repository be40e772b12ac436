// The profile file under the pen: what a new value changes, what it leaves alone, and saves that break in the middle.

#include "config/profileFile.h"

#include "tests/config/tempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <vector>

#ifdef __unix__
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

TEST(ProfileFile, a_new_value_changes_the_bytes_of_the_old_one_and_no_other) {
    const std::string codePage = "; \x83\x5c\x83\x5d\r\n\x83\x5c=\x83\x5b\r\n";  // second bytes that are ASCII letters
    struct Row {
        std::string before;
        std::string after;  // with KEY=42 set in section INIT
    };
    for (const auto& [before, after] : {
             // where it stands
             Row{"[INIT]\r\nA=1\r\nKEY=7\r\nB=2\r\n", "[INIT]\r\nA=1\r\nKEY=42\r\nB=2\r\n"},
             Row{"\xEF\xBB\xBF[INIT]\nKEY=-7000", "\xEF\xBB\xBF[INIT]\nKEY=42"},
             Row{"[OTHER]\nKEY=1\n[init]\n;KEY=2\n\t key \t= \t3 \t\n[MORE]\nKEY=4\n",
                 "[OTHER]\nKEY=1\n[init]\n;KEY=2\n\t key \t= \t42 \t\n[MORE]\nKEY=4\n"},
             Row{"[INIT]\nKEY=1\nKEY=2\n", "[INIT]\nKEY=42\nKEY=2\n"},
             Row{"[INIT]\nKEY=\n", "[INIT]\nKEY=42\n"},
             Row{"[INIT]\rKEY = \"7\" \rA=1\r", "[INIT]\rKEY = \"42\" \rA=1\r"},
             Row{"[INIT]\nKEY=7 ; seven\nA=';'\n", "[INIT]\nKEY=42 ; seven\nA=';'\n"},
             Row{"[INIT]\nKEY='7'\t; 'seven'\n", "[INIT]\nKEY='42'\t; 'seven'\n"},
             Row{"[INIT]\nKEY= ; none\n", "[INIT]\nKEY=42 ; none\n"},
             Row{"[INIT]\nKEY=\" ;\"\n", "[INIT]\nKEY=\"42\"\n"},
             Row{codePage + "[INIT]\r\nKEY=7\r\n" + codePage, codePage + "[INIT]\r\nKEY=42\r\n" + codePage},
             // behind the last line of its section
             Row{"[INIT]\r\nA=1\r\n\r\n; more\r\n[MORE]\r\nKEY=1\r\n",
                 "[INIT]\r\nA=1\r\nKEY=42\r\n\r\n; more\r\n[MORE]\r\nKEY=1\r\n"},
             Row{"; alone\n[INIT]\n[MORE]\n[INIT]\nA=1\n", "; alone\n[INIT]\nKEY=42\n[MORE]\n[INIT]\nA=1\n"},
             Row{"[INIT]\nA=1", "[INIT]\nA=1\nKEY=42"},
             Row{"[INIT]", "[INIT]\r\nKEY=42"},
             // with its section
             Row{"", "[INIT]\r\nKEY=42\r\n"},
             Row{"\xEF\xBB\xBF", "\xEF\xBB\xBF[INIT]\r\nKEY=42\r\n"},
             Row{"[MORE]\nKEY=1\n", "[MORE]\nKEY=1\n[INIT]\nKEY=42\n"},
             Row{"KEY=1\n[MORE]", "KEY=1\n[MORE]\n[INIT]\nKEY=42\n"},
         }) {
        ProfileFile profile(before);
        profile.setValue("INIT", "KEY", "42");
        EXPECT_EQ(profile.bytes(), after);
        EXPECT_EQ(profile.value("INIT", "KEY"), "42") << before;
    }
}

class ProfileSave : public TempFolder {
protected:
    ProfileSave() : path(folder / "VRB_TS2.INI") {}

    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    fs::path path;
    std::string before = "[INIT]\nA=1\n";
    // Three blocks of a save.
    ProfileFile profile{"[INIT]\nA=2\n;" + std::string(10000, 'x')};
};

const std::vector<SaveStep> allSteps{SaveStep::folder, SaveStep::create, SaveStep::write, SaveStep::write,
                                     SaveStep::write,  SaveStep::flush,  SaveStep::close, SaveStep::permissions,
                                     SaveStep::rename, SaveStep::settle};

TEST_F(ProfileSave, that_fails_at_any_step_leaves_the_old_file_and_says_why) {
    for (std::size_t failing = 0; failing < allSteps.size(); ++failing) {
        SCOPED_TRACE(failing);
        put(path, before);
        std::vector<SaveStep> seen;
        const auto error = saveProfileFile(path, profile, [&](SaveStep step) {
            seen.push_back(step);
            return seen.size() == failing + 1 ? std::make_error_code(std::errc::no_space_on_device) : std::error_code();
        });
        EXPECT_EQ(seen, std::vector(allSteps.begin(), allSteps.begin() + static_cast<std::ptrdiff_t>(failing) + 1));
        EXPECT_EQ(filesInFolder(), 1U) << "nothing is left beside it";
        if (allSteps[failing] == SaveStep::settle) {
            EXPECT_FALSE(error);
            EXPECT_EQ(bytesOf(path), profile.bytes());
            continue;
        }
        EXPECT_EQ(bytesOf(path), before);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->file, path);
        EXPECT_EQ(error->reason, std::errc::no_space_on_device);
    }
}

#ifdef __unix__
TEST_F(ProfileSave, that_is_killed_at_any_step_leaves_the_old_file_or_the_new_one) {
    for (std::size_t last = 0; last < allSteps.size(); ++last) {
        SCOPED_TRACE(last);
        put(path, before);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            std::size_t step = 0;
            saveProfileFile(path, profile, [&](SaveStep) {
                if (step++ == last) {
                    raise(SIGKILL);
                }
                return std::error_code();
            });
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(bytesOf(path), allSteps[last] == SaveStep::settle ? profile.bytes() : before);
        EXPECT_FALSE(saveProfileFile(path, profile)) << "what the kill left is in nobody's way";
        EXPECT_EQ(bytesOf(path), profile.bytes());
    }
}

TEST_F(ProfileSave, of_two_programs_at_once_leaves_one_of_their_files_whole) {
    constexpr int saves = 200;
    put(path, profile.bytes());
    const ProfileFile other("[INIT]\nA=3\n;" + std::string(20000, 'y'));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        bool failed = false;
        for (int done = 0; done < saves; ++done) {
            failed = saveProfileFile(path, other).has_value() || failed;
        }
        _exit(failed ? 1 : 0);
    }
    for (int done = 0; done < saves; ++done) {
        EXPECT_FALSE(saveProfileFile(path, profile));
        const std::string found = bytesOf(path);
        ASSERT_TRUE(found == profile.bytes() || found == other.bytes()) << found.size() << " bytes";
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(filesInFolder(), 1U);
}
#endif

TEST_F(ProfileSave, makes_the_folders_and_keeps_permissions_and_links) {
    const fs::path deep = folder / "user" / "config" / "VRB_TS2.INI";
    EXPECT_FALSE(saveProfileFile(deep, profile));
    EXPECT_EQ(bytesOf(deep), profile.bytes());

    constexpr fs::perms ownersAlone = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(deep, ownersAlone);
    fs::create_symlink(deep, path);
    EXPECT_FALSE(saveProfileFile(path, ProfileFile(before)));
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(bytesOf(deep), before);
    EXPECT_EQ(fs::status(deep).permissions(), ownersAlone);

    fs::permissions(deep, fs::perms::owner_read | fs::perms::group_read);
    for (const fs::path& name : {deep, path}) {
        const auto error = saveProfileFile(name, profile);
        ASSERT_TRUE(error) << "who protects a file means it";
        EXPECT_EQ(error->reason, std::errc::permission_denied);
    }
    EXPECT_EQ(bytesOf(deep), before);
}

TEST_F(ProfileSave, and_read_name_what_is_in_the_way) {
    const auto errorOf = [](const std::optional<FileError>& error) { return error ? error->reason : std::error_code(); };
    fs::create_directory(path);
    EXPECT_EQ(errorOf(saveProfileFile(path, profile)), std::errc::is_a_directory);
    EXPECT_EQ(errorOf(readProfileFile(path, profile)), std::errc::is_a_directory);
    EXPECT_EQ(profile.bytes(), "");
    EXPECT_EQ(filesInFolder(), 1U);
    fs::remove(path);
    EXPECT_FALSE(readProfileFile(path, profile)) << "a missing file is none to complain of";

    put(path, before);
    EXPECT_EQ(errorOf(saveProfileFile(path / "below" / "it", profile)), std::errc::not_a_directory);
    EXPECT_EQ(errorOf(saveProfileFile(path, ProfileFile(std::string((1 << 20) + 1, ' ')))), std::errc::file_too_large);
    EXPECT_EQ(bytesOf(path), before);
    put(path, std::string((1 << 20) + 1, ' '));
    EXPECT_EQ(errorOf(readProfileFile(path, profile)), std::errc::file_too_large);
}

}  // namespace
