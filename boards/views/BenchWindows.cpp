// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchWindows.h"

#include "boards/boardSet.h"
#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/serialInput.h"
#include "boards/views/frmEditSerial.h"
#include "boards/views/frmHard.h"
#include "boards/views/frmOsiro.h"
#include "platform/screen.h"
#include "platform/twips.h"

#include <QMdiArea>

namespace {

constexpr int diagrams = 6;

// The serial dialog, from the corner of the hardware window; that of the cascade card stands farther right.
constexpr QPoint serialPlace{twips(7500), twips(5900)};
constexpr QPoint serialPlaceOfCascade{twips(5100), 0};

}  // namespace

BenchWindows::BenchWindows(Machine& machine, QMdiArea& area, QWidget& owner)
    : machine_(machine),
      area_(area),
      owner_(owner),
      frmHard_(*this, [this] { return makeBench(); }),
      frmEditSerial_(*this, [this] { return makeSerialDialog(); }),
      frmOsiro_(*this, [this] { return new frmOsiro(&owner_); }) {}

BenchWindows::~BenchWindows() = default;

frmHard* BenchWindows::bench() const {
    return frmHard_.get();
}

frmEditSerial* BenchWindows::serialDialog() const {
    return frmEditSerial_.get();
}

frmOsiro* BenchWindows::timingChartWindow() const {
    return frmOsiro_.get();
}

frmHard* BenchWindows::makeBench() {
    setUpBench(machine_);
    auto* bench = new frmHard(machine_, &area_);
    area_.addSubWindow(bench, bench->windowFlags());
    bench->move(0, 0);
    connect(bench, &frmHard::refreshWanted, this, &BenchWindows::refreshWanted);
    connect(bench, &frmHard::answered, this, &BenchWindows::said);
    connect(bench, &frmHard::duplexQuestion, this, &BenchWindows::answerDuplex);
    connect(bench, &frmHard::diagramWanted, this, &BenchWindows::diagramWanted);
    connect(bench, &frmHard::diagramChanged, this, &BenchWindows::diagramChanged);
    connect(bench, &frmHard::diagramGone, this, &BenchWindows::diagramGone);
    connect(bench, &frmHard::serialWanted, this, &BenchWindows::enterSerialData);
    connect(bench, &frmHard::chartWanted, this, &BenchWindows::openTimingChart);
    connect(bench, &frmHard::busTypeChanged, this, &BenchWindows::busTypeChanged);
    return bench;
}

frmEditSerial* BenchWindows::makeSerialDialog() {
    auto* dialog = new frmEditSerial(&owner_);
    connect(dialog, &frmEditSerial::started, this, [this](int index) {
        beginShift(machine_, static_cast<std::size_t>(index));
        emit refreshWanted();
    });
    connect(dialog, &frmEditSerial::closed, this, [this](int index, const QString& sentText) {
        endShift(machine_, static_cast<std::size_t>(index), sentText.toStdString());
        emit refreshWanted();
    });
    return dialog;
}

void BenchWindows::load() {
    frmHard_->show();
}

void BenchWindows::unload() {
    frmEditSerial_.forget();
    frmOsiro_.forget();
    if (frmHard* bench = frmHard_.get()) {
        // It may be the gesture of one of its own parts that led here.
        bench->retire();
        area_.removeSubWindow(bench);
        frmHard_.forget();
    }
}

void BenchWindows::refresh() {
    if (frmHard* bench = frmHard_.get()) {
        bench->refresh();
    }
}

void BenchWindows::reloadPictures() {
    if (frmHard* bench = frmHard_.get()) {
        bench->reloadPictures();
    }
}

void BenchWindows::enterSerialData(int index) {
    if (const Answer refusal = picSDI_DblClick(machine_, static_cast<std::size_t>(index)); saysAnything(refusal)) {
        emit said(refusal);
        return;
    }
    emit messageInTheWay();
    frmEditSerial_->openFor(index, frmHard_->mapToGlobal(QPoint()) + serialPlace + serialPlaceOfCascade * index);
}

// The question comes first; the change, and the warning after it, follow the answer.
void BenchWindows::answerDuplex(const Answer& question) {
    const auto* warning = std::get_if<Warning>(&question);
    if (warning == nullptr) {
        emit said(question);
        return;
    }
    emit asked(*warning, [this](bool yes) {
        const Answer answer = picJumper_Answered(machine_, yes);
        emit refreshWanted();
        emit said(answer);
        // Every diagram shows the duplex.
        for (int diagram = 0; diagram < diagrams; ++diagram) {
            emit diagramChanged(diagram);
        }
    });
}

void BenchWindows::openTimingChart(int group, QPoint offset) {
    frmOsiro_->initPicture(timingChart(machine_, static_cast<std::size_t>(group)));
    placeWindow(frmOsiro_.made(), frmHard_->mapToGlobal(QPoint()) + offset);
    if (!frmOsiro_.visible()) {
        frmOsiro_->show();
        frmOsiro_->raise();
    }
}
