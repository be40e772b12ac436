// SPDX-License-Identifier: Apache-2.0
#include "boards/views/frmHard.h"

#include "boards/network.h"
#include "boards/views/BenchScene.h"
#include "boards/views/BenchView.h"
#include "boards/views/benchAccess.h"
#include "core/pwmOutput.h"
#include "platform/twips.h"

#include <QCloseEvent>
#include <QScrollBar>

#include <algorithm>

frmHard::frmHard(Machine& machine, QWidget* area)
    : QMdiSubWindow(area, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      machine_(machine),
      scene_(std::make_unique<BenchScene>(BenchGestures::reactionsOf)),
      view_(new BenchView(scene_.get(), this)),
      gestures_(machine) {
    setObjectName("frmHard");
    setWidget(view_);
    setWindowTitle("HardWare");
    setAttribute(Qt::WA_DeleteOnClose, false);
    makeBenchAccessible();
    view_->setParts(scene_->parts());
    combos_ = std::make_unique<BenchCombos>(machine_, *scene_, *view_);
    wire();
    rescale();
    refresh();
    setFormWidth();
}

frmHard::~frmHard() {
    view_->setScene(nullptr);  // the scene goes first
}

void frmHard::wire() {
    connect(scene_.get(), &BenchScene::touched, this, [this](BenchPart* part, Touch touch) {
        if (!retired_) {
            gestures_.play(part, touch);
        }
    });
    connect(&gestures_, &BenchGestures::played, this, &frmHard::changed);
    connect(&gestures_, &BenchGestures::comboWanted, combos_.get(), &BenchCombos::open);
    connect(&gestures_, &BenchGestures::comboDone, combos_.get(), &BenchCombos::close);
    connect(&gestures_, &BenchGestures::duplexQuestion, this, &frmHard::duplexQuestion);
    connect(&gestures_, &BenchGestures::chartWanted, this, &frmHard::chartWanted);
    connect(&gestures_, &BenchGestures::diagramWanted, this, &frmHard::diagramWanted);
    connect(&gestures_, &BenchGestures::diagramChanged, this, &frmHard::diagramChanged);
    connect(&gestures_, &BenchGestures::diagramGone, this, &frmHard::diagramGone);
    connect(&gestures_, &BenchGestures::serialWanted, this, &frmHard::serialWanted);
    connect(combos_.get(), &BenchCombos::committed, this, &frmHard::changed);
    connect(combos_.get(), &BenchCombos::diagramChanged, this, &frmHard::diagramChanged);
    connect(combos_.get(), &BenchCombos::busTypeChanged, this, &frmHard::busTypeChanged);
    connect(view_, &BenchView::zoomed, this, &frmHard::rescale);
    connect(view_, &BenchView::scrolled, combos_.get(), &BenchCombos::place);
    connect(this, &QMdiSubWindow::windowStateChanged, this, [this](Qt::WindowStates /*before*/, Qt::WindowStates now) {
        if (now & Qt::WindowActive) {
            scene_->drawPortLabels();
        }
    });
    connect(&timMotor_, &Timer::timeout, this, [this] {
        timMotor_Timer(machine_);
        refresh();
    });
}

BenchPart* frmHard::part(std::string_view name, std::size_t index) {
    return scene_->part(name, index);
}

BenchLabel* frmHard::label(std::string_view name, std::size_t index) {
    return scene_->label(name, index);
}

int frmHard::refresh() {
    const int differing = scene_->refresh(machine_);
    if (timMotor_.interval() != machine_.timMotorInterval) {
        timMotor_.setInterval(machine_.timMotorInterval);
    }
    if (width_ != formWidth(machine_)) {
        setFormWidth();
    }
    return differing;
}

void frmHard::changed(const Answer& answer) {
    refresh();
    emit refreshWanted();
    emit answered(answer);
}

void frmHard::setFormWidth() {
    width_ = formWidth(machine_);
    fit();
}

void frmHard::fit() {
    const QMargins frame = contentsMargins();
    const qreal zoom = view_->zoom();
    int width = qRound((twips(width_) - frame.left() - frame.right()) * zoom) + frame.left() + frame.right();
    const int height = qRound(benchSize.height() * zoom) + frame.top() + frame.bottom();
    const QWidget* area = parentWidget();
    const QSize room = area != nullptr ? area->size() : QSize(width, height);
    if (height > room.height()) {
        width += view_->verticalScrollBar()->sizeHint().width();  // the bar takes nothing away from the cards
    }
    view_->setHorizontalScrollBarPolicy(width > room.width() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    scene_->setSceneRect(0, 0, twips(width_) - frame.left() - frame.right(), benchSize.height());
    setFixedSize(std::min(width, room.width()), std::min(height, room.height()));
    combos_->place();
}

void frmHard::rescale() {
    scene_->rescale(devicePixelRatioF() * view_->zoom());
    fit();
}

void frmHard::reloadPictures() {
    scene_->reloadPictures();
}

void frmHard::retire() {
    retired_ = true;
    timMotor_.setEnabled(false);
    combos_->cancel();
}

void frmHard::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    if (combos_ != nullptr) {
        combos_->place();
    }
}

void frmHard::closeEvent(QCloseEvent* event) {
    event->ignore();  // the bench stays as long as the program runs
}

bool frmHard::event(QEvent* event) {
    if (event->type() == QEvent::ParentChange && parentWidget() != nullptr) {
        parentWidget()->installEventFilter(this);
    }
    return QMdiSubWindow::event(event);
}

bool frmHard::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        fit();
    }
    return QMdiSubWindow::eventFilter(watched, event);
}
