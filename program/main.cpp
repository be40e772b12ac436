// SPDX-License-Identifier: Apache-2.0
#include "platform/ImageList.h"
#include "platform/look.h"
#include "platform/paths.h"
#include "platform/settingsFile.h"
#include "platform/standardTexts.h"
#include "program/Program.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("VRB-TS");
    QApplication::setDesktopFileName("vrb-ts");  // by it a desktop finds name and icon
    QApplication::setWindowIcon(programIcon());
    QApplication::setQuitOnLastWindowClosed(false);  // only the exit question ends the program
    const std::filesystem::path folder = programFolder(pathOf(QApplication::applicationDirPath()));
    look::addFonts(textOfPath(folder / "fonts"));
    look::applyTo();
    speakJapanese(application);

    Program program(folder, userFolder());
    // The learner has been asked: nothing asks the windows again.
    QObject::connect(
        &program, &Program::finished, &application, [] { QApplication::exit(); }, Qt::QueuedConnection);
    QTimer::singleShot(0, &program, &Program::Main);
    return QApplication::exec();
}
