// SPDX-License-Identifier: Apache-2.0
// The main window: the tool strip with its labels and run modes, the area of the child windows, and timTick, the one main
// loop of the program.

#pragma once

#include "core/mduMain.h"
#include "core/runControl.h"
#include "platform/Timer.h"
#include "program/ToolLabel.h"

#include <QMainWindow>
#include <QPointer>

class DeskArea;
class QMdiArea;
class TickTrack;
class QMessageBox;

// The labels of the tool strip that lead to a window.
enum class Tool { registerWindow, memoryWindow, registerHint, navigator, defaultSet, version };
inline constexpr std::size_t toolCount = 6;

class frmMDI : public QMainWindow {
    Q_OBJECT

public:
    explicit frmMDI(Machine& machine);

    // The keys of the run modes, by index: those of a debugger's run, stop and single step.
    static constexpr std::array<QKeyCombination, runModes.size()> runModeKeys{
        QKeyCombination(Qt::Key_F5), Qt::SHIFT | Qt::Key_F5, Qt::CTRL | Qt::Key_F5, QKeyCombination(Qt::Key_F10)};

    // Selects a run mode, 0 to 3, as a click on its label does.
    void lblRunMode_Click(int index);
    // A firing of the main timer.
    void timTick_Timer();

    ToolLabel& label(Tool tool) { return *labels_[static_cast<std::size_t>(tool)]; }
    ToolLabel& lblRunMode(int index) { return *lblRunMode_[static_cast<std::size_t>(index)]; }
    Timer& timTick() { return timTick_; }
    const TickBar& tickBar() const { return tickBar_; }
    QMdiArea& area();
    // While held, the windows of the area keep what is seen of them.
    void holdPainting(bool held);

signals:
    void toolActivated(Tool tool);
    // A run mode was clicked: the chooser of dump areas goes.
    void runModeClicked();
    // Ticks were made or the mode wants it: register and memory windows are to be brought up to date.
    void refreshWanted();
    void beepWanted();
    // The exit question was answered with OK.
    void quitConfirmed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* makeToolBox();
    QWidget* makeRunModes();
    ToolLabel* makeLabel(Tool tool);
    void lblRunMode_MouseUp();
    void keepTime();
    void follow(const Firing& firing);
    void showTickBar();
    void MDIForm_QueryUnload();

    Machine& machine_;
    TickBar tickBar_;
    Timer timTick_;
    std::array<ToolLabel*, toolCount> labels_{};
    std::array<ToolLabel*, runModes.size()> lblRunMode_{};
    TickTrack* shpTick_ = nullptr;
    DeskArea* area_ = nullptr;
    QPointer<QMessageBox> exitQuestion_;
};
