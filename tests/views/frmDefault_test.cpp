// SPDX-License-Identifier: Apache-2.0
// The settings dialog under the learner's hands: its controls, its four buttons, and what lives on when it closes.

#include "config/views/frmDefault.h"

#include "config/views/SettingsStore.h"
#include "tests/tempFolder.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <map>

namespace {

struct ControlRow {
    const char* name;
    const char* key;
    int items;  // of a list; 0: a box or a choice
    int chosen;
    const char* lastItem;  // or the caption
    const char* frame;
    int makersValue;
};

constexpr const char* windowsFrame = "立ち上げ時　開く窓";
constexpr const char* memoryFrame = "メモリウィンドウ";
constexpr const char* benchFrame = "立ち上げ時　初期設定と動作";
constexpr const char* centerFrame = "QDA60 Center-Board";
constexpr const char* no1Frame = "Board No1 ： QDA73";
constexpr const char* no2Frame = "Board No2 ： QDA41";
constexpr const char* no4Frame = "Board No4 ： QDA52";

// In the order of the Tab key.
constexpr std::array<ControlRow, 18> controls{{
    {"chkDef2", "OPENWINDOW1", 0, 1, "レジスタ", windowsFrame, 1},
    {"chkDef3", "OPENWINDOW2", 0, 1, "レジスタヒント", windowsFrame, 1},
    {"chkDef4", "OPENWINDOW3", 0, 1, "コントロール+DI+DO", memoryFrame, 1},
    {"chkDef5", "OPENWINDOW4", 0, 1, "C1～C7", memoryFrame, 0},
    {"chkDef6", "OPENWINDOW5", 0, 1, "DRC", memoryFrame, 0},
    {"chkDef0", "CABLECONNECTION", 0, 1, "通信ケーブルをすべて接続", benchFrame, 1},
    {"chkDef1", "MEMORYCLEAR", 0, 1, "メモリ全域00Hクリア実行", benchFrame, 1},
    {"cmbCPUType", "CPUTYPE", 4, 3, " 8bit-Bus  Big  ", centerFrame, 0},
    {"optHF1", "TRANSFER", 0, 1, "半2重", centerFrame, 0},
    {"cmbSA2", "SA-QDA73", 63, 62, "0x3F", no1Frame, 0},
    {"cmbClockDEF73", "CLOCK-QDA73", 4, 2, "1.5Mbps", no1Frame, 0},
    {"cmbSA0", "SA-QDA41", 63, 9, "0x3F", no2Frame, 1},
    {"cmbClockDEF41", "CLOCK-QDA41", 3, 2, "12MHz", no2Frame, 0},
    {"chkCascade", "CASCADE-QDA41", 0, 1, "No3.カスケード接続", no2Frame, 1},
    {"cmbSA4", "SA-QDA52", 63, 1, "0x3F", no4Frame, 3},
    {"cmbClockDEF52", "CLOCK-QDA52", 3, 1, "12MHz", no4Frame, 0},
    {"cmbIOS", "IOS-QDA52", 8, 7, "7 DI= 4bit DO= 4bit & PWM + Counter", no4Frame, 5},
    {"cmbMode", "MODE-QDA52", 4, 2, "3 外部ゲート", no4Frame, 0},
}};

// What the controls show, by name.
using Look = std::map<std::string, int>;

Look only(const ControlRow& row, int value) {
    Look look;
    for (const ControlRow& each : controls) {
        look[each.name] = each.name == row.name ? value : 0;
    }
    return look;
}

Look makersLook() {
    Look look;
    for (const ControlRow& row : controls) {
        look[row.name] = row.makersValue;
    }
    return look;
}

class DefaultDialog : public TempFolder {
protected:
    void open(const std::string& text) {
        put(file(), text);
        open();
    }
    void open() {
        dialog = std::make_unique<frmDefault>(store, &owner);
        dialog->openAt({100, 80});
    }

