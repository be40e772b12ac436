#include "core/views/Program.h"
#include "platform/look.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("VRB-TS");
    QApplication::setQuitOnLastWindowClosed(false);  // only the exit question ends the program
    look::applyTo(application);

    Program program(std::filesystem::path(QApplication::applicationDirPath().toStdU16String()));
    // The learner has been asked: nothing asks the windows again.
    QObject::connect(
        &program, &Program::finished, &application, [] { QApplication::exit(); }, Qt::QueuedConnection);
    QTimer::singleShot(0, &program, &Program::Main);
    return QApplication::exec();
}
