// The program: owns the one machine and one of each window, brings them up step by step, and wires what one window asks of
// another. Windows don't know each other; whatever goes from one to the next stands here.
//
//   gesture -> window -> rule of the model -> machine -> answer -> window says it, refreshAll()
//   timTick -> simulationTick x 67 -> refreshAll()

#pragma once

#include "access/registers.h"
#include "aids/navigation.h"
#include "config/views/SettingsStore.h"
#include "core/answer.h"
#include "core/mduMain.h"
#include "platform/Sound.h"

#include <QObject>
#include <QPoint>

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>

class MemoryWindows;
class frmDefault;
class frmDialog;
class frmEditRegister;
class frmEditSerial;
class frmHard;
class frmHint;
class frmKAIROZU;
class frmMDI;
class frmMessage;
class frmNaviList;
class frmNavigation;
class frmOsiro;
class frmRegister;
class frmVersion;
enum class Tool;

class Program : public QObject {
    Q_OBJECT

public:
    // `folder` holds the program's files. The settings lie there too, or in `userFolder` where the program's can't be written.
    explicit Program(const std::filesystem::path& folder, const std::filesystem::path& userFolder = {});
    ~Program() override;

    // Starts the program: a list of steps, one per turn of the event loop. `started` comes after the last one.
    void Main();

    // The operations that more than one window asks for.
    void popupAtPointer(const QString& text);
    void popupAtForm(const QWidget& form, const QString& text);
    void playBeep();
    // Register and memory windows, from the machine.
    void refreshAll();
    void openRegisterWrite(const QString& name, int row, int top, Half half);
    // The machine starts anew from the settings in its variables, which applyDialog or Mdef_Set have just put there.
    void restartMachine();
    // Says what a rule answered: a popup at the form, or a warning.
    void say(const QWidget& form, const Answer& answer);

    Machine& machine() { return machine_; }
    // The windows that exist; a window that is not loaded is null.
    frmMDI* mainWindow() { return frmMDI_.get(); }
    frmHard* hardware() { return frmHard_; }
    frmOsiro* timingChartWindow() { return frmOsiro_.get(); }
    frmRegister* registerWindow() { return frmRegister_.get(); }
    frmEditRegister* registerDialog() { return frmEditRegister_.get(); }
    frmDefault* settingsDialog() { return frmDefault_.get(); }
    frmHint* hints() { return frmHint_.get(); }
    frmKAIROZU* circuitDiagram() { return frmKAIROZU_.get(); }
    frmNaviList* naviList() { return frmNaviList_.get(); }
    frmNavigation* navigation() { return frmNavigation_.get(); }
    frmEditSerial* serialDialog() { return frmEditSerial_.get(); }
    frmMessage* message() { return frmMessage_.get(); }
    frmDialog* dialog() { return frmDialog_.get(); }
    MemoryWindows* memoryWindows() { return memoryWindows_.get(); }
    frmVersion* versionPanel() { return frmVersion_.get(); }

signals:
    void started();
    // Every window is gone: the program may end.
    void finished();

private:
    void addStartSteps();
    void loadWindows();
    void runNextStep();
    void loadMain();
    void loadDialogs();
    void loadMemoryWindows();
    void loadHard();
    void loadRegister();
    void fillMemory();
    void openMemoryWindows();
    void positionWindows();
    void openSound();
    void quitProgram();
    void quitWhenKept(bool kept);

    void activateTool(Tool tool);
    void openRegisterWindow();
    void showRegisterWindow();
    void unloadRegisterWindow();
    void openVersion();
    void openSettings();
    void loadHint();
    void openHint();
    void showHint();
    void setKAIROZU(int index);
    void loadNaviIndex();
    void lblNagigator_DblClick();
    void openNaviList();
    void startNavigation(std::size_t number);
    void loadNavigation();
    void unloadHard();
    void enterSerialData(int index);
    void openTimingChart(int group, QPoint offset);
    void answerDuplex(const Answer& question);
    void popup(const QString& text, QPoint point);
    // A place counted from the main window's own top left corner.
    QPoint fromMain(QPoint place) const;

    std::filesystem::path folder_;
    SettingsStore settingsStore_;
    Machine machine_;
    Sound sound_;
    std::deque<std::function<void()>> steps_;

    // The main window comes first and goes last: it owns the others on the screen.
    std::unique_ptr<frmMDI> frmMDI_;
    std::unique_ptr<frmVersion> frmVersion_;
    frmHard* frmHard_ = nullptr;  // a child of the main window's area
    std::unique_ptr<frmEditSerial> frmEditSerial_;
    std::unique_ptr<frmDefault> frmDefault_;
    std::unique_ptr<frmHint> frmHint_;
    std::unique_ptr<frmKAIROZU> frmKAIROZU_;
    std::vector<NaviRecord> naviIndex_;
    std::unique_ptr<frmNaviList> frmNaviList_;
    std::unique_ptr<frmNavigation> frmNavigation_;
    std::unique_ptr<frmOsiro> frmOsiro_;
    std::unique_ptr<frmRegister> frmRegister_;
    std::unique_ptr<frmEditRegister> frmEditRegister_;
    std::unique_ptr<frmMessage> frmMessage_;
    std::unique_ptr<frmDialog> frmDialog_;
    std::unique_ptr<MemoryWindows> memoryWindows_;
};
