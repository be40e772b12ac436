// SPDX-License-Identifier: Apache-2.0
#include "program/Program.h"

#include "config/restart.h"
#include "core/runControl.h"
#include "platform/browser.h"
#include "platform/look.h"
#include "platform/paths.h"
#include "platform/screen.h"
#include "platform/twips.h"

#include <QApplication>
#include <QDateTime>
#include <QMdiArea>
#include <QTimer>

namespace {

constexpr int chooserBesideLabel = twips(900);

// The main window is made for a screen of 1280 x 1024 and takes a smaller one whole.
constexpr QSize mainSize{1280, 994};

std::uint64_t dateNumber() {
    return QDateTime::currentDateTime().toString("yyyyMMddhhmmss").toULongLong();
}

}  // namespace

Program::Program(const std::filesystem::path& folder, const std::filesystem::path& userFolder)
    : folder_(folder),
      store_(SettingsPlace(folder, userFolder.empty() ? folder : userFolder)),
      frmMDI_(machine_),
      registers_(machine_, frmMDI_),
      memory_(machine_, frmMDI_.area(), frmMDI_),
      bench_(machine_, frmMDI_.area(), frmMDI_),
      sight_({registers_, memory_, bench_, aids_, settings_}),
      aids_(machine_, frmMDI_.area(), frmMDI_, folder, sight_),
      settings_(store_, frmMDI_),
      walk_(frmMDI_) {
    wireStrip();
    wireWindows();
}

Program::~Program() = default;

// --- start ---------------------------------------------------------------------------------------------------------------

void Program::Main() {
    followScreens(*this);
    followPage();
    addStartSteps();
    runNextStep();
}

void Program::runNextStep() {
    if (quitting_) {
        return;
    }
    if (steps_.empty()) {
        emit started();
        // Behind the painting of the windows: asking for the device can take longer. Until then the system beeps.
        QTimer::singleShot(0, this, &Program::openSound);
        return;
    }
    const std::function<void()> step = std::move(steps_.front());
    steps_.pop_front();
    step();
    QMetaObject::invokeMethod(this, &Program::runNextStep, Qt::QueuedConnection);
}

void Program::addStartSteps() {
    steps_.emplace_back([this] {
        readSettings();
        aids_.openStartPanel();
    });
    loadWindows();
    steps_.emplace_back([this] {
        machine_.startupDone = true;
        startMachine(machine_);
        refreshAll();
        frmMDI_.holdPainting(false);
        tellOfFonts();
    });
}

void Program::readSettings() {
    const SettingsStore::Reading file = store_.read();
    ::readSettings(machine_, file.profile);
    if (file.warning) {
        // Behind the last step, when there is a window to say it.
        steps_.emplace_back([this, warning = *file.warning] { aids_.say(warning); });
    }
}

// A window that the settings leave closed is made when somebody asks for it; its step then only moves the progress bar.
void Program::loadWindows() {
    const auto step = [this](const char* message, std::function<void()> load) {
        steps_.emplace_back([this, message, load = std::move(load)] {
            aids_.showProgress(message);
            load();
        });
    };
    const auto nothing = [] {};
    step("メインウィンドウロード中です。", [this] { showMain(); });
    step("ハードウェアウィンドウロード中です。", [this] {
        frmMDI_.holdPainting(true);  // each window of the area is painted once, when all of them stand
        bench_.load();
    });
    step("レジスタウィンドウロード中です。", [this] { registers_.openBySettings(); });
    step("メモリウィンドウロード中です。", nothing);
    step("メモリウィンドウロード中です。", nothing);
    step("メモリウィンドウロード中です。", nothing);
    step("メモリ処理中です。", [this] {
        fillMemory(machine_, dateNumber());
        positionWindows();
        memory_.openBySettings();
    });
    step("レジスタヒントウィンドウロード中です。", [this] { aids_.openHintBySettings(); });
    step("ナビゲーションウィンドウ設定中です。", [this] { aids_.loadNaviIndex(); });
}

