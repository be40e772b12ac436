#include "core/views/Program.h"

#include "access/views/frmEditRegister.h"
#include "access/views/frmRegister.h"
#include "aids/views/frmDialog.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmKAIROZU.h"
#include "aids/views/frmMessage.h"
#include "aids/views/frmNaviList.h"
#include "aids/views/frmNavigation.h"
#include "aids/views/frmOsiro.h"
#include "aids/views/frmVersion.h"
#include "boards/boardSet.h"
#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/serialInput.h"
#include "boards/views/frmEditSerial.h"
#include "boards/views/frmHard.h"
#include "config/restart.h"
#include "config/views/frmDefault.h"
#include "core/views/frmMDI.h"
#include "memwin/views/MemoryWindows.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/paths.h"
#include "platform/screen.h"
#include "platform/textFile.h"
#include "platform/twips.h"

#include <QApplication>
#include <QCursor>
#include <QDateTime>
#include <QMdiArea>
#include <QMessageBox>

namespace {

constexpr QPoint registerPlace{twips(6600), twips(1100)};
constexpr QPoint hintPlace{twips(8700), twips(6700)};
constexpr QPoint diagramPlace{twips(10000), twips(900)};
constexpr int chooserBesideLabel = twips(900);
constexpr std::uint8_t firstScanLastAddress = 4;

constexpr int diagrams = 6;
constexpr const char* naviFolder = "NaviData";

// The serial dialog, from the corner of the hardware window; that of the cascade card stands farther right.
constexpr QPoint serialPlace{twips(7500), twips(5900)};
constexpr QPoint serialPlaceOfCascade{twips(5100), 0};

// Where the write dialog stands beside the register window, and when it moves up.
constexpr int dialogBelow = twips(700);
constexpr int dialogRight = twips(500);
constexpr int dialogFoot = twips(2700);
constexpr int dialogAbove = twips(300);

// The main window is made for a screen of 1280 x 1024 and takes a smaller one whole.
constexpr QSize mainSize{1280, 994};

std::uint64_t dateNumber() {
    return QDateTime::currentDateTime().toString("yyyyMMddhhmmss").toULongLong();
}

}  // namespace

Program::Program(const std::filesystem::path& folder, const std::filesystem::path& userFolder)
    : folder_(folder), settingsStore_(SettingsPlace(folder, userFolder.empty() ? folder : userFolder)) {}

Program::~Program() = default;

// --- start ---------------------------------------------------------------------------------------------------------------

void Program::Main() {
    followScreens(*this);
    addStartSteps();
    runNextStep();
}

void Program::runNextStep() {
    if (steps_.empty()) {
        emit started();
        return;
    }
    const std::function<void()> step = std::move(steps_.front());
    steps_.pop_front();
    step();
    QMetaObject::invokeMethod(this, &Program::runNextStep, Qt::QueuedConnection);
}

void Program::addStartSteps() {
    steps_.emplace_back([this] {
        const SettingsStore::Reading file = settingsStore_.read();
        readSettings(machine_, file.profile);
        if (file.warning) {
            // Behind the last step, when there is a window to say it.
            steps_.emplace_back([this, warning = *file.warning] { frmDialog_->warningDialog(warning); });
        }
        connect(&settingsStore_, &SettingsStore::answered, this, [this](const Answer& answer) { say(*frmMDI_, answer); });
        openSound();
        frmVersion_ = std::make_unique<frmVersion>(machine_);
        connect(frmVersion_.get(), &frmVersion::closed, this, [this] { frmVersion_.release()->deleteLater(); });
        frmVersion_->showProcess();
        frmVersion_->open();
    });
    loadWindows();
    steps_.emplace_back([this] {
        machine_.startupDone = true;
        resetRegisters(machine_);
        refreshAll();
        // The first tick after this starts a continuous scan.
        machine_.chipMemory[reg::scrLow] = firstScanLastAddress;
        if (!look::japaneseFontFound()) {
            // In the letters that this desktop does have.
            frmDialog_->warningDialog(
                {"No Japanese font was found: most texts of this\nprogram will appear as empty boxes.\n\n"
                 "Please install one, for example\nIPA Gothic or Noto Sans CJK JP.",
                 "   Font"});
        }
    });
}

