// SPDX-License-Identifier: Apache-2.0
// The report of how the program behaves beside an empty window of the same size, both measured in the same run and in turn, each
// in a process of its own.
//
//     benchmark_report [SECONDS]     the time for which processor time is taken, 60 by default
//
// Prints medians with the least and the greatest value. Times of a start count from the start of the process. Exit code 1
// when a measurement fails.

#include "boards/views/frmHard.h"
#include "config/settings.h"
#include "core/simulation.h"
#include "memwin/views/MemoryWindows.h"
#include "platform/look.h"
#include "platform/paths.h"
#include "program/Program.h"
#include "program/frmMDI.h"
#include "tests/machines.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <ctime>

namespace {

constexpr QSize mainSize{1280, 994};
constexpr int starts = 11;
constexpr int rounds = 15;
constexpr int visitsARound = 5'000'000;
constexpr int firingsARound = 500;
constexpr int settling = 4000;  // milliseconds: the start panel is gone by then

struct Spread {
    double median, least, greatest;
};

Spread spreadOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return {values[values.size() / 2], values.front(), values.back()};
}

void print(const QString& what, const Spread& spread, const QString& unit) {
    QTextStream(stdout) << QStringLiteral("%1 %2 %3   (%4 to %5)\n")
                               .arg(what, -58)
                               .arg(spread.median, 9, 'f', 2)
                               .arg(unit, -12)
                               .arg(spread.least, 0, 'f', 2)
                               .arg(spread.greatest, 0, 'f', 2);
}

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// Megabytes that this process holds in memory; 0 where the system doesn't tell.
double megabytes() {
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
        }
    }
    return 0;
}

void openEverything(Program& program) {
    for (const Area area : {Area::controlDoDi, Area::c1ToC7, Area::drc}) {
        program.memory().openArea(area);
    }
    program.mainWindow().label(Tool::registerHint).click();
    emit program.bench().bench()->diagramWanted(1);
}

// --- what a process of its own does: prints one number ---------------------------------------------------------------------

void tell(double value) {
    QTextStream(stdout) << value << Qt::endl;
}

// After it has settled: the memory, or the processor seconds of `seconds` from then on.
void tellLater(const QString& what, int seconds) {
    QTimer::singleShot(settling, qApp, [what, seconds] {
        if (what == "memory") {
            tell(megabytes());
            QApplication::exit();
            return;
        }
        const double before = processorSeconds();
        QTimer::singleShot(seconds * 1000, Qt::PreciseTimer, qApp, [before] {
            tell(processorSeconds() - before);
            QApplication::exit();
        });
    });
}

int emptyWindow(const QString& what, int seconds) {
    QWidget window;
    window.resize(mainSize);
    QTimer timer;
    window.show();
    if (what == "start") {
        QTimer::singleShot(0, qApp, [] { QApplication::processEvents(), tell(0), QApplication::exit(); });
    } else {
        timer.setTimerType(Qt::PreciseTimer);
        timer.start(20);
        tellLater(what, seconds);
    }
    return QApplication::exec();
}

int wholeProgram(const QString& what, int seconds) {
    look::applyTo();
    Program program(VRB_BIN);
    QObject::connect(&program, &Program::started, qApp, [&] {
        if (what == "start") {
            QTimer::singleShot(0, qApp, [] { QApplication::processEvents(), tell(0), QApplication::exit(); });
            return;
        }
        if (what != "memory") {
            openEverything(program);
            program.mainWindow().lblRunMode_Click(what == "stop" ? modeStop : modeRun);
        }
        tellLater(what, seconds);
    });
    QTimer::singleShot(0, &program, &Program::Main);
    return QApplication::exec();
}

// --- what the report does with them ------------------------------------------------------------------------------------------

// The number that a process of its own prints, or for a start the milliseconds until it prints.
double measure(const QString& who, const QString& what, int seconds) {
    QProcess child;
    QElapsedTimer clock;
    clock.start();
    child.start(QApplication::applicationFilePath(), {who, what, QString::number(seconds)});
    if (!child.waitForReadyRead(settling + 1000 * seconds + 20000)) {
        qFatal("%s %s told nothing", qPrintable(who), qPrintable(what));
    }
    const double elapsed = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    child.waitForFinished();
    return what == "start" ? elapsed : child.readAllStandardOutput().trimmed().toDouble();
}

void compare(const QString& title, const QString& what, const QString& unit, int times) {
    std::vector<double> program, empty, ratio;
    for (int done = 0; done < times; ++done) {
        empty.push_back(measure("empty", what, 0));
        program.push_back(measure("program", what, 0));
        ratio.push_back(program.back() / empty.back());
    }
    print(title + ", program", spreadOf(program), unit);
    print(title + ", empty window", spreadOf(empty), unit);
    print(title + ", ratio", spreadOf(ratio), "");
}

void reportVisits() {
    std::vector<double> rates;
    for (int round = 0; round < rounds; ++round) {
        Machine machine = scanningMachine();
        QElapsedTimer clock;
        clock.start();
        ticks(machine, visitsARound);
        rates.push_back(visitsARound / (static_cast<double>(clock.nsecsElapsed()) / 1e3));
    }
    print("good visits", spreadOf(rates), "million/s");
}

void reportFirings() {
    Program program(VRB_BIN);
    bool up = false;
    QObject::connect(&program, &Program::started, qApp, [&up] { up = true; });
    program.Main();
    while (!up) {
        QApplication::processEvents();
    }
    openEverything(program);
    program.mainWindow().timTick().setEnabled(false);
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer clock;
        clock.start();
        for (int firing = 0; firing < firingsARound; ++firing) {
            program.mainWindow().timTick().fire();
            QApplication::processEvents();
        }
        times.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e3 / firingsARound);
    }
    print("a firing of RUN, every window open and painted", spreadOf(times), "us");
}

void reportProcessorTime(int seconds) {
    const double empty = measure("empty", "run", seconds);
    const double run = measure("program", "run", seconds);
    const double stop = measure("program", "stop", std::min(seconds, 10));
    QTextStream(stdout) << QStringLiteral("processor time, RUN with every window open: %1 % of a core over %2 s\n")
                               .arg(100 * run / seconds, 0, 'f', 2)
                               .arg(seconds)
                        << QStringLiteral("processor time, empty window with a 20 ms timer: %1 %, ratio %2\n")
                               .arg(100 * empty / seconds, 0, 'f', 2)
                               .arg(run / empty, 0, 'f', 2)
                        << QStringLiteral("processor time, STOP: %1 %\n").arg(100 * stop / std::min(seconds, 10), 0, 'f', 2);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 4) {
        const int seconds = arguments[3].toInt();
        return arguments[1] == "empty" ? emptyWindow(arguments[2], seconds) : wholeProgram(arguments[2], seconds);
    }
    QTextStream(stdout) << "medians, with the least and the greatest; windows on the platform " << QApplication::platformName()
                        << Qt::endl;
    reportVisits();
    compare("start to the last window painted", "start", "ms", starts);
    compare("memory", "memory", "MB", 3);
    reportProcessorTime(arguments.value(1, "60").toInt());
    look::applyTo();
    reportFirings();
    return 0;
}
