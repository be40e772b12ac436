// SPDX-License-Identifier: Apache-2.0
#include "aids/views/AidWindows.h"

#include "aids/hintPages.h"
#include "aids/views/frmDialog.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmKAIROZU.h"
#include "aids/views/frmMessage.h"
#include "aids/views/frmNaviList.h"
#include "aids/views/frmNavigation.h"
#include "aids/views/frmVersion.h"
#include "platform/labels.h"
#include "platform/paths.h"
#include "platform/textFile.h"
#include "platform/twips.h"

#include <QCursor>
#include <QMdiArea>

#include <utility>

namespace {

constexpr QPoint hintPlace{twips(8700), twips(6700)};
constexpr QPoint diagramPlace{twips(10000), twips(900)};
constexpr const char* naviFolder = "NaviData";

}  // namespace

AidWindows::AidWindows(Machine& machine, QMdiArea& area, QWidget& owner, std::filesystem::path folder, const SeenByLearner& seen)
    : machine_(machine),
      area_(area),
      owner_(owner),
      folder_(std::move(folder)),
      seen_(seen),
      frmMessage_(*this, [this] { return makeMessage(); }),
      frmDialog_(*this, [this] { return makeDialog(); }),
      frmVersion_(*this, [this] { return makeVersion(); }),
      frmHint_(
          *this, [this] { return makeHint(); }, [this](bool open) { emit hintShown(open); }),
      frmKAIROZU_(*this, [this] { return makeKAIROZU(); }),
      frmNaviList_(
          *this, [this] { return makeNaviList(); }, [this](bool open) { emit naviListShown(open); }),
      frmNavigation_(*this, [this] { return makeNavigation(); }) {}

AidWindows::~AidWindows() = default;

frmMessage* AidWindows::message() const {
    return frmMessage_.get();
}

frmDialog* AidWindows::dialog() const {
    return frmDialog_.get();
}

frmVersion* AidWindows::versionPanel() const {
    return frmVersion_.get();
}

frmHint* AidWindows::hints() const {
    return frmHint_.get();
}

frmKAIROZU* AidWindows::circuitDiagram() const {
    return frmKAIROZU_.get();
}

frmNaviList* AidWindows::naviList() const {
    return frmNaviList_.get();
}

frmNavigation* AidWindows::navigation() const {
    return frmNavigation_.get();
}

// --- what is said --------------------------------------------------------------------------------------------------------

frmMessage* AidWindows::makeMessage() {
    auto* message = new frmMessage(&owner_);
    connect(message, &frmMessage::appeared, this, &AidWindows::hear);
    return message;
}

frmDialog* AidWindows::makeDialog() {
    auto* dialog = new frmDialog(&owner_);
    connect(dialog, &frmDialog::appeared, this, &AidWindows::beepWanted);
    connect(dialog, &frmDialog::appeared, this, &AidWindows::hear);
    return dialog;
}

void AidWindows::say(const Answer& answer, const QWidget* form) {
    if (const auto* notice = std::get_if<Popup>(&answer)) {
        const QString text = QString::fromStdString(notice->text);
        form != nullptr ? popupAtForm(*form, text) : popupAtPointer(text);
    } else if (const auto* warning = std::get_if<Warning>(&answer)) {
        frmDialog_->warningDialog(*warning);
    }
}

void AidWindows::popupAtPointer(const QString& text) {
    popup(text, QCursor::pos());
}

void AidWindows::popupAtForm(const QWidget& form, const QString& text) {
    popup(text, form.frameGeometry().topLeft());
}

void AidWindows::popup(const QString& text, QPoint point) {
    emit beepWanted();
    frmMessage_->popup(text, point);
}

void AidWindows::ask(const Warning& question, std::function<void(bool yes)> answered) {
    frmDialog_->warningDialog(
        question, [answered = std::move(answered)](frmDialog::Result result) { answered(result == frmDialog::resultOk); });
}

// --- the start and version panel -------------------------------------------------------------------------------------------

frmVersion* AidWindows::makeVersion() {
    auto* panel = new frmVersion(machine_);
    connect(panel, &frmVersion::closed, this, [this] { frmVersion_.forget(); });
    return panel;
}

void AidWindows::openStartPanel() {
    frmVersion_->showProcess();
    frmVersion_->open();
}

void AidWindows::showProgress(const QString& text) {
    if (frmVersion_.get() != nullptr) {
        frmVersion_->showProgress(text);
        frmVersion_->raise();
    }
}