void Program::loadWindows() {
    const auto step = [this](const char* message, std::function<void()> load) {
        steps_.emplace_back([this, message, load = std::move(load)] {
            frmVersion_->showProgress(message);
            load();
        });
    };
    step("メインウィンドウロード中です。", [this] { loadMain(); });
    step("ハードウェアウィンドウロード中です。", [this] { loadHard(); });
    step("レジスタウィンドウロード中です。", [this] { loadRegister(); });
    for (const Area area : {Area::controlDoDi, Area::c1ToC7, Area::drc}) {
        step("メモリウィンドウロード中です。", [this, area] { memoryWindows_->load(area); });
    }
    step("メモリ処理中です。", [this] {
        fillMemory();
        openMemoryWindows();
    });
    step("レジスタヒントウィンドウロード中です。", [this] {
        loadHint();
        showHint();
    });
    step("ナビゲーションウィンドウ設定中です。", [this] { loadNaviIndex(); });
}

void Program::loadMain() {
    frmMDI_ = std::make_unique<frmMDI>(machine_);
    connect(frmMDI_.get(), &frmMDI::toolActivated, this, &Program::activateTool);
    connect(frmMDI_.get(), &frmMDI::refreshWanted, this, &Program::refreshAll);
    connect(frmMDI_.get(), &frmMDI::beepWanted, this, &Program::playBeep);
    connect(frmMDI_.get(), &frmMDI::quitConfirmed, this, &Program::quitProgram);

    connect(frmMDI_.get(), &frmMDI::runModeClicked, this, [this] { memoryWindows_->hideChooser(); });
    loadDialogs();
    loadMemoryWindows();

    const QRect screen = usableScreen(QPoint());
    const bool fits = screen.width() > mainSize.width() && screen.height() > mainSize.height();
    frmMDI_->resize(fits ? mainSize : screen.size());
    frmMDI_->move(screen.topLeft());
    if (fits) {
        frmMDI_->show();
    } else {
        frmMDI_->showMaximized();
    }
    frmVersion_->raise();
}

void Program::loadDialogs() {
    frmMessage_ = std::make_unique<frmMessage>(frmMDI_.get());
    frmDialog_ = std::make_unique<frmDialog>(frmMDI_.get());
    connect(frmDialog_.get(), &frmDialog::appeared, this, &Program::playBeep);
    frmEditRegister_ = std::make_unique<frmEditRegister>(machine_, frmMDI_.get());
    frmEditSerial_ = std::make_unique<frmEditSerial>(frmMDI_.get());
    connect(frmEditSerial_.get(), &frmEditSerial::started, this, [this](int index) {
        beginShift(machine_, static_cast<std::size_t>(index));
        refreshAll();
    });
    connect(frmEditSerial_.get(), &frmEditSerial::closed, this, [this](int index, const QString& sentText) {
        endShift(machine_, static_cast<std::size_t>(index), sentText.toStdString());
        refreshAll();
    });
    connect(frmEditRegister_.get(), &frmEditRegister::written, this, &Program::refreshAll);
    connect(frmEditRegister_.get(), &frmEditRegister::answered, this,
            [this](const Answer& answer) { say(*frmEditRegister_, answer); });
    connect(frmEditRegister_.get(), &frmEditRegister::readProtectionChanged, this,
            [this] { memoryWindows_->readProtectionChanged(); });
    connect(frmEditRegister_.get(), &frmEditRegister::rowMarked, this, [this](int row, bool high, bool low) {
        if (frmRegister_ != nullptr) {
            frmRegister_->markRow(row, high, low);
        }
    });
}

