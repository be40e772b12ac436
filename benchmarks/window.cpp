// SPDX-License-Identifier: Apache-2.0
// What a firing costs with the windows, and how long the start takes.

#include "access/views/frmRegister.h"
#include "boards/views/frmHard.h"
#include "memwin/views/MemoryWindows.h"
#include "memwin/views/frmDump.h"
#include "platform/look.h"
#include "program/Program.h"
#include "program/frmMDI.h"
#include "tests/machines.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
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

void refreshOfAnUnchangedBench(benchmark::State& state) {
    Machine machine = makersMachine();
    frmHard bench(machine);
    bench.show();
    for (auto round : state) {
        benchmark::DoNotOptimize(bench.refresh());
    }
}
BENCHMARK(refreshOfAnUnchangedBench);

// Every LED of three ports changes at each round, and is painted.
void benchWithAllOutputsChanging(benchmark::State& state) {
    Machine machine = makersMachine();
    frmHard bench(machine);
    bench.show();
    QApplication::processEvents();
    for (auto round : state) {
        for (Pin& pin : machine.picPO) {
            pin.level = !pin.level;
        }
        bench.refresh();
        QApplication::processEvents();
    }
}
BENCHMARK(benchWithAllOutputsChanging)->Unit(benchmark::kMicrosecond);

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

// All three dump windows as an area to refresh, `state.range` bytes changed at each round.
void refreshAllAreas(benchmark::State& state) {
    Machine machine = makersMachine();
    QMdiArea area;
    QMainWindow owner;
    area.resize(1280, 980);
    area.show();
    MemoryWindows windows(machine, area, owner);
    for (const Area each : {Area::controlDoDi, Area::c1ToC7, Area::drc}) {
        windows.openArea(each);
    }
    const auto changed = static_cast<std::size_t>(state.range(0));
    const bool painted = state.range(1) != 0;
    for (auto round : state) {
        for (std::size_t byte = 0; byte < changed; ++byte) {
            ++machine.chipMemory[byte * (registerBase / changed)];
        }
        windows.refreshAllAreas();
        if (painted) {
            QApplication::processEvents();
        }
    }
}
BENCHMARK(refreshAllAreas)
    ->ArgNames({"changed", "painted"})
    ->Args({0, 0})
    ->Args({0, 1})
    ->Args({100, 0})
    ->Args({100, 1})
    ->Args({registerBase, 0})
    ->Args({registerBase, 1})
    ->Unit(benchmark::kMicrosecond);

void paintTheLargestGrid(benchmark::State& state) {
    Machine machine = makersMachine();
    randomizeMemory(machine, 1);
    frmDump window(machine, Area::c1ToC7);
    window.show();
    QApplication::processEvents();  // a window that isn't on the screen yet paints nothing
    window.refreshArea();
    for (auto round : state) {
        window.grid().repaint();
    }
}
BENCHMARK(paintTheLargestGrid)->Unit(benchmark::kMicrosecond);

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
    look::applyTo();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