void Program::showMain() {
    const QRect screen = usableScreen(QPoint());
    // A page is the program's own desktop.
    const bool fits = !inBrowser && screen.width() > mainSize.width() && screen.height() > mainSize.height();
    frmMDI_.resize(fits ? mainSize : screen.size());
    frmMDI_.move(screen.topLeft());
    if (fits) {
        frmMDI_.show();
    } else {
        frmMDI_.showMaximized();
    }
    frmMDI_.timTick().setEnabled(true);
}

void Program::positionWindows() {
    registers_.place();
    aids_.placeHint();
}

// A page that nobody sees stands still; what it missed is not made up for.
void Program::followPage() {
    if constexpr (inBrowser) {
        page::follow([this](bool visible) { frmMDI_.timTick().hold(!visible); });
        page::followPictures([this] {
            bench_.reloadPictures();
            aids_.reloadPictures();
            for (QWidget* window : QApplication::allWidgets()) {
                window->update();
            }
        });
    }
}

void Program::openTour(std::size_t number) {
    aids_.openTour(number);
}

void Program::openSound() {
    machine_.soundAvailable = sound_.open(textOfPath(folder_ / "BEEP.WAV"));
}

void Program::tellOfFonts() {
    if (!look::japaneseFontFound()) {
        // In the letters that this desktop does have.
        aids_.say(
            Warning{"No Japanese font was found: most texts of this\nprogram will appear as empty boxes.\n\n"
                    "Please install one, for example\nIPA Gothic or Noto Sans CJK JP.",
                    "   Font"});
    }
}

// --- restart ---------------------------------------------------------------------------------------------------------------

void Program::restartMachine() {
    beginRestart(machine_);
    bench_.unload();
    registers_.unload();
    memory_.unload();
    aids_.beginRestart();
    settings_.hide();
    resetMachine(machine_, dateNumber());
    bench_.load();
    positionWindows();
    registers_.openBySettings();
    memory_.openBySettings();
    aids_.openHintBySettings();
    openSound();
    frmMDI_.lblRunMode_Click(modeRun);
    endRestart(machine_);
    refreshAll();
}

// --- end -----------------------------------------------------------------------------------------------------------------

void Program::quitWhenKept(bool kept) {
    if (kept) {
        quitProgram();
    }
}

// Windows go from sight here and are deleted with the program: gestures that are still on their way find them whole.
void Program::quitProgram() {
    if (quitting_) {
        return;
    }
    if (store_.saving()) {
        // What the learner has saved comes first. If it can't be kept he reads why, and the program stays.
        connect(&store_, &SettingsStore::settled, this, &Program::quitWhenKept,
                static_cast<Qt::ConnectionType>(Qt::UniqueConnection | Qt::SingleShotConnection));
        return;
    }
    store_.disconnect(this);
    quitting_ = true;
    frmMDI_.timTick().setEnabled(false);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
    }
    emit finished();
}

// --- the tool strip --------------------------------------------------------------------------------------------------------

void Program::wireStrip() {
    connect(&frmMDI_, &frmMDI::toolActivated, this, &Program::activateTool);
    connect(&frmMDI_, &frmMDI::runModeClicked, &memory_, &MemoryWindows::hideChooser);
    connect(&frmMDI_, &frmMDI::refreshWanted, this, &Program::refreshAll);
    connect(&frmMDI_, &frmMDI::beepWanted, this, &Program::playBeep);
    connect(&frmMDI_, &frmMDI::quitConfirmed, this, &Program::quitProgram);

    connect(&registers_, &RegisterWindows::shown, &frmMDI_.label(Tool::registerWindow), &ToolLabel::setWindowOpen);
    connect(&aids_, &AidWindows::hintShown, &frmMDI_.label(Tool::registerHint), &ToolLabel::setWindowOpen);
    connect(&aids_, &AidWindows::naviListShown, &frmMDI_.label(Tool::navigator), &ToolLabel::setWindowOpen);
    connect(&settings_, &SettingsWindows::shown, &frmMDI_.label(Tool::defaultSet), &ToolLabel::setWindowOpen);
}

void Program::activateTool(Tool tool) {
    const ToolLabel& label = frmMDI_.label(tool);
    switch (tool) {
        case Tool::memoryWindow:
            memory_.toggleChooser(label.mapTo(&frmMDI_, QPoint()).x() - chooserBesideLabel, label.hasFocus());
            break;
        case Tool::navigator: lblNagigator_DblClick(); break;
        default: openFromStrip(tool);
    }
}

