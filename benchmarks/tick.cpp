// SPDX-License-Identifier: Apache-2.0
// How fast the machine ticks. "visits" is the number of visits a second.

#include "core/runControl.h"
#include "tests/machines.h"

#include <benchmark/benchmark.h>

namespace {

void countVisits(benchmark::State& state, int ticksPerRound) {
    state.counters["visits"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * ticksPerRound, benchmark::Counter::kIsRate);
}

void stoppedTick(benchmark::State& state) {
    Machine machine = makersMachine();
    for (auto round : state) {
        simulationTick(machine);
        benchmark::DoNotOptimize(machine);
    }
}
BENCHMARK(stoppedTick);

void goodVisit(benchmark::State& state) {
    Machine machine = scanningMachine();
    for (auto round : state) {
        simulationTick(machine);
        benchmark::DoNotOptimize(machine);
    }
    countVisits(state, 1);
}
BENCHMARK(goodVisit);

void passOverFailingStations(benchmark::State& state) {
    Machine machine = scanningMachine(63);
    plug(machine, 1, false);
    for (auto round : state) {
        ticks(machine, 63);
        benchmark::DoNotOptimize(machine);
    }
    countVisits(state, 63);
}
BENCHMARK(passOverFailingStations);

void firing(benchmark::State& state) {
    Machine machine = scanningMachine();
    TickBar bar;
    for (auto round : state) {
        timTick_Timer(machine, bar);
        benchmark::DoNotOptimize(machine);
    }
    countVisits(state, runModes[modeRun].ticks);
}
BENCHMARK(firing);

}  // namespace

BENCHMARK_MAIN();