void Program::loadMemoryWindows() {
    memoryWindows_ = std::make_unique<MemoryWindows>(machine_, frmMDI_->area(), *frmMDI_);
    MemoryWindows* windows = memoryWindows_.get();
    connect(windows, &MemoryWindows::controlWordPointed, this, [this] {
        if (frmHint_ != nullptr && frmHint_->isVisible()) {
            frmHint_->turnTo(controlWordPage);
        }
    });
    connect(windows, &MemoryWindows::popupWanted, this, &Program::popupAtPointer);
    connect(windows, &MemoryWindows::answered, this, &Program::say);
    connect(windows, &MemoryWindows::beepWanted, this, &Program::playBeep);
    connect(windows, &MemoryWindows::messageInTheWay, frmMessage_.get(), &QWidget::hide);
    connect(windows, &MemoryWindows::refreshWanted, this, &Program::refreshAll);
    connect(windows, &MemoryWindows::allCloseWanted, this, [this] {
        // The register window goes with them, but stays loaded: its marks live on.
        if (frmRegister_ != nullptr) {
            frmRegister_->hide();
            frmMDI_->label(Tool::registerWindow).setWindowOpen(false);
        }
    });
}

void Program::loadHard() {
    setUpBench(machine_);
    frmHard_ = new frmHard(machine_, &frmMDI_->area());
    frmMDI_->area().addSubWindow(frmHard_, frmHard_->windowFlags());
    memoryWindows_->setReadOrigin(frmHard_);
    frmHard_->move(0, 0);
    connect(frmHard_, &frmHard::refreshWanted, this, &Program::refreshAll);
    connect(frmHard_, &frmHard::answered, this, [this](const Answer& answer) {
        if (const auto* notice = std::get_if<Popup>(&answer)) {
            popupAtPointer(QString::fromStdString(notice->text));
        } else {
            say(*frmHard_, answer);
        }
    });
    connect(frmHard_, &frmHard::duplexQuestion, this, &Program::answerDuplex);
    connect(frmHard_, &frmHard::diagramWanted, this, &Program::setKAIROZU);
    connect(frmHard_, &frmHard::diagramChanged, this, [this](int index) {
        if (frmKAIROZU_ != nullptr) {
            frmKAIROZU_->changeKAIROZU(index, fromMain(diagramPlace));
        }
    });
    connect(frmHard_, &frmHard::diagramGone, this, [this] {
        if (frmKAIROZU_ != nullptr) {
            frmKAIROZU_->hide();
        }
    });
    connect(frmHard_, &frmHard::serialWanted, this, &Program::enterSerialData);
    connect(frmHard_, &frmHard::chartWanted, this, &Program::openTimingChart);
    connect(frmHard_, &frmHard::busTypeChanged, memoryWindows_.get(), &MemoryWindows::busTypeChanged);
    frmHard_->show();
}

void Program::enterSerialData(int index) {
    const Answer refusal = picSDI_DblClick(machine_, static_cast<std::size_t>(index));
    if (const auto* refused = std::get_if<Popup>(&refusal)) {
        popupAtPointer(QString::fromStdString(refused->text));
        return;
    }
    frmMessage_->hide();
    frmEditSerial_->openFor(index, frmHard_->mapToGlobal(QPoint()) + serialPlace + serialPlaceOfCascade * index);
}

void Program::unloadHard() {
    // It may be the gesture of one of its own parts that led here.
    if (frmHard_ != nullptr) {
        frmHard_->retire();
        frmHard_->disconnect(this);
        frmHard_->hide();
        frmMDI_->area().removeSubWindow(frmHard_);
        frmHard_->setParent(nullptr);
        frmHard_->deleteLater();
        frmHard_ = nullptr;
    }
}

// The question comes first; the change, and the warning after it, follow the answer.
void Program::answerDuplex(const Answer& question) {
    const auto* asked = std::get_if<Warning>(&question);
    if (asked == nullptr) {
        emit frmHard_->answered(question);
        return;
    }
    frmDialog_->warningDialog(*asked, [this](frmDialog::Result result) {
        const Answer answer = picJumper_Answered(machine_, result == frmDialog::resultOk);
        frmHard_->changed(answer);
        // Every diagram shows the duplex.
        for (int diagram = 0; diagram < diagrams; ++diagram) {
            emit frmHard_->diagramChanged(diagram);
        }
    });
}

void Program::openTimingChart(int group, QPoint offset) {
    if (frmOsiro_ == nullptr) {
        frmOsiro_ = std::make_unique<frmOsiro>(frmMDI_.get());
    }
    frmOsiro_->initPicture(timingChart(machine_, static_cast<std::size_t>(group)));
    placeWindow(*frmOsiro_, frmHard_->mapToGlobal(QPoint()) + offset);
    if (!frmOsiro_->isVisible()) {
        frmOsiro_->show();
        frmOsiro_->raise();
    }
}