    fs::path file() const { return folder / "VRB_TS2.INI"; }
    template <class Widget = QWidget>
    Widget& find(const char* name) {
        return *dialog->findChild<Widget*>(name);
    }
    // A save is waited for.
    void press(frmDefault::Action action) {
        QTest::mouseClick(&dialog->cmdAction(action), Qt::LeftButton);
        while (store.saving()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
    // Ticks a box, or walks down a list.
    void choose(const ControlRow& row) {
        if (row.items == 0) {
            auto& button = find<QAbstractButton>(row.name);
            QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
        } else {
            QTest::keyClick(&find(row.name), Qt::Key_Home);
            for (int step = 0; step < row.chosen; ++step) {
                QTest::keyClick(&find(row.name), Qt::Key_Down);
            }
        }
    }
    Look look() {
        Look look;
        for (const ControlRow& row : controls) {
            look[row.name] =
                row.items == 0 ? int{find<QAbstractButton>(row.name).isChecked()} : find<QComboBox>(row.name).currentIndex();
        }
        EXPECT_NE(find<QAbstractButton>("optHF0").isChecked(), find<QAbstractButton>("optHF1").isChecked());
        return look;
    }

    QWidget owner;
    SettingsStore store{folder};
    std::unique_ptr<frmDefault> dialog;
};

TEST_F(DefaultDialog, every_control_has_its_key_both_ways) {
    for (const ControlRow& row : controls) {
        SCOPED_TRACE(row.name);
        const std::string line = std::string(row.key) + "=" + std::to_string(row.chosen) + "\r\n";
        fs::remove(file());
        open();
        EXPECT_EQ(look(), only(row, 0)) << "without a file";
        choose(row);
        press(frmDefault::actionSave);
        // The learner can't change the counter mode.
        EXPECT_EQ(bytesOf(file()).find(line) != std::string::npos, std::string(row.name) != "cmbMode");

        open("[INIT]\r\n" + line);
        EXPECT_EQ(look(), only(row, row.chosen));
        press(frmDefault::actionSave);
        EXPECT_NE(bytesOf(file()).find(line), std::string::npos);
        open();
        EXPECT_EQ(look(), only(row, row.chosen));
    }
}

TEST_F(DefaultDialog, has_its_frames_lists_and_captions) {
    open();
    EXPECT_EQ(dialog->windowTitle(), "システムデフォルト設定");
    EXPECT_TRUE(dialog->windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(dialog->isModal());
    for (const ControlRow& row : controls) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(qobject_cast<QGroupBox*>(find(row.name).parentWidget())->title(), row.frame);
        EXPECT_EQ(find(row.name).isEnabled(), std::string(row.name) != "cmbMode");
        if (row.items == 0) {
            EXPECT_EQ(find<QAbstractButton>(row.name).text(), row.lastItem);
        } else {
            EXPECT_EQ(find<QComboBox>(row.name).count(), row.items);
            EXPECT_EQ(find<QComboBox>(row.name).itemText(row.items - 1), row.lastItem);
        }
    }
    EXPECT_EQ(find("chkDef4").parentWidget()->parentWidget(), find("chkDef2").parentWidget());
    QStringList enabled;
    QStringList disabled;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        (label->isEnabled() ? enabled : disabled) += label->text();
    }
    EXPECT_EQ(disabled, (QStringList{"Clock", "Mode"}));
    EXPECT_EQ(enabled, (QStringList{"CPU Type", "通信方式", "SA", "BPS", "SA", "Clock", "SA", "Clock", "IOS",
                                    "（※セット状態からリスタートします)", "（※次回立ち上げ時に設定が反映)"}));
    constexpr std::array<const char*, 4> captions{"閉じる", "今すぐ設定", "設定をファイルに保存", "メーカ推奨値に戻す"};
    for (std::size_t action = 0; action < captions.size(); ++action) {
        const QPushButton& button = dialog->cmdAction(static_cast<frmDefault::Action>(action));
        EXPECT_EQ(button.text(), captions[action]);
        EXPECT_GE(button.width(), button.fontMetrics().horizontalAdvance(button.text()) + 20) << captions[action];
    }
}

TEST_F(DefaultDialog, close_keeps_the_controls_and_the_close_box_forgets_them) {
    for (const bool escape : {true, false}) {
        open("[INIT]\nIOS-QDA52=3\n");
        const Look saved = look();
        QSignalSpy unloaded(dialog.get(), &frmDefault::unloaded);
        press(frmDefault::actionMaker);
        press(frmDefault::actionClose);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(unloaded.count(), 0);
        EXPECT_EQ(bytesOf(file()), "[INIT]\nIOS-QDA52=3\n");
        dialog->openAt({100, 80});
        EXPECT_EQ(look(), makersLook()) << "as they were left";

        if (escape) {
            QTest::keyClick(dialog.get(), Qt::Key_Escape);
        } else {
            dialog->close();
        }
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(unloaded.count(), 1);
        open();
        EXPECT_EQ(look(), saved);
    }
}

TEST_F(DefaultDialog, apply_hands_its_values_over_and_leaves_the_file) {
    open("[INIT]\nMODE-QDA52=2\n");
    press(frmDefault::actionMaker);
    for (const ControlRow& row : {controls[8], controls[11], controls[16]}) {
        choose(row);
    }
    Machine machine;
    machine.mode52 = 1;
    int applied = 0;
    QObject::connect(dialog.get(), &frmDefault::applied, [&](const DialogValues& values) {
        ++applied;
        EXPECT_FALSE(dialog->isVisible()) << "the machine is rebuilt without it";
        applyDialog(machine, values);
        dialog.release()->deleteLater();  // its owner may forget it now
    });
    press(frmDefault::actionApply);
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(machine.transferDefault[4], 1);
    EXPECT_EQ(machine.boardSA, (std::array<std::int16_t, 3>{9, 0, 3}));
    EXPECT_EQ(machine.ios52, 7);
    EXPECT_EQ(machine.mode52, 0);
    EXPECT_EQ(bytesOf(file()), "[INIT]\nMODE-QDA52=2\n");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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

    const std::string saved = bytesOf(file());
    fs::remove(file());
    fs::create_directory(file());
    choose(controls[16]);
    const Look left = look();
    press(frmDefault::actionSave);
    ASSERT_EQ(answered.count(), 1);
    const auto warning = std::get<Warning>(answered[0][0].value<Answer>());
    EXPECT_NE(warning.text.find(file().string()), std::string::npos);
    EXPECT_NE(warning.text.find("同じ名前のフォルダがあります。"), std::string::npos);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(look(), left);

    fs::remove(file());
    put(file(), saved);
    press(frmDefault::actionSave);
    EXPECT_EQ(answered.count(), 1);
    EXPECT_NE(bytesOf(file()).find("IOS-QDA52=7"), std::string::npos) << "the way is free again";
}

TEST_F(DefaultDialog, the_keyboard_reaches_everything_and_Enter_presses_only_the_button_in_focus) {
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    find("chkDef2").setFocus();
    QStringList expected;
    for (const ControlRow& row : controls) {
        if (std::string(row.name) != "cmbMode") {
            expected += std::string(row.name) == "optHF1" ? "optHF0" : row.name;  // one stop for the two choices
        }
    }
    for (const QString& name : expected) {
        ASSERT_EQ(dialog->focusWidget()->objectName(), name);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(fs::exists(file()));
    for (const char* name : {"cmdAction1", "cmdAction2", "cmdAction3", "cmdAction0"}) {
        ASSERT_EQ(dialog->focusWidget()->objectName(), name);
        if (std::string(name) == "cmdAction3") {
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
            EXPECT_EQ(look(), makersLook());
        }
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(dialog->focusWidget()->objectName(), "chkDef2");
}

}  // namespace
