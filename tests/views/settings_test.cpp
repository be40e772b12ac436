// SPDX-License-Identifier: Apache-2.0
// The settings under the learner's hands: the dialog's controls and the file, and saving while the disk is slow, full or going
// away: nobody waits, nothing is lost, and the learner is told.

#include "config/views/SettingsStore.h"
#include "tests/machines.h"
#include "tests/platform/failingDisk.h"
#include "tests/views/desk.h"

#include <QComboBox>
#include <QSignalSpy>

#include <semaphore>

namespace {

DialogValues allOf(std::int16_t value) {
    DialogValues values{};
    values.fill(value);
    return values;
}

// What a file holds after these were saved: not every setting can take every value.
DialogValues kept(std::int16_t value) {
    ProfileFile profile;
    saveDialog(profile, allOf(value));
    return loadDialog(profile);
}

class Settings : public TempFolder {
protected:
    void finish() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !store.saving(); }));
    }
    DialogValues inFile() { return loadDialog(ProfileFile(bytesOf(path))); }

    void open(const std::string& text = {}) {
        text.empty() ? static_cast<void>(fs::remove(path)) : put(path, text);
        dialog = std::make_unique<frmDefault>(store, &owner);
        dialog->openAt({100, 80});
    }
    template <class Widget>
    Widget* find(std::string_view name) {
        return dialog->findChild<Widget*>(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    }
    // A save is waited for.
    void press(frmDefault::Action action) {
        QTest::mouseClick(&dialog->cmdAction(action), Qt::LeftButton);
        finish();
    }
    // What the controls show, in the order of the settings; 0 for one without a control.
    DialogValues look() {
        DialogValues look{};
        for (std::size_t row = 0; row < settings.size(); ++row) {
            if (const auto* list = find<QComboBox>(settings[row].control)) {
                look[row] = static_cast<std::int16_t>(list->currentIndex());
            } else if (const auto* box = find<QAbstractButton>(settings[row].control)) {
                look[row] = box->isChecked() ? 1 : 0;
            }
        }
        return look;
    }

    const fs::path path = folder / "VRB_TS2.INI";
    SettingsStore store{folder};
    QSignalSpy answered{&store, &SettingsStore::answered};
    QWidget owner;
    std::unique_ptr<frmDefault> dialog;
};

TEST_F(Settings, go_from_every_control_to_its_key_and_back) {
    int controls = 0;
    for (std::size_t row = 0; row < settings.size(); ++row) {
        SCOPED_TRACE(settings[row].key);
        if (settings[row].control.empty()) {
            continue;
        }
        ++controls;
        open();
        DialogValues wanted{};
        EXPECT_EQ(look(), wanted) << "without a file";
        if (auto* box = find<QAbstractButton>(settings[row].control)) {
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
            wanted[row] = 1;
        } else {
            auto* list = find<QComboBox>(settings[row].control);
            QTest::keyClick(list, Qt::Key_End);
            wanted[row] = static_cast<std::int16_t>(list->isEnabled() ? settings[row].list.count - 1 : 0);
        }
        EXPECT_EQ(look(), wanted);
        press(frmDefault::actionSave);
        const std::string line = std::string(settings[row].key) + "=" + std::to_string(wanted[row]) + "\r\n";
        EXPECT_NE(bytesOf(path).find(line), std::string::npos) << bytesOf(path);
        open(bytesOf(path));
        EXPECT_EQ(look(), wanted);
    }
    EXPECT_EQ(controls, 18);
    open("[INIT]\nMODE-QDA52=2\n");
    EXPECT_EQ(find<QComboBox>("cmbMode")->currentIndex(), 2) << "shown, and out of the learner's reach";
}

TEST_F(Settings, close_keeps_the_controls_and_the_close_box_forgets_them) {
    for (const bool escape : {true, false}) {
        open("[INIT]\nIOS-QDA52=3\n");
        QSignalSpy unloaded(dialog.get(), &frmDefault::unloaded);
        press(frmDefault::actionMaker);
        press(frmDefault::actionClose);
        EXPECT_TRUE(!dialog->isVisible() && unloaded.isEmpty());
        EXPECT_EQ(bytesOf(path), "[INIT]\nIOS-QDA52=3\n") << "the maker's values wait in the controls";
        dialog->openAt({100, 80});
        EXPECT_EQ(look(), setDialogMaker()) << "as they were left";
        escape ? QTest::keyClick(dialog.get(), Qt::Key_Escape) : static_cast<void>(dialog->close());
        EXPECT_TRUE(!dialog->isVisible() && unloaded.count() == 1);
    }
}

