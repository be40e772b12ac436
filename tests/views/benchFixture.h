// SPDX-License-Identifier: Apache-2.0
// The started program with a learner at its bench: the scan of stations 1 to 4 runs, and nothing lies over the bench.

#pragma once

#include "boards/views/BenchCombo.h"
#include "tests/views/BenchHand.h"
#include "tests/views/startedProgram.h"

#include <QAbstractItemView>
#include <QMdiArea>

#include <functional>

class Bench : public StartedProgram {
protected:
    // A part, whether it wants a double click, its picture before that, and the state that follows.
    struct Touched {
        const char* name;
        std::size_t index;
        bool twice;
        int before;
        std::function<bool()> state;
    };

    void startBench() {
        start();
        fire();
        registers().hide();
        program->aids().versionPanel() != nullptr ? program->aids().versionPanel()->hide() : void();
        main().showNormal();
        main().resize(1280, 994);
        main().move(-500, -300);  // room for what stands beside the bench, on a small test screen
        main().activateWindow();
        main().area().setActiveSubWindow(&bench());
        bench().view().setFocus();
        QApplication::processEvents();
    }

    frmHard& bench() { return *program->bench().bench(); }
    BenchHand hand() { return BenchHand(bench()); }
    BenchPart& part(const char* name, std::size_t index = 0) { return hand().part(name, index); }
    QWidget* viewport() { return hand().viewport(); }
    QPoint at(const BenchPart& part) { return hand().at(part); }
    QRectF place(const BenchPart& part) { return part.mapRectToScene(part.shape().boundingRect()); }
    QPoint outside() { return bench().view().mapFromScene(QPointF(440, 300)); }
    void click(const char* name, std::size_t index = 0) { hand().click(part(name, index)); }
    void clickAt(QPointF place) { QTest::mouseClick(viewport(), Qt::LeftButton, {}, bench().view().mapFromScene(place)); }
    void doubleClick(const char* name, std::size_t index = 0) { hand().doubleClick(part(name, index)); }
    void key(Qt::Key key) { QTest::keyClick(&bench().view(), key); }
    int picture(const char* name, std::size_t index = 0) { return part(name, index).shown().number; }
    bool visible(const char* name, std::size_t index = 0) { return part(name, index).isVisible(); }
    std::string labelText(const char* name, std::size_t index = 0) { return bench().label(name, index)->text().toStdString(); }
    int width() { return bench().width() * 15; }
    BenchPart* atWork() { return dynamic_cast<BenchPart*>(bench().view().scene()->focusItem()); }
    // Opens a box at its picture and clicks an item of its list.
    BenchCombo& choose(const char* name, std::size_t index, const char* pictureName, std::size_t pictureIndex, int item) {
        BenchCombo& box = *bench().combo(name, index);
        doubleClick(pictureName, pictureIndex);
        EXPECT_TRUE(box.isVisible()) << name;
        box.setFocus(Qt::MouseFocusReason);
        box.showPopup();
        const QModelIndex row = box.model()->index(item, 0);
        box.view()->scrollTo(row);
        QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, box.view()->visualRect(row).center());
        EXPECT_FALSE(box.isVisible()) << name;
        return box;
    }
    std::string questionText() {
        const frmDialog* question = program->aids().dialog();
        return isUp(question) ? question->findChild<QLabel*>("lblMessage")->text().mid(1).toStdString() : "";
    }
    void answerQuestion(Qt::Key key) {
        QTest::keyClick(program->aids().dialog(), key);
        QApplication::processEvents();
        main().activateWindow();
        QApplication::processEvents();
    }
};