void AidWindows::openVersion() {
    frmVersion_->open();
}

// --- the hint book ---------------------------------------------------------------------------------------------------------

frmHint* AidWindows::makeHint() {
    auto* book = new frmHint(folder_, area_);
    book->placeAt(hintPlace);
    return book;
}

void AidWindows::openHint() {
    frmHint_->bringUp();
}

void AidWindows::openHintBySettings() {
    if (machine_.openWindowDefault[2] != 0) {
        openHint();
    }
}

void AidWindows::placeHint() {
    if (frmHint* book = frmHint_.get()) {
        book->placeAt(hintPlace);
    }
}

void AidWindows::showHintFor(const QString& name) {
    if (frmHint_.visible()) {
        frmHint_->showHintFor(name);
    }
}

void AidWindows::turnToControlWord() {
    if (frmHint_.visible()) {
        frmHint_->turnTo(controlWordPage);
    }
}

// --- circuit diagrams --------------------------------------------------------------------------------------------------------

frmKAIROZU* AidWindows::makeKAIROZU() {
    auto* window = new frmKAIROZU(machine_, folder_, area_);
    connect(window, &AreaWindow::activated, this, &AidWindows::activated);
    return window;
}

void AidWindows::setKAIROZU(int index) {
    frmKAIROZU_->setKAIROZU(index, diagramPlace);
}

void AidWindows::changeKAIROZU(int index) {
    if (frmKAIROZU_.visible()) {
        frmKAIROZU_->changeKAIROZU(index, diagramPlace);
    }
}

void AidWindows::reloadPictures() {
    if (frmHint* book = frmHint_.get()) {
        book->reload();
    }
    if (frmKAIROZU_.visible()) {
        frmKAIROZU_->changeKAIROZU(frmKAIROZU_->index(), diagramPlace);
    }
}

// --- tours -------------------------------------------------------------------------------------------------------------------

void AidWindows::loadNaviIndex() {
    const std::filesystem::path naviPath = folder_ / naviFolder;
    const std::string text = readTextFile(fileInFolder(naviPath, "NaviIndex.txt")).value_or(std::string());
    naviIndex_ = readNaviIndex(
        text, [&naviPath](const std::string& fileName) { return !fileInFolder(naviPath, textOf(fileName)).empty(); });
}

frmNaviList* AidWindows::makeNaviList() {
    auto* list = new frmNaviList(naviIndex_, &owner_);
    connect(list, &frmNaviList::startWanted, this, &AidWindows::startNavigation);
    for (const std::string& fileName : finishedTours_) {
        list->markFinished(fileName);
    }
    return list;
}

frmNavigation* AidWindows::makeNavigation() {
    auto* window = new frmNavigation(folder_ / naviFolder, machine_, seen_, &owner_);
    connect(window, &frmNavigation::menuWanted, this, &AidWindows::openNaviList);
    connect(window, &frmNavigation::ended, this, [this] { frmNavigation_.forget(); });
    connect(window, &frmNavigation::finished, this, [this](const std::string& fileName) {
        finishedTours_.insert(fileName);
        if (frmNaviList* list = frmNaviList_.get()) {
            list->markFinished(fileName);
        }
    });
    return window;
}

void AidWindows::openNaviList() {
    frmNaviList_->openList();
}

void AidWindows::openTour(std::size_t number) {
    if (number > 0 && number < naviIndex_.size() && naviIndex_[number].fileFound) {
        startNavigation(number);
    } else {
        openNaviList();
    }
}

void AidWindows::startNavigation(std::size_t number) {
    if (!naviIndex_[number].fileFound) {
        frmNaviList_->tellMissing();
        return;
    }
    frmNaviList_.hide();
    emit makersBenchWanted();  // what the tour tells the learner to do fits that bench
    frmNavigation_->setNavigation(naviIndex_[number].fileName);
    frmNavigation_->show();
    frmNavigation_->activateWindow();  // Return turns the page
}

void AidWindows::watchTour() {
    if (frmNavigation_.visible()) {
        frmNavigation_->watch();
    }
}

void AidWindows::hear(const QString& text) {
    if (frmNavigation_.visible()) {
        frmNavigation_->hear(text);
    }
}

void AidWindows::beginRestart() {
    if (frmDialog* dialog = frmDialog_.get()) {
        dialog->dismiss();
    }
    frmMessage_.hide();
    frmHint_.hide();
    frmKAIROZU_.hide();
}
