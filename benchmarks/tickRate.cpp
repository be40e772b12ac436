// SPDX-License-Identifier: Apache-2.0
// Measures whether RUN makes its ticks: runs the main window's timer for some seconds and compares with 67 ticks every 20 ms.
//
//     benchmark_tickRate [SECONDS]     60 by default

#include "platform/look.h"
#include "program/frmMDI.h"
#include "tests/machines.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>
#include <QTimer>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    look::applyTo();
    const int seconds = QApplication::arguments().value(1, "60").toInt();

    Machine machine = scanningMachine();
    frmMDI main(machine);
    main.show();
    main.timTick().setEnabled(true);  // as the program does when all is loaded
    qint64 firings = 0;
    QObject::connect(&main, &frmMDI::refreshWanted, &main, [&firings] { ++firings; });
    QElapsedTimer clock;
    clock.start();
    QTimer::singleShot(seconds * 1000, qApp, [&] {
        const RunMode& run = runModes[modeRun];
        const double expected = static_cast<double>(clock.elapsed()) / run.interval * run.ticks;
        const double made = static_cast<double>(firings * run.ticks);
        QTextStream(stdout) << static_cast<double>(clock.elapsed()) / 1000 << " s: " << firings * run.ticks << " ticks, "
                            << 100 * (made / expected - 1) << " % off\n";
        QApplication::exit(std::abs(made / expected - 1) <= 0.02 ? 0 : 1);
    });
    return QApplication::exec();
}
