// The program, started on settings of the test's own and then left without a running timer: firings are made by hand.

#pragma once

#include "access/views/frmEditRegister.h"
#include "access/views/frmRegister.h"
#include "aids/views/frmDialog.h"
#include "aids/views/frmMessage.h"
#include "aids/views/frmVersion.h"
#include "memwin/views/frmDumpSel.h"
#include "platform/OvertypeField.h"
#include "program/Program.h"
#include "program/frmMDI.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <string>

inline const std::string makersFile =
    "[INIT]\r\nCABLECONNECTION=1\r\nMEMORYCLEAR=1\r\nSA-QDA41=1\r\nSA-QDA52=3\r\nCASCADE-QDA41=1\r\nIOS-QDA52=5\r\n"
    "OPENWINDOW1=1\r\n";

// A window that nobody has asked for is none.
inline bool isUp(const QWidget* window) {
    return window != nullptr && window->isVisible();
}

class StartedProgram : public testing::Test {
protected:
    // Starts on a settings file with this text, on none for an empty text; `between` comes after every step.
    void start(
        const std::string& file = makersFile, const std::function<void()>& between = [] {}) {
        if (!file.empty()) {
            std::ofstream(folder.filePath("VRB_TS2.INI").toStdString(), std::ios::binary) << file;
        }
        program = std::make_unique<Program>(folder.path().toStdString());
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

    Machine& machine() { return program->machine(); }
    frmMDI& main() { return program->mainWindow(); }
    frmRegister& registers() { return *program->registers().window(); }
    frmEditRegister& dialog() { return *program->registers().writeDialog(); }
    OvertypeField& field() { return *dialog().findChild<OvertypeField*>("txtWriteData"); }
    QString text(const char* name) { return dialog().findChild<QLabel*>(name)->text(); }
    QRadioButton& option(int index) { return *dialog().findChild<QRadioButton*>(QStringLiteral("opnAccess%1").arg(index)); }
    QString popupText() { return isUp(program->aids().message()) ? program->aids().message()->text() : QString(); }

    void popup(const char* text) { program->aids().say(Popup{text}); }

    // An entry of the chooser of memory windows.
    void chooseMemory(int entry) {
        QTest::mouseClick(&main().label(Tool::memoryWindow), Qt::LeftButton);
        QTest::mouseClick(&program->memory().chooser()->cmdAREA(entry), Qt::LeftButton);
    }

    void fire(int firings = 1) {
        for (int done = 0; done < firings; ++done) {
            main().timTick().fire();
        }
    }

    void open(int row, std::size_t column) { QTest::mouseDClick(&registers().cell(row, column), Qt::LeftButton); }

    void write(int row, std::size_t column, const char* digits) {
        open(row, column);
        QTest::keyClicks(&field(), digits);
        QTest::keyClick(&field(), Qt::Key_Return);
    }

    // The four cells of a row: "r" red, "b" black.
    std::string colours(int row) {
        std::string text;
        for (std::size_t column = 0; column < 4; ++column) {
            text += registers().cell(row, column).red() ? 'r' : 'b';
        }
        return text;
    }

    QTemporaryDir folder;
    std::unique_ptr<Program> program;
};
