// SPDX-License-Identifier: Apache-2.0
// Hasty hands: gestures while the program still starts, and everything twice in one batch of events, as a queue brings it when
// the program was busy for a moment.

#include "aids/views/frmHint.h"
#include "aids/views/frmNaviList.h"
#include "aids/views/frmNavigation.h"
#include "config/views/frmDefault.h"
#include "tests/views/batch.h"
#include "tests/views/startedProgram.h"

#include <QDir>
#include <QMessageBox>
#include <QSignalSpy>

namespace {

class Hasty : public StartedProgram {
protected:
    // The batch, and what it has left for later.
    static void deliver() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
    void startWithTours() {
        QDir().mkpath(folder.filePath("NaviData"));
        std::ofstream(folder.filePath("NaviData/NaviIndex.txt").toStdString()) << "a.txt\tA\tx\n";
        std::ofstream(folder.filePath("NaviData/a.txt").toStdString()) << "1\n1\n\n2\n2\n\n";
        start();
        program->aids().versionPanel() != nullptr ? program->aids().versionPanel()->hideVersion() : void();
    }
    void startTour() {
        program->aids().openNaviList();
        program->aids().naviList()->cmdStart().click();
        main().timTick().setEnabled(false);
    }
};

TEST_F(Hasty, every_label_may_be_clicked_while_the_program_starts) {
    std::ofstream(folder.filePath("VRB_TS2.INI").toStdString(), std::ios::binary) << makersFile;
    program = std::make_unique<Program>(folder.path().toStdString());
    QSignalSpy up(program.get(), &Program::started);
    program->Main();
    for (int turn = 0; up.isEmpty(); ++turn) {
        const auto tool = static_cast<Tool>(turn % static_cast<int>(toolCount));
        emit main().toolActivated(tool);
        emit main().toolActivated(Tool::registerHint);
        if (program->registers().window() != nullptr) {
            open(1, 0);
        }
        if (turn == 5) {
            program->restartMachine();
        }
        QApplication::processEvents();
        main().timTick().setEnabled(false);
        ASSERT_LT(turn, 1000);
    }
    EXPECT_TRUE(program->aids().hintOpen() && program->registers().isOpen());
    EXPECT_EQ(machine().chipMemory[reg::scrLow], 4);
}

TEST_F(Hasty, a_window_that_is_closed_twice_in_one_batch_is_gone_once) {
    startWithTours();
    for (int time = 0; time < 2; ++time) {
        program->registers().open();
        program->settings().open();
        program->aids().openVersion();
        program->aids().openHint();
        startTour();
        program->settings().open();
        program->aids().openVersion();
        for (QWidget* window :
             {static_cast<QWidget*>(program->registers().window()), static_cast<QWidget*>(program->settings().dialog()),
              static_cast<QWidget*>(program->aids().versionPanel()), static_cast<QWidget*>(program->aids().hints()),
              static_cast<QWidget*>(program->aids().navigation())}) {
            ASSERT_NE(window, nullptr);
            batch::close(window);
            batch::close(window);
        }
        deliver();
        EXPECT_FALSE(program->registers().isOpen() || program->settings().isOpen() || program->aids().hintOpen());
        EXPECT_EQ(program->aids().navigation(), nullptr);
        EXPECT_EQ(program->aids().versionPanel(), nullptr);
    }
}

TEST_F(Hasty, a_button_that_closes_is_double_clicked) {
    startWithTours();
    startTour();
    batch::clicks(&program->aids().navigation()->cmdAction(frmNavigation::actionEnd), 3);
    deliver();
    EXPECT_EQ(program->aids().navigation(), nullptr);

    startTour();
    batch::clicks(&program->aids().navigation()->cmdAction(frmNavigation::actionMenu), 2);
    deliver();
    ASSERT_TRUE(program->aids().naviListOpen());
    batch::clicks(&program->aids().naviList()->cmdStart(), 3);
    deliver();
    EXPECT_FALSE(program->aids().naviListOpen());

    program->aids().openVersion();
    batch::clicks(program->aids().versionPanel(), 2);
    deliver();
    EXPECT_EQ(program->aids().versionPanel(), nullptr);

    for (const auto action : {frmDefault::actionApply, frmDefault::actionClose}) {
        program->settings().open();
        batch::clicks(&program->settings().dialog()->cmdAction(action), 2);
        deliver();
        EXPECT_FALSE(program->settings().isOpen());
    }
    EXPECT_TRUE(machine().startupDone);
}

TEST_F(Hasty, the_exit_question_is_answered_twice) {
    start();
    QSignalSpy finished(program.get(), &Program::finished);
    main().close();
    auto* question = main().findChild<QMessageBox*>("exitQuestion");
    ASSERT_NE(question, nullptr);
    question->setDefaultButton(QMessageBox::Ok);
    for (int time = 0; time < 2; ++time) {
        batch::key(question, Qt::Key_Return);
    }
    deliver();
    EXPECT_EQ(finished.count(), 1);
    fire();  // what is still on its way finds everything whole
}

TEST_F(Hasty, a_double_click_on_a_label_opens_its_window_once) {
    start();
    batch::clicks(&main().label(Tool::memoryWindow), 2);
    deliver();
    EXPECT_TRUE(isUp(program->memory().chooser()));
}

}  // namespace