TEST_F(Settings, return_presses_only_the_button_in_focus) {
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    QStringList walked;
    while (!walked.contains("cmdAction3")) {
        ASSERT_LT(walked.size(), 21) << "the keyboard reaches everything";
        QWidget* at = dialog->focusWidget();
        EXPECT_EQ(look(), DialogValues{}) << "Return in a control presses no button";
        walked += at->objectName();
        const bool otherButton = at->objectName().startsWith("cmdAction") && at->objectName() != "cmdAction3";
        QTest::keyClick(at, otherButton ? Qt::Key_Tab : Qt::Key_Return);
        QTest::keyClick(at, otherButton ? Qt::Key_Shift : Qt::Key_Tab);
    }
    EXPECT_EQ(look(), setDialogMaker());
    EXPECT_TRUE(dialog->isVisible() && !fs::exists(path));
}

// --- the file ----------------------------------------------------------------------------------------------------------------

TEST_F(Settings, that_cannot_be_read_say_so_and_are_left_alone) {
    EXPECT_FALSE(store.read().warning) << "a missing file is nothing to tell of";
    const std::string tooLong = "[INIT]\nIOS-QDA52=6\n" + std::string(1 << 20, ' ');
    put(path, tooLong);
    ASSERT_TRUE(store.read().warning);
    EXPECT_EQ(store.dialogValues(), DialogValues{});
    QApplication::processEvents();
    ASSERT_FALSE(answered.isEmpty());
    EXPECT_EQ(answered[0][0].value<Answer>(), Answer(*store.read().warning));
    store.save(setDialogMaker());
    finish();
    EXPECT_EQ(answered.count(), 2);
    EXPECT_EQ(bytesOf(path), tooLong);

    put(path, tooLong.substr(0, 1 << 20));
    EXPECT_FALSE(store.read().warning);
    store.save(setDialogMaker());
    finish();
    EXPECT_EQ(answered.count(), 3) << "with the new lines it would be too long to be read again";
    EXPECT_EQ(fs::file_size(path), std::uintmax_t{1} << 20);
}

TEST_F(Desk, on_settings_that_cannot_be_read_says_so_and_runs_without) {
    fs::create_directory(folder / "VRB_TS2.INI");
    start("");
    settle();
    EXPECT_NE(question().find("同じ名前のフォルダがあります。"), std::string::npos);
    EXPECT_EQ(machine().ios52, 0);
}

TEST_F(Settings, are_saved_to_the_last_when_their_store_goes) {
    {
        SettingsStore other(folder);
        other.save(allOf(0));
        other.save(allOf(1));
    }
    EXPECT_EQ(inFile(), kept(1));
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

TEST_F(Settings, are_saved_behind_the_learners_back_and_the_last_of_several_stays) {
    QSignalSpy settled(&store, &SettingsStore::settled);
    SlowDisk disk;
    for (const int value : {1, 0, 2}) {
        store.save(allOf(static_cast<std::int16_t>(value)));
    }
    QApplication::processEvents();
    EXPECT_TRUE(store.saving() && settled.isEmpty() && !fs::exists(path));
    EXPECT_EQ(store.dialogValues(), allOf(2)) << "a dialog that is made anew shows what was saved";
    disk.open();
    finish();
    EXPECT_EQ(inFile(), kept(2));
    EXPECT_EQ(store.dialogValues(), kept(2));
    EXPECT_EQ(answered.count(), 0);
    EXPECT_EQ(settled, (QList<QVariantList>{{true}}));
}

class SlowProgram : public Desk {
protected:
    // Saves the maker's values and answers the exit question, twice, all before the disk answers.
    void saveAndQuit() {
        play("open settings ; press settings = メーカ推奨値に戻す ; press settings = 設定をファイルに保存");
        quit();
        quit();
    }
    void quit() {
        main().close();
        exitQuestion()->button(QMessageBox::Ok)->click();
        QApplication::processEvents();
    }
    const fs::path path = folder / "VRB_TS2.INI";
};

TEST_F(SlowProgram, goes_on_while_it_saves_and_ends_when_all_is_saved) {
    start();
    QSignalSpy finished(program.get(), &Program::finished);
    SlowDisk disk;
    saveAndQuit();
    EXPECT_TRUE(finished.isEmpty() && bytesOf(path) == makersFile);
    machine().diImage[2 * (slotQDA73 - 1)] = 0x34;
    fire();
    EXPECT_EQ(byteAt(machine(), diBase + 2), 0x34) << "the scan goes on";
    disk.open();
    ASSERT_TRUE(finished.count() == 1 || finished.wait());
    EXPECT_EQ(loadDialog(ProfileFile(bytesOf(path))), setDialogMaker());
}

TEST_F(SlowProgram, that_cannot_save_says_why_and_stays) {
    start();
    QSignalSpy finished(program.get(), &Program::finished);
    SlowDisk disk(EDQUOT);
    saveAndQuit();
    disk.open();  // not before both questions are answered: the second one would end the program
    ASSERT_TRUE(QTest::qWaitFor([this] { return !question().empty(); }));
    EXPECT_NE(question().find("VRB_TS2.INI"), std::string::npos);
    EXPECT_TRUE(finished.isEmpty() && bytesOf(path) == makersFile);
    program->aids().dialog()->dismiss();
    quit();
    EXPECT_EQ(finished.count(), 1);
}

#endif

}  // namespace