void Program::loadRegister() {
    if (machine_.openWindowDefault[1] != 0) {
        openRegisterWindow();
    }
}

void Program::fillMemory() {
    if (machine_.memoryClearDefault != 0) {
        clearMemory(machine_);
        memoryWindows_->repaintAllAreas();
    } else {
        randomizeMemory(machine_, dateNumber());
    }
    positionWindows();
}

void Program::openMemoryWindows() {
    // The window of the control words comes last and stands in front.
    for (const Area area : {Area::c1ToC7, Area::drc, Area::controlDoDi}) {
        constexpr std::array<std::size_t, 3> settingOf{3, 4, 5};
        if (machine_.openWindowDefault[settingOf[static_cast<std::size_t>(area)]] != 0) {
            memoryWindows_->openArea(area);
        }
    }
}

void Program::positionWindows() {
    if (frmRegister_ != nullptr) {
        placeWindow(*frmRegister_, fromMain(registerPlace));
    }
    if (frmHint_ != nullptr) {
        placeWindow(*frmHint_, fromMain(hintPlace));
    }
}

QPoint Program::fromMain(QPoint place) const {
    return frmMDI_->frameGeometry().topLeft() + place;
}

void Program::openSound() {
    machine_.soundAvailable = sound_.open(textOfPath(folder_ / "BEEP.WAV"));
}

// --- restart ---------------------------------------------------------------------------------------------------------------

void Program::restartMachine() {
    beginRestart(machine_);
    // What is open belongs to the machine that goes.
    frmDialog_->dismiss();
    frmEditRegister_->hide();
    frmEditSerial_->reject();
    frmMessage_->hide();
    unloadHard();
    if (frmRegister_ != nullptr) {
        unloadRegisterWindow();
    }
    memoryWindows_->unload();
    frmHint_->hide();
    frmMDI_->label(Tool::registerHint).setWindowOpen(false);
    if (frmDefault_ != nullptr) {
        frmDefault_->hide();
    }
    if (frmKAIROZU_ != nullptr) {
        frmKAIROZU_->hide();
    }
    resetMachine(machine_, dateNumber());
    loadHard();
    positionWindows();
    loadRegister();
    for (const Area area : {Area::controlDoDi, Area::c1ToC7, Area::drc}) {
        memoryWindows_->load(area);
    }
    openMemoryWindows();
    showHint();
    openSound();
    frmMDI_->lblRunMode_Click(modeRun);
    endRestart(machine_);
    refreshAll();
}

// --- end -----------------------------------------------------------------------------------------------------------------

void Program::quitWhenKept(bool kept) {
    if (kept) {
        quitProgram();
    }
}

void Program::quitProgram() {
    if (settingsStore_.saving()) {
        // What the learner has saved comes first. If it can't be kept he reads why, and the program stays.
        connect(&settingsStore_, &SettingsStore::settled, this, &Program::quitWhenKept,
                static_cast<Qt::ConnectionType>(Qt::UniqueConnection | Qt::SingleShotConnection));
        return;
    }
    settingsStore_.disconnect(this);
    steps_.clear();
    frmDefault_.reset();
    frmHint_.reset();
    frmKAIROZU_.reset();
    frmNaviList_.reset();
    frmNavigation_.reset();
    unloadHard();
    frmOsiro_.reset();
    memoryWindows_.reset();
    frmDialog_.reset();
    frmMessage_.reset();
    frmEditRegister_.reset();
    frmEditSerial_.reset();
    frmRegister_.reset();
    frmVersion_.reset();
    frmMDI_->hide();
    frmMDI_.release()->deleteLater();  // its own question is still on the way back from the answer
    emit finished();
}

// --- the tool strip --------------------------------------------------------------------------------------------------------

void Program::activateTool(Tool tool) {
    switch (tool) {
        case Tool::registerWindow: showRegisterWindow(); break;
        case Tool::version: openVersion(); break;
        case Tool::memoryWindow:
            memoryWindows_->toggleChooser(frmMDI_->label(tool).mapTo(frmMDI_.get(), QPoint()).x() - chooserBesideLabel);
            break;
        case Tool::defaultSet: openSettings(); break;
        case Tool::registerHint: openHint(); break;
        case Tool::navigator: lblNagigator_DblClick(); break;
    }
}

