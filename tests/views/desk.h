// SPDX-License-Identifier: Apache-2.0
// The desk that a learner sits at: the program, started on settings of the test's own and then left without a running timer.
// Firings are made by hand, gestures by real events, or as a scene in the words of aids/tourLanguage.h.

#pragma once

#include "access/views/frmEditRegister.h"
#include "access/views/frmRegister.h"
#include "aids/views/frmDialog.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmMessage.h"
#include "aids/views/frmNaviList.h"
#include "aids/views/frmNavigation.h"
#include "aids/views/frmVersion.h"
#include "boards/views/BenchCombo.h"
#include "config/views/frmDefault.h"
#include "memwin/views/frmDump.h"
#include "memwin/views/frmDumpSel.h"
#include "platform/OvertypeField.h"
#include "program/Program.h"
#include "program/frmMDI.h"
#include "tests/tempFolder.h"
#include "tests/views/TourPlayer.h"
#include "tests/views/hands.h"

#include <QLabel>
#include <QListWidget>
#include <QMdiArea>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include <functional>

inline const std::string makersFile =
    "[INIT]\r\nCABLECONNECTION=1\r\nMEMORYCLEAR=1\r\nSA-QDA41=1\r\nSA-QDA52=3\r\nCASCADE-QDA41=1\r\nIOS-QDA52=5\r\n"
    "OPENWINDOW1=1\r\n";
inline const std::string withDump = makersFile + "OPENWINDOW3=1\r\n";
inline const std::string withHintsAndDump = withDump + "OPENWINDOW2=1\r\n";

class Desk : public testing::Test {
protected:
    // Starts on a settings file with this text, on none for an empty text; `between` comes after every step.
    void start(
        const std::string& file = makersFile, const std::function<void()>& between = [] {}) {
        if (!file.empty()) {
            put(folder / "VRB_TS2.INI", file);
        }
        program = std::make_unique<Program>(folder);
        bool up = false;
        QObject::connect(program.get(), &Program::started, program.get(), [&] { up = true; });
        program->Main();
        while (!up) {
            main().timTick().setEnabled(false);
            between();
            QApplication::processEvents();
        }
        main().timTick().setEnabled(false);
    }
    // With the scan running, the start panel gone, and the keyboard at the bench.
    void startAtBench(const std::string& file = makersFile) {
        start(file);
        fire();
        hideVersion();
        main().activateWindow();
        main().area().setActiveSubWindow(&bench());
        bench().view().setFocus();
        settle();
    }
    void makeFile(const fs::path& name, const std::string& bytes) {
        fs::create_directories((folder / name).parent_path());
        put(folder / name, bytes);
    }
    // A folder that comes with the program.
    void giveFolder(const fs::path& from) { fs::copy(from, folder / from.filename()); }

    void play(const std::string& scene) {
        if (!player) {
            player.emplace(*program, Eyes::closed);
        }
        player->play(scene);
    }
    void fire(int firings = 1) {
        for (int done = 0; done < firings; ++done) {
            main().timTick().fire();
        }
    }
    // The events under way, and what they have left for later.
    static void settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
    void restart() {
        program->restartMachine();
        main().timTick().setEnabled(false);
        settle();
    }

    Machine& machine() { return program->machine(); }
    frmMDI& main() { return program->mainWindow(); }
    frmHard& bench() { return *program->bench().bench(); }
    BenchHand hand() { return BenchHand(bench()); }
    BenchPart& part(const char* name, std::size_t index = 0) { return hand().part(name, index); }
    frmRegister& registers() { return *program->registers().window(); }
    frmEditRegister& dialog() { return *program->registers().writeDialog(); }
    frmDump& dump(Area area = Area::controlDoDi) { return *program->memory().window(area); }
    QWidget& window(const char* name) { return *program->sight().window(name); }
    bool up(const char* name) { return isUp(program->sight().window(name)); }

    static QString labelOf(const QWidget& window, const char* name) { return window.findChild<QLabel*>(name)->text(); }
    // The field that every dialog with digits has.
    static OvertypeField& field(const QWidget& dialog) { return *dialog.findChild<OvertypeField*>(); }
    static QRadioButton& option(const QWidget& dialog, int index) {
        return *dialog.findChild<QRadioButton*>(QStringLiteral("opnAccess%1").arg(index));
    }
    std::string question() {
        const frmDialog* question = program->aids().dialog();
        return isUp(question) ? labelOf(*question, "lblMessage").trimmed().toStdString() : "";
    }
    QMessageBox* exitQuestion() { return main().findChild<QMessageBox*>("exitQuestion"); }
    void hideVersion() {
        if (frmVersion* panel = program->aids().versionPanel()) {
            panel->hideVersion();
        }
    }

    static void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
    void click(Tool tool) { click(main().label(tool)); }
    void openRegister(int row, std::size_t column) { QTest::mouseDClick(&registers().cell(row, column), Qt::LeftButton); }
    void openCell(int cell, Area area = Area::controlDoDi, DumpGrid::Side side = DumpGrid::Side::data) {
        QTest::mouseDClick(&dump(area).grid(), Qt::LeftButton, {}, dump(area).grid().cellRect(cell, side).center());
    }
    void openNaviList() { QTest::mouseDClick(&main().label(Tool::navigator), Qt::LeftButton); }
    // By its row in the list, which may be up already.
    void startTour(int row) {
        openNaviList();
        program->aids().naviList()->lstTitle().setCurrentRow(row);
        click(program->aids().naviList()->cmdStart());
        main().timTick().setEnabled(false);
    }
    // The widget that has the keyboard when the events under way are over.
    static QWidget* atKeys() {
        QApplication::processEvents();
        return QApplication::focusWidget();
    }
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        ASSERT_NE(atKeys(), nullptr) << "nobody has the keyboard";
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }
    // Whether some pixel of a picture has a colour of this kind.
    template <class Kind>
    static bool holds(const QImage& picture, Kind kind) {
        for (int pixel = 0; pixel < picture.width() * picture.height(); ++pixel) {
            if (kind(picture.pixelColor(pixel % picture.width(), pixel / picture.width()))) {
                return true;
            }
        }
        return false;
    }
    static bool reddish(const QColor& colour) { return colour.red() > colour.blue() + 100; }
    static void type(const char* digits) { QTest::keyClicks(atKeys(), digits); }

    const QTemporaryDir temporary;
    const fs::path folder = temporary.path().toStdString();
    std::unique_ptr<Program> program;
    std::optional<TourPlayer> player;
};
