// SPDX-License-Identifier: Apache-2.0
// Where windows stand, at the first showing as at the next, and which of them lies over which.

#include "access/views/frmEditMemory.h"
#include "boards/views/frmEditSerial.h"
#include "platform/screen.h"
#include "tests/views/desk.h"

#include <QScreen>

namespace {

QPoint of(const QWidget& window) {
    return window.frameGeometry().topLeft();
}

QPoint at(int x, int y) {
    return {x / 15, y / 15};  // told in twips
}

using Places = Desk;

TEST_F(Places, are_as_told_at_the_first_showing_as_at_the_next) {
    giveFolder(VRB_BIN "/HintData");
    startAtBench(withHintsAndDump);
    machine().cpuType = 1;
    const QPoint corner = of(main());
    EXPECT_EQ(of(registers()), corner + at(6600, 1100));
    const auto atRegister = [this](int row) {
        openRegister(row, frmRegister::valLow);
        dialog().reject();
        return of(dialog()) - of(registers()) - QPoint(0, registers().cell(row, frmRegister::valLow).y());
    };
    for (int time = 0; time < 2; ++time) {
        SCOPED_TRACE(time);
        EXPECT_EQ(atRegister(3), at(500, 700));
        EXPECT_EQ(atRegister(7), at(500, 700));
        openCell(0x21);
        const QPoint cell = dump().grid().mapToGlobal(dump().grid().cellRect(0x21, DumpGrid::Side::data).topLeft());
        EXPECT_EQ(of(*program->memory().writeDialog()), cell + QPoint(0, 24));
        program->memory().writeDialog()->reject();
        play("open read ; open settings");
        EXPECT_EQ(of(window("read")), main().area().mapToGlobal(at(1800, 2500)));
        EXPECT_EQ(of(window("settings")), corner + at(4700, 4000));
        play("close read ; close settings");
        for (const int slot : {0, 1}) {
            emit bench().serialWanted(slot);
            frmEditSerial& serial = *program->bench().serialDialog();
            const QRect told(bench().mapToGlobal(at(7500 + 5100 * slot, 5900)), serial.frameGeometry().size());
            EXPECT_EQ(of(serial), keptOnScreen(told).topLeft());
            serial.reject();
        }
    }
    registers().move(400, 780);
    EXPECT_EQ(atRegister(9).y() + dialog().frameGeometry().height(), at(0, 700).y() - at(0, 300).y())
        << "at the foot of the screen it stands above its cell";
    window("hint").move(30, 40);
    play("close register");
    settle();
    play("open register ; shown register");
    EXPECT_EQ(window("hint").pos(), QPoint(30, 40)) << "a window that comes back moves no other";
}

TEST_F(Places, outside_the_screen_are_left_when_a_screen_has_gone) {
    start();
    QScreen& screen = *QApplication::primaryScreen();
    main().showNormal();
    for (QWidget* window : QWidgetList{&main(), &registers()}) {
        window->move(5000, 4000);  // on a second screen, say
    }
    program->settings().open();
    EXPECT_TRUE(screen.availableGeometry().contains(window("settings").frameGeometry())) << "at its first showing";
    emit screen.availableGeometryChanged(screen.availableGeometry());
    QApplication::processEvents();
    EXPECT_TRUE(screen.availableGeometry().contains(registers().frameGeometry()));
    EXPECT_EQ(of(main()), screen.availableGeometry().topLeft()) << "larger than the screen";
}

}  // namespace