bool Program::isOpen(Tool tool) const {
    switch (tool) {
        case Tool::registerWindow: return registers_.isOpen();
        case Tool::registerHint: return aids_.hintOpen();
        case Tool::defaultSet: return settings_.isOpen();
        default: return false;
    }
}

// A window that is open already beeps and takes the keyboard.
void Program::openFromStrip(Tool tool) {
    if (isOpen(tool)) {
        Sound::systemBeep();
    } else {
        memory_.hideChooser();
    }
    switch (tool) {
        case Tool::registerWindow: registers_.open(); break;
        case Tool::registerHint: aids_.openHint(); break;
        case Tool::defaultSet: settings_.open(); break;
        default: aids_.openVersion();
    }
}

void Program::lblNagigator_DblClick() {
    if (aids_.versionPanelOpen()) {
        return;
    }
    memory_.hideChooser();
    if (aids_.naviListOpen()) {
        Sound::systemBeep();
    }
    aids_.openNaviList();
}

// --- what the windows ask for ------------------------------------------------------------------------------------------------

void Program::wireWindows() {
    const auto say = [this](const Answer& answer, const QWidget* form) { aids_.say(answer, form); };

    connect(&registers_, &RegisterWindows::said, &aids_, say);
    connect(&registers_, &RegisterWindows::hintWanted, &aids_, &AidWindows::showHintFor);
    connect(&registers_, &RegisterWindows::refreshWanted, this, &Program::refreshAll);
    connect(&registers_, &RegisterWindows::readProtectionChanged, &memory_, &MemoryWindows::readProtectionChanged);
    connect(&registers_, &RegisterWindows::messageInTheWay, &aids_, &AidWindows::hideMessage);

    connect(&memory_, &MemoryWindows::said, &aids_, say);
    connect(&memory_, &MemoryWindows::beepWanted, this, &Program::playBeep);
    connect(&memory_, &MemoryWindows::messageInTheWay, &aids_, &AidWindows::hideMessage);
    connect(&memory_, &MemoryWindows::refreshWanted, this, &Program::refreshAll);
    connect(&memory_, &MemoryWindows::allCloseWanted, &registers_, &RegisterWindows::hide);
    connect(&memory_, &MemoryWindows::controlWordPointed, &aids_, &AidWindows::turnToControlWord);

    connect(&bench_, &BenchWindows::said, &aids_, [this](const Answer& answer) { aids_.say(answer); });
    connect(&bench_, &BenchWindows::asked, &aids_, &AidWindows::ask);
    connect(&bench_, &BenchWindows::refreshWanted, this, &Program::refreshAll);
    connect(&bench_, &BenchWindows::messageInTheWay, &aids_, &AidWindows::hideMessage);
    connect(&bench_, &BenchWindows::busTypeChanged, &memory_, &MemoryWindows::busTypeChanged);
    connect(&bench_, &BenchWindows::diagramWanted, &aids_, &AidWindows::setKAIROZU);
    connect(&bench_, &BenchWindows::diagramChanged, &aids_, &AidWindows::changeKAIROZU);
    connect(&bench_, &BenchWindows::diagramGone, &aids_, &AidWindows::hideKAIROZU);

    connect(&aids_, &AidWindows::beepWanted, this, &Program::playBeep);
    connect(&aids_, &AidWindows::activated, &memory_, &MemoryWindows::hideChooser);
    connect(&aids_, &AidWindows::makersBenchWanted, this, [this] {
        Mdef_Set(machine_);
        restartMachine();
    });

    connect(&store_, &SettingsStore::answered, this, [this](const Answer& answer) { aids_.say(answer, &frmMDI_); });
    connect(&settings_, &SettingsWindows::applied, this, [this](const DialogValues& values) {
        applyDialog(machine_, values);
        restartMachine();
    });
}

void Program::refreshAll() {
    bench_.refresh();
    registers_.refresh();
    memory_.refreshAllAreas();
    aids_.watchTour();
}
