#include "boards/views/BenchCombo.h"
#include "boards/views/BenchView.h"
#include "boards/views/frmHard.h"
#include "config/views/frmDefault.h"
#include "memwin/views/MemoryWindows.h"
#include "memwin/views/frmDump.h"
#include "tests/views/startedProgram.h"

#include <QComboBox>
#include <QMdiArea>
#include <QPushButton>

namespace {

class Restart : public StartedProgram {
protected:
    void openSettings() { QTest::mouseClick(&main().label(Tool::defaultSet), Qt::LeftButton); }
    frmDefault& settingsDialog() { return *program->settings().dialog(); }
    void choose(const char* list, int item) { settingsDialog().findChild<QComboBox*>(list)->setCurrentIndex(item); }
    void apply() {
        settingsDialog().cmdAction(frmDefault::actionApply).click();
        main().timTick().setEnabled(false);
    }
    frmHard& bench() { return *program->bench().bench(); }
    bool dumpVisible(Area area) { return program->memory().window(area)->isVisible(); }
};

TEST_F(Restart, applied_settings_make_a_new_bench) {
    start();
    fire();
    const frmHard* before = &bench();
    machine().picSSB[0].on = true;
    machine().chipMemory[0x90] = 0x55;
    openSettings();
    choose("cmbIOS", 7);
    choose("cmbSA0", 0x20);
    choose("cmbClockDEF41", 2);
    settingsDialog().findChild<QAbstractButton*>("chkCascade")->setChecked(false);
    settingsDialog().findChild<QAbstractButton*>("optHF1")->setChecked(true);
    settingsDialog().findChild<QAbstractButton*>("chkDef5")->setChecked(true);
    settingsDialog().findChild<QAbstractButton*>("chkDef2")->setChecked(false);
    QTest::mouseClick(&main().lblRunMode(modeStop), Qt::LeftButton);
    apply();
    EXPECT_FALSE(settingsDialog().isVisible());
    EXPECT_NE(&bench(), before);
    EXPECT_TRUE(bench().part("picPWM")->isVisible());
    EXPECT_EQ(bench().label("lblClock", 1)->text(), "12MHz");
    EXPECT_EQ(machine().boardSA[saQDA41], 0x21);
    EXPECT_FALSE(machine().picBridge.visible || machine().picSSB[0].on);
    EXPECT_EQ(machine().chipMemory[0x90], 0) << "memory is cleared";
    EXPECT_EQ(memoryWord(machine(), reg::bcrLow) & fullDuplexBit, 0);
    EXPECT_EQ(program->registers().window(), nullptr);
    EXPECT_TRUE(dumpVisible(Area::c1ToC7));
    EXPECT_EQ(machine().runMode, modeRun);
    EXPECT_TRUE(main().lblRunMode(modeRun).isChecked());
    EXPECT_TRUE(machine().startupDone);
    fire();
    EXPECT_TRUE(machine().scanRunning);
    EXPECT_EQ(machine().scanLastAddr, 4);
}

// Whatever a gesture has begun ends with the machine that it was meant for.
TEST_F(Restart, nothing_under_way_reaches_the_new_machine) {
    start();
    fire();
    main().activateWindow();
    bench().view().setFocus();
    BenchCombo& box = *bench().combo("cmbSA", saQDA73);
    box.open(0);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    box.showPopup();
    QTest::mousePress(bench().view().viewport(), Qt::LeftButton, {},
                      bench().view().mapFromScene(bench().part("picCounter", 0)->sceneBoundingRect().center()));
    program->aids().ask({.text = "x"}, [](bool) { FAIL() << "an answer to the old machine"; });
    open(1, 0);
    popup("x");
    Mdef_Set(machine());
    program->restartMachine();
    main().timTick().setEnabled(false);
    QApplication::processEvents();
    EXPECT_EQ(machine().boardSA[saQDA73], 1);
    EXPECT_FALSE(machine().picCounter[0].down);
    EXPECT_EQ(machine().counterImage[0], 0);
    EXPECT_FALSE(isUp(program->aids().dialog()) || isUp(program->registers().writeDialog()) || popupText() != "");
    EXPECT_FALSE(bench().combo("cmbSA", saQDA73)->isOpen());
}

TEST_F(Restart, fifty_times_with_every_window_open) {
    start();
    for (int time = 0; time < 50; ++time) {
        Mdef_Set(machine());
        machine().openWindowDefault = {0, 1, 1, 1, 1, 1};
        machine().ios52 = static_cast<std::int16_t>(time % 8);
        program->restartMachine();
        main().timTick().setEnabled(false);
        fire();
        QApplication::processEvents();
        EXPECT_EQ(machine().ios52, time % 8);
        EXPECT_EQ(main().area().subWindowList().size(), 5) << "none of the old windows is left";
        for (const Area area : {Area::controlDoDi, Area::c1ToC7, Area::drc}) {
            EXPECT_TRUE(dumpVisible(area));
        }
    }
}

}  // namespace
