// What a firing costs with the windows, and how long the start takes.

#include "access/views/frmRegister.h"
#include "core/views/Program.h"
#include "core/views/frmMDI.h"
#include "platform/look.h"
#include "tests/bench.h"

#include <QApplication>
#include <benchmark/benchmark.h>

namespace {

void refreshOfAnUnchangedRegisterWindow(benchmark::State& state) {
    Machine machine = makersMachine();
    frmRegister window(machine, nullptr);
    window.show();
    window.refreshRegisters();
    for (auto round : state) {
        window.refreshRegisters();
    }
}
BENCHMARK(refreshOfAnUnchangedRegisterWindow);

void firingWithTheRegisterWindowPainted(benchmark::State& state) {
    Machine machine = scanningMachine();
    frmMDI main(machine);
    main.timTick().setEnabled(false);
    frmRegister window(machine, nullptr);
    window.show();
    QObject::connect(&main, &frmMDI::refreshWanted, &window, &frmRegister::refreshRegisters);
    for (auto round : state) {
        main.timTick_Timer();
        QApplication::processEvents();
    }
}
BENCHMARK(firingWithTheRegisterWindowPainted);

// From Main to the last step, without settings and sound beside it.
void startUp(benchmark::State& state) {
    for (auto round : state) {
        Program program("no-such-folder");
        bool up = false;
        QObject::connect(&program, &Program::started, &program, [&up] { up = true; });
        program.Main();
        while (!up) {
            QApplication::processEvents();
        }
    }
}
BENCHMARK(startUp)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    look::applyTo(*qApp);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
