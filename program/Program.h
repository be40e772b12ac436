// SPDX-License-Identifier: Apache-2.0
// The program: owns the one machine, the main window and the window sets of the rooms, brings them up step by step, and wires
// what one set asks of another. A set knows its own windows and no other's; no set is known here from the inside.
//
//   gesture -> window -> rule of the model -> machine -> answer -> aids say it, refreshAll()
//   timTick -> simulationTick x 67 -> refreshAll()

#pragma once

#include "access/views/RegisterWindows.h"
#include "aids/views/AidWindows.h"
#include "boards/views/BenchWindows.h"
#include "config/views/SettingsStore.h"
#include "config/views/SettingsWindows.h"
#include "core/mduMain.h"
#include "memwin/views/MemoryWindows.h"
#include "platform/Sound.h"
#include "program/TourSight.h"
#include "program/WindowWalk.h"
#include "program/frmMDI.h"

#include <QObject>

#include <deque>
#include <filesystem>
#include <functional>

class Program : public QObject {
    Q_OBJECT

public:
    // `folder` holds the program's files. The settings lie there too, or in `userFolder` where the program's can't be written.
    explicit Program(const std::filesystem::path& folder, const std::filesystem::path& userFolder = {});
    ~Program() override;

    // Starts the program: a list of steps, one per turn of the event loop. `started` comes after the last one.
    void Main();

    void playBeep() { sound_.playBeep(); }
    // Bench, register and memory windows, from the machine.
    void refreshAll();
    // The machine starts anew from the settings in its variables, which applyDialog or Mdef_Set have just put there.
    void restartMachine();
    // Begins a tour by its number in the list, from 1, once the program has started; a number that the list doesn't have opens
    // it.
    void openTour(std::size_t number);

    Machine& machine() { return machine_; }
    frmMDI& mainWindow() { return frmMDI_; }
    RegisterWindows& registers() { return registers_; }
    MemoryWindows& memory() { return memory_; }
    BenchWindows& bench() { return bench_; }
    AidWindows& aids() { return aids_; }
    SettingsWindows& settings() { return settings_; }
    // What a tour sees.
    const TourSight& sight() const { return sight_; }

signals:
    void started();
    // Every window is gone: the program may end.
    void finished();

private:
    void addStartSteps();
    void loadWindows();
    void runNextStep();
    void showMain();
    void positionWindows();
    void followPage();
    void openSound();
    void tellOfFonts();
    void readSettings();
    void quitWhenKept(bool kept);
    void quitProgram();

    void wireStrip();
    void wireWindows();
    void activateTool(Tool tool);
    void openFromStrip(Tool tool);
    bool isOpen(Tool tool) const;
    void lblNagigator_DblClick();

    std::filesystem::path folder_;
    SettingsStore store_;
    Machine machine_;
    Sound sound_;
    std::deque<std::function<void()>> steps_;
    bool quitting_ = false;

    // The main window comes first and goes last: it owns the others on the screen.
    frmMDI frmMDI_;
    RegisterWindows registers_;
    MemoryWindows memory_;
    BenchWindows bench_;
    TourSight sight_;
    AidWindows aids_;
    SettingsWindows settings_;
    WindowWalk walk_;
};
