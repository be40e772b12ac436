#include "boards/views/frmEditSerial.h"

#include "boards/views/BenchView.h"
#include "boards/views/frmHard.h"
#include "tests/views/startedProgram.h"

#include <QPushButton>

namespace {

class SerialDialog : public StartedProgram {
protected:
    frmEditSerial& serial() { return *program->bench().serialDialog(); }
    QPushButton& button(frmEditSerial::Action action) { return serial().cmdAction(action); }
    void openFor(std::size_t index) {
        const QPoint place = program->bench().bench()->view().mapFromScene(
            program->bench().bench()->part("picSDI", index)->sceneBoundingRect().center());
        QTest::mouseDClick(program->bench().bench()->view().viewport(), Qt::LeftButton, {}, place);
    }
    // Fires until the word is out; gives up after far more than it takes.
    int shiftOut() {
        int firings = 0;
        while (serial().isVisible() && firings < 100) {
            serial().timEnter().fire();
            ++firings;
        }
        return firings;
    }
    bool partVisible(const char* name, std::size_t index) { return program->bench().bench()->part(name, index)->isVisible(); }
};

TEST_F(SerialDialog, a_word_is_set_started_and_goes_out) {
    start();
    fire();
    openFor(1);
    ASSERT_TRUE(serial().isVisible());
    EXPECT_EQ(serial().findChild<QLabel*>("lblAdr")->text(), "2");
    EXPECT_EQ(serial().txtWriteData().text(), "0000");
    // Set, Start, Cancel: + for one that can be pressed, * for the default.
    const auto buttons = [this] {
        std::string text;
        for (const auto action : {frmEditSerial::actionSet, frmEditSerial::actionStart, frmEditSerial::actionCancel}) {
            text += button(action).isEnabled() ? button(action).isDefault() ? '*' : '+' : '-';
        }
        return text;
    };
    EXPECT_EQ(buttons(), "*-+");
    QTest::keyClicks(&serial().txtWriteData(), "5A3C");
    const QImage before = serial().picDREQ_Data().grab().toImage();
    button(frmEditSerial::actionSet).click();
    EXPECT_NE(serial().picDREQ_Data().grab().toImage(), before);
    EXPECT_EQ(buttons(), "+*+");
    EXPECT_EQ(serial().picDREQ_Data().x(), 8);
    QTest::keyClick(&serial().txtWriteData(), Qt::Key_Home);
    QTest::keyClicks(&serial().txtWriteData(), "1234");  // under the waveform of the word before
    button(frmEditSerial::actionStart).click();
    EXPECT_EQ(serial().timEnter().interval(), 100);
    EXPECT_TRUE(partVisible("picSerialInt", 1));
    EXPECT_EQ(buttons(), "---");
    EXPECT_EQ(shiftOut(), 32) << "three seconds and a little";
    EXPECT_FALSE(serial().timEnter().running());
    EXPECT_FALSE(partVisible("picSerialInt", 1));
    EXPECT_EQ(program->bench().bench()->part("picSE", 1)->shown().number, 2);
    EXPECT_EQ(machine().serialData[2], 0x34);
    EXPECT_EQ(machine().serialData[3], 0x12);
    openFor(1);
    EXPECT_FALSE(serial().isVisible());
    EXPECT_EQ(popupText(), "SEがローレベル(LED点灯)中は入力できません。");
}

TEST_F(SerialDialog, cancel_escape_close_box_and_a_restart_send_nothing) {
    start();
    fire();
    const std::vector<std::function<void()>> ways{
        [this] { button(frmEditSerial::actionCancel).click(); },
        [this] { QTest::keyClick(&serial(), Qt::Key_Escape); },
        [this] { serial().close(); },
        [this] {
            Mdef_Set(machine());
            program->restartMachine();
            main().timTick().setEnabled(false);
            QApplication::processEvents();
        },
    };
    for (std::size_t way = 0; way < ways.size(); ++way) {
        SCOPED_TRACE(way);
        openFor(0);
        ASSERT_TRUE(serial().isVisible());
        EXPECT_EQ(serial().picDREQ_Data().x(), 8);
        if (way != 0) {
            button(frmEditSerial::actionSet).click();
            button(frmEditSerial::actionStart).click();
            serial().timEnter().fire();
            EXPECT_TRUE(partVisible("picSerialInt", 0));
        }
        ways[way]();
        EXPECT_FALSE(isUp(program->bench().serialDialog()));
        EXPECT_TRUE(program->bench().serialDialog() == nullptr || !serial().timEnter().running());
        EXPECT_FALSE(partVisible("picSerialInt", 0));
        EXPECT_FALSE(machine().serialReady[0]);
    }
}

}  // namespace