void Program::showRegisterWindow() {
    if (frmRegister_ != nullptr && frmRegister_->isVisible()) {
        QApplication::beep();
        frmRegister_->activateWindow();
        return;
    }
    memoryWindows_->hideChooser();
    openRegisterWindow();
}

void Program::openRegisterWindow() {
    if (frmRegister_ == nullptr) {
        frmRegister_ = std::make_unique<frmRegister>(machine_, frmMDI_.get());
        connect(frmRegister_.get(), &frmRegister::closed, this, &Program::unloadRegisterWindow);
        connect(frmRegister_.get(), &frmRegister::registerWriteWanted, this, &Program::openRegisterWrite);
        positionWindows();
    }
    frmRegister_->show();
    frmRegister_->refreshRegisters();
    frmMDI_->label(Tool::registerWindow).setWindowOpen(true);
}

void Program::unloadRegisterWindow() {
    frmRegister_.release()->deleteLater();
    frmMDI_->label(Tool::registerWindow).setWindowOpen(false);
}

void Program::openSettings() {
    if (frmDefault_ != nullptr && frmDefault_->isVisible()) {
        QApplication::beep();
        return;
    }
    memoryWindows_->hideChooser();
    if (frmDefault_ == nullptr) {
        frmDefault_ = std::make_unique<frmDefault>(settingsStore_, frmMDI_.get());
        connect(frmDefault_.get(), &frmDefault::applied, this, [this](const DialogValues& values) {
            applyDialog(machine_, values);
            restartMachine();
        });
        connect(frmDefault_.get(), &frmDefault::hidden, this, [this] { frmMDI_->label(Tool::defaultSet).setWindowOpen(false); });
        connect(frmDefault_.get(), &frmDefault::unloaded, this, [this] { frmDefault_.release()->deleteLater(); });
    }
    frmDefault_->openAt(fromMain(frmDefault::placeInMain));
    frmMDI_->label(Tool::defaultSet).setWindowOpen(true);
}

void Program::loadHint() {
    frmHint_ = std::make_unique<frmHint>(folder_, frmMDI_.get());
    connect(frmHint_.get(), &frmHint::closed, this, [this] { frmMDI_->label(Tool::registerHint).setWindowOpen(false); });
    placeWindow(*frmHint_, fromMain(hintPlace));
}

// At start and after a restart. A book without pages has nothing to say there.
void Program::showHint() {
    if (machine_.openWindowDefault[2] != 0 && frmHint_->hasPages()) {
        frmHint_->show();
        frmMDI_->label(Tool::registerHint).setWindowOpen(true);
    }
}

void Program::openHint() {
    memoryWindows_->hideChooser();
    if (frmHint_->isVisible()) {
        QApplication::beep();
        frmHint_->activateWindow();
        return;
    }
    frmHint_->show();
    frmMDI_->label(Tool::registerHint).setWindowOpen(true);
}

void Program::setKAIROZU(int index) {
    if (frmKAIROZU_ == nullptr) {
        frmKAIROZU_ = std::make_unique<frmKAIROZU>(machine_, folder_, frmMDI_.get());
        connect(frmKAIROZU_.get(), &frmKAIROZU::activated, this, [this] { memoryWindows_->hideChooser(); });
    }
    frmKAIROZU_->setKAIROZU(index, fromMain(diagramPlace));
}

// --- tours -----------------------------------------------------------------------------------------------------------------

void Program::loadNaviIndex() {
    const std::filesystem::path naviPath = folder_ / naviFolder;
    const std::string text = readTextFile(fileInFolder(naviPath, "NaviIndex.txt")).value_or(std::string());
    FolderFiles tours(naviPath);
    naviIndex_ = readNaviIndex(text, [&tours](const std::string& fileName) { return !tours.find(textOf(fileName)).empty(); });
}

void Program::lblNagigator_DblClick() {
    if (frmVersion_ != nullptr && frmVersion_->isVisible()) {
        return;
    }
    memoryWindows_->hideChooser();
    if (frmNaviList_ != nullptr && frmNaviList_->isVisible()) {
        QApplication::beep();
    }
    openNaviList();
}

