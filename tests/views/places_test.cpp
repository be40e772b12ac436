// SPDX-License-Identifier: Apache-2.0
// Where windows stand, at the first showing as at the next, and which of them lies over which.

#include "access/views/frmEditMemory.h"
#include "boards/views/frmEditSerial.h"
#include "platform/screen.h"
#include "tests/views/desk.h"

#include <QMdiSubWindow>
#include <QScreen>

namespace {

class Places : public Desk {
protected:
    static QPoint of(const QWidget& window) { return window.frameGeometry().topLeft(); }
    static QPoint at(int x, int y) { return {x / 15, y / 15}; }  // told in twips
};

TEST_F(Places, are_as_told_at_the_first_showing_as_at_the_next) {
    giveFolder(VRB_BIN "/HintData");
    startAtBench(withHintsAndDump);
    const QPoint corner = of(main());
    EXPECT_EQ(of(registers()), corner + at(6600, 1100));
    for (int time = 0; time < 2; ++time) {
        SCOPED_TRACE(time);
        machine().cpuType = 1;
        for (const int row : {3, 7}) {
            openRegister(row, frmRegister::valLow);
            EXPECT_EQ(of(dialog()),
                      of(registers()) + QPoint(500 / 15, registers().cell(row, frmRegister::valLow).y() + 700 / 15));
            dialog().reject();
        }
        openCell(0x21);
        const QPoint cell = dump().grid().mapToGlobal(dump().grid().cellRect(0x21, DumpGrid::Side::data).topLeft());
        EXPECT_EQ(of(*program->memory().writeDialog()), cell + QPoint(0, 24));
        program->memory().writeDialog()->reject();
        click(Tool::memoryWindow);
        click(program->memory().chooser()->cmdAREA(frmDumpSel::memoryRead));
        EXPECT_EQ(of(window("read")), main().area().mapToGlobal(at(1800, 2500)));
        window("read").close();
        program->settings().open();
        EXPECT_EQ(of(window("settings")), corner + at(4700, 4000));
        program->settings().hide();
        for (const int slot : {0, 1}) {
            emit bench().serialWanted(slot);
            frmEditSerial& serial = *program->bench().serialDialog();
            const QRect told(bench().mapToGlobal(at(7500 + 5100 * slot, 5900)), serial.frameGeometry().size());
            EXPECT_EQ(of(serial), keptOnScreen(told).topLeft());
            serial.reject();
        }
    }
    registers().move(400, 780);
    openRegister(9, frmRegister::valLow);
    EXPECT_EQ(of(dialog()).y() + dialog().frameGeometry().height(),
              of(registers()).y() + registers().cell(9, frmRegister::valLow).y() + 700 / 15 - 300 / 15)
        << "at the foot of the screen it stands above its cell";
    dialog().reject();

    window("hint").move(30, 40);
    registers().close();
    settle();
    click(Tool::registerWindow);
    EXPECT_TRUE(registers().isVisible());
    EXPECT_EQ(window("hint").pos(), QPoint(30, 40)) << "a window that comes back moves no other";
}

TEST_F(Places, outside_the_screen_are_left_when_a_screen_has_gone) {
    start();
    QScreen& screen = *QApplication::primaryScreen();
    main().showNormal();
    for (QWidget* window : QWidgetList{&main(), &registers()}) {
        window->move(5000, 4000);  // on a second screen, say
    }
    emit screen.availableGeometryChanged(screen.availableGeometry());
    QApplication::processEvents();
    EXPECT_TRUE(screen.availableGeometry().contains(registers().frameGeometry()));
    EXPECT_EQ(of(main()), screen.availableGeometry().topLeft()) << "larger than the screen";
}

}  // namespace
