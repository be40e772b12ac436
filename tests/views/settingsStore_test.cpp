// SPDX-License-Identifier: Apache-2.0
// Saving while the disk is slow, full or going away: nobody waits, nothing is lost, and the learner is told.

#include "config/views/SettingsStore.h"

#include "config/views/frmDefault.h"
#include "tests/bench.h"
#include "tests/platform/failingDisk.h"
#include "tests/tempFolder.h"
#include "tests/views/startedProgram.h"

#include <QMessageBox>
#include <QSignalSpy>

#include <semaphore>

namespace {

DialogValues allOf(std::int16_t value) {
    DialogValues values{};
    values.fill(value);
    return values;
}

void finish(const SettingsStore& store) {
    EXPECT_TRUE(QTest::qWaitFor([&store] { return !store.saving(); }));
}

DialogValues valuesIn(const fs::path& path) {
    return loadDialog(ProfileFile(bytesOf(path)));
}

DialogValues shown(std::int16_t value) {
    ProfileFile profile;
    saveDialog(profile, allOf(value));
    return loadDialog(profile);
}

class Store : public TempFolder {
protected:
    fs::path path = folder / "VRB_TS2.INI";
};

TEST_F(Store, that_goes_brings_its_saves_to_their_end) {
    {
        SettingsStore store(folder);
        store.save(allOf(1));
        store.save(allOf(2));
    }
    EXPECT_EQ(valuesIn(path), shown(2));
}

#ifdef __linux__

// Holds every save at its disk until it is opened. With an error, the save then fails by it.
class SlowDisk {
public:
    explicit SlowDisk(int error = 0) {
        failingDisk::before = [this, error](const char* call) {
            if (call == std::string("fsync")) {
                gate_.acquire();
                gate_.release();
            }
            return call == std::string("rename") ? error : 0;
        };
    }
    ~SlowDisk() { failingDisk::before = {}; }
    void open() { gate_.release(); }

private:
    std::counting_semaphore<> gate_{0};
};

TEST_F(Store, saves_behind_the_learners_back_and_the_last_of_several_stays) {
    SettingsStore store(folder);
    QSignalSpy answered(&store, &SettingsStore::answered);
    QSignalSpy settled(&store, &SettingsStore::settled);
    SlowDisk disk;
    store.save(allOf(1));
    store.save(allOf(0));
    store.save(allOf(2));
    QApplication::processEvents();
    EXPECT_TRUE(store.saving());
    EXPECT_EQ(settled.count(), 0);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(store.dialogValues(), allOf(2)) << "a dialog that is made anew shows what was saved";
    disk.open();
    finish(store);
    EXPECT_EQ(valuesIn(path), shown(2));
    EXPECT_EQ(store.dialogValues(), shown(2));
    EXPECT_EQ(answered.count(), 0);
    EXPECT_EQ(settled, (QList<QVariantList>{{true}}));
}

class SlowProgram : public StartedProgram {
protected:
    // Makes the settings dialog, saves the maker's values and answers the exit question, all before the disk answers.
    void saveAndQuit() {
        QTest::mouseClick(&main().label(Tool::defaultSet), Qt::LeftButton);
        program->settings().dialog()->cmdAction(frmDefault::actionMaker).click();
        program->settings().dialog()->cmdAction(frmDefault::actionSave).click();
        for (int asked = 0; asked < 2; ++asked) {
            main().close();
            main().findChild<QMessageBox*>("exitQuestion")->button(QMessageBox::Ok)->click();
            QApplication::processEvents();
        }
    }
    fs::path path() const { return folder.filePath("VRB_TS2.INI").toStdString(); }
};

TEST_F(SlowProgram, goes_on_while_it_saves_and_ends_when_all_is_saved) {
    start();
    QSignalSpy finished(program.get(), &Program::finished);
    SlowDisk disk;
    saveAndQuit();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(bytesOf(path()), makersFile);
    setInput(machine(), slotQDA73, 0x1234);
    fire();
    EXPECT_EQ(memoryWord(machine(), diBase + 2), 0x1234) << "the scan goes on";
    disk.open();
    ASSERT_TRUE(finished.count() == 1 || finished.wait());
    EXPECT_EQ(valuesIn(path()), setDialogMaker());
}

TEST_F(SlowProgram, that_cannot_save_says_why_and_stays) {
    start();
    QSignalSpy finished(program.get(), &Program::finished);
    SlowDisk disk(EDQUOT);
    saveAndQuit();
    disk.open();  // not before both questions are answered: the second one would end the program
    ASSERT_TRUE(QTest::qWaitFor([this] { return isUp(program->aids().dialog()); }));
    const QString text = program->aids().dialog()->findChild<QLabel*>("lblMessage")->text();
    EXPECT_TRUE(text.contains("設定をファイルに保存できませんでした。") && text.contains("VRB_TS2.INI")) << text.toStdString();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(bytesOf(path()), makersFile);
    program->aids().dialog()->dismiss();
    main().close();
    main().findChild<QMessageBox*>("exitQuestion")->button(QMessageBox::Ok)->click();
    EXPECT_EQ(finished.count(), 1);
}

#endif

TEST_F(Store, says_when_its_file_cannot_be_read_and_leaves_it_alone) {
    SettingsStore store(folder);
    EXPECT_FALSE(store.read().warning) << "a missing one is nothing to tell of";
    const std::string tooLong = "[INIT]\nIOS-QDA52=6\n" + std::string(1 << 20, ' ');
    put(path, tooLong);
    ASSERT_TRUE(store.read().warning);
    QSignalSpy answered(&store, &SettingsStore::answered);
    EXPECT_EQ(store.dialogValues(), DialogValues{});
    QApplication::processEvents();
    ASSERT_EQ(answered.count(), 1);
    EXPECT_EQ(answered[0][0].value<Answer>(), Answer(*store.read().warning));
    store.save(setDialogMaker());
    finish(store);
    EXPECT_EQ(answered.count(), 2);
    EXPECT_EQ(bytesOf(path), tooLong);

    put(path, tooLong.substr(0, 1 << 20));
    EXPECT_FALSE(store.read().warning);
    store.save(setDialogMaker());
    finish(store);
    EXPECT_EQ(answered.count(), 3) << "with the new lines it would be too long to be read again";
    EXPECT_EQ(fs::file_size(path), std::uintmax_t{1} << 20);
}

TEST_F(StartedProgram, on_settings_that_cannot_be_read_says_so_and_runs_without) {
    fs::create_directory(folder.filePath("VRB_TS2.INI").toStdString());
    start("");
    QApplication::processEvents();
    ASSERT_TRUE(isUp(program->aids().dialog()));
    EXPECT_TRUE(program->aids().dialog()->findChild<QLabel*>("lblMessage")->text().contains("同じ名前のフォルダがあります。"));
    EXPECT_EQ(machine().ios52, 0);
}

}  // namespace