void Program::openNaviList() {
    if (frmNaviList_ == nullptr) {
        frmNaviList_ = std::make_unique<frmNaviList>(naviIndex_, frmMDI_.get());
        connect(frmNaviList_.get(), &frmNaviList::startWanted, this, &Program::startNavigation);
        connect(frmNaviList_.get(), &frmNaviList::hidden, this, [this] { frmMDI_->label(Tool::navigator).setWindowOpen(false); });
    }
    frmMDI_->label(Tool::navigator).setWindowOpen(true);
    frmNaviList_->openList();
}

void Program::startNavigation(std::size_t number) {
    if (!naviIndex_[number].fileFound) {
        auto* notice =
            new QMessageBox(QMessageBox::Information, "確認", "ファイルが見つかりません。", QMessageBox::Ok, frmNaviList_.get());
        notice->setObjectName("naviNotice");
        notice->setAttribute(Qt::WA_DeleteOnClose);
        notice->open();
        return;
    }
    frmNaviList_->hide();
    // What the tour tells the learner to do fits the maker's bench.
    Mdef_Set(machine_);
    restartMachine();
    if (frmNavigation_ == nullptr) {
        loadNavigation();
    }
    frmNavigation_->setNavigation(naviIndex_[number].fileName);
    frmNavigation_->show();
}

void Program::loadNavigation() {
    frmNavigation_ = std::make_unique<frmNavigation>(folder_ / naviFolder, frmMDI_.get());
    connect(frmNavigation_.get(), &frmNavigation::menuWanted, this, &Program::openNaviList);
    connect(frmNavigation_.get(), &frmNavigation::ended, this, [this] {
        frmNavigation_->hide();
        frmNavigation_.release()->deleteLater();
    });
}

void Program::openVersion() {
    memoryWindows_->hideChooser();
    if (frmVersion_ == nullptr) {
        frmVersion_ = std::make_unique<frmVersion>(machine_);
        connect(frmVersion_.get(), &frmVersion::closed, this, [this] { frmVersion_.release()->deleteLater(); });
    }
    frmVersion_->open();
}

// --- what the windows ask for ------------------------------------------------------------------------------------------------

void Program::refreshAll() {
    if (frmHard_ != nullptr) {
        frmHard_->refresh();
    }
    if (frmRegister_ != nullptr) {
        frmRegister_->refreshRegisters();
    }
    if (memoryWindows_ != nullptr) {
        memoryWindows_->refreshAllAreas();
    }
}

void Program::openRegisterWrite(const QString& name, int row, int top, Half half) {
    const Answer refusal = registerWriteRefusal(machine_, row);
    if (const auto* refused = std::get_if<Popup>(&refusal)) {
        popupAtPointer(QString::fromStdString(refused->text));
        return;
    }
    const int left = frmRegister_->frameGeometry().left() + dialogRight;
    const QRect screen = usableScreen(QPoint(left, top));
    int dialogTop = top + dialogBelow;
    if (dialogTop > screen.bottom() + 1 - dialogFoot) {
        dialogTop -= sizeWithFrame(*frmEditRegister_).height() + dialogAbove;
    }
    frmMessage_->hide();
    frmHint_->showHintFor(name);
    frmEditRegister_->openFor(name, row, half, keptOnScreen({{left, dialogTop}, sizeWithFrame(*frmEditRegister_)}).topLeft());
}

void Program::say(const QWidget& form, const Answer& answer) {
    if (const auto* notice = std::get_if<Popup>(&answer)) {
        popupAtForm(form, QString::fromStdString(notice->text));
    } else if (const auto* warning = std::get_if<Warning>(&answer)) {
        frmDialog_->warningDialog(*warning);
    }
}

void Program::popupAtPointer(const QString& text) {
    popup(text, QCursor::pos());
}

void Program::popupAtForm(const QWidget& form, const QString& text) {
    popup(text, form.frameGeometry().topLeft());
}

void Program::popup(const QString& text, QPoint point) {
    playBeep();
    frmMessage_->popup(text, point);
}

void Program::playBeep() {
    sound_.playBeep();
}
