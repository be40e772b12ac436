// SPDX-License-Identifier: Apache-2.0
// The settings dialog under the learner's hands: its controls and the file, its four buttons, and what lives on when it closes.

#include "config/views/frmDefault.h"

#include "config/views/SettingsStore.h"
#include "tests/tempFolder.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

class DefaultDialog : public TempFolder {
protected:
    void open(const std::string& text = {}) {
        text.empty() ? static_cast<void>(fs::remove(file())) : put(file(), text);
        dialog = std::make_unique<frmDefault>(store, &owner);
        dialog->openAt({100, 80});
    }

    fs::path file() const { return folder / "VRB_TS2.INI"; }
    template <class Widget = QWidget>
    Widget* find(std::string_view name) {
        return dialog->findChild<Widget*>(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    }
    // A save is waited for.
    void press(frmDefault::Action action) {
        QTest::mouseClick(&dialog->cmdAction(action), Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !store.saving(); }));
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
    DialogValues only(std::size_t row, int value) {
        DialogValues look{};
        look[row] = static_cast<std::int16_t>(value);
        return look;
    }

    QWidget owner;
    SettingsStore store{folder};
    std::unique_ptr<frmDefault> dialog;
};

TEST_F(DefaultDialog, every_control_goes_to_its_key_and_back) {
    int controls = 0;
    for (std::size_t row = 0; row < settings.size(); ++row) {
        SCOPED_TRACE(settings[row].key);
        if (settings[row].control.empty()) {
            continue;
        }
        ++controls;
        open();
        EXPECT_EQ(look(), DialogValues{}) << "without a file";
        int chosen = 1;
        if (auto* box = find<QAbstractButton>(settings[row].control)) {
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        } else {
            auto* list = find<QComboBox>(settings[row].control);
            EXPECT_EQ(list->count(), settings[row].list.count);
            chosen = list->isEnabled() ? list->count() - 1 : 0;
            QTest::keyClick(list, Qt::Key_End);
        }
        EXPECT_EQ(look(), only(row, chosen));
        press(frmDefault::actionSave);
        const std::string line = std::string(settings[row].key) + "=" + std::to_string(chosen) + "\r\n";
        EXPECT_NE(bytesOf(file()).find(line), std::string::npos) << bytesOf(file());
        open(bytesOf(file()));
        EXPECT_EQ(look(), only(row, chosen));
    }
    EXPECT_EQ(controls, 18);
    open("[INIT]\nMODE-QDA52=2\n");
    EXPECT_EQ(find<QComboBox>("cmbMode")->currentIndex(), 2) << "shown, and out of the learner's reach";
}

TEST_F(DefaultDialog, close_keeps_the_controls_and_the_close_box_forgets_them) {
    for (const bool escape : {true, false}) {
        open("[INIT]\nIOS-QDA52=3\n");
        QSignalSpy unloaded(dialog.get(), &frmDefault::unloaded);
        press(frmDefault::actionMaker);
        press(frmDefault::actionClose);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(unloaded.count(), 0);
        EXPECT_EQ(bytesOf(file()), "[INIT]\nIOS-QDA52=3\n");
        dialog->openAt({100, 80});
        EXPECT_EQ(look(), setDialogMaker()) << "as they were left";
        escape ? QTest::keyClick(dialog.get(), Qt::Key_Escape) : static_cast<void>(dialog->close());
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(unloaded.count(), 1);
    }
}

TEST_F(DefaultDialog, a_save_keeps_it_open_and_one_that_fails_says_so) {
    open();
    QSignalSpy answered(&store, &SettingsStore::answered);
    QSignalSpy applied(dialog.get(), &frmDefault::applied);
    press(frmDefault::actionMaker);
    EXPECT_FALSE(fs::exists(file())) << "the maker's values wait in the controls";
    press(frmDefault::actionSave);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(answered.count() + applied.count(), 0);

    fs::remove(file());
    fs::create_directory(file());
    press(frmDefault::actionSave);
    ASSERT_EQ(answered.count(), 1);
    const auto warning = std::get<Warning>(answered[0][0].value<Answer>());
    EXPECT_NE(warning.text.find(file().string()), std::string::npos);
    EXPECT_NE(warning.text.find("同じ名前のフォルダがあります。"), std::string::npos);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(look(), setDialogMaker());
    fs::remove(file());
    press(frmDefault::actionSave);
    EXPECT_EQ(answered.count(), 1) << "the way is free again";
    EXPECT_TRUE(fs::exists(file()));
}

TEST_F(DefaultDialog, the_keyboard_reaches_everything_and_Enter_presses_only_the_button_in_focus) {
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    find("chkDef2")->setFocus();
    QStringList walked;
    for (int stop = 0; stop < 21; ++stop) {
        walked += dialog->focusWidget()->objectName();
        if (walked.last() == "cmdAction3") {
            EXPECT_EQ(look(), DialogValues{}) << "Enter in a control presses no button";
        }
        if (walked.last() != "cmdAction1" && walked.last() != "cmdAction2" && walked.last() != "cmdAction0") {
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        }
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(look(), setDialogMaker());
    EXPECT_EQ(dialog->focusWidget()->objectName(), "chkDef2");
    EXPECT_EQ(walked.join(' '),
              "chkDef2 chkDef3 chkDef4 chkDef5 chkDef6 chkDef0 chkDef1 cmbCPUType optHF0 cmbSA2 cmbClockDEF73 cmbSA0 "
              "cmbClockDEF41 chkCascade cmbSA4 cmbClockDEF52 cmbIOS cmdAction1 cmdAction2 cmdAction3 cmdAction0");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(fs::exists(file()));
}

}  // namespace
