// SPDX-License-Identifier: Apache-2.0
#include "memwin/views/frmDump.h"

#include "platform/HouseStyle.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/twips.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int buttonTop = 3;
constexpr int buttonHeight = 16;
constexpr int readOutTop = 21;
constexpr int readOutHeight = 14;
constexpr int gridTop = 37;
constexpr int checkBoxWidth = 124;

}  // namespace

frmDump::frmDump(Machine& machine, Area area)
    : machine_(machine),
      view_(area),
      grid_(new DumpGrid(view_, this)),
      lblCPUType_(makeLabel(this, "lblCPUType", {}, look::hexFont(11), {104, buttonTop, 150, buttonHeight})),
      lblPointAddress_(makeLabel(this, "lblPointAddress", {}, look::hexFont(11), {0, readOutTop, 280, readOutHeight})),
      lblPointSA_(makeLabel(this, "lblPointSA", {}, look::hexFont(11), {280, readOutTop, 190, readOutHeight})),
      chkTopMost_(new QCheckBox("常に手前に表示", this)) {
    setObjectName(textOf(view_.area->name));
    setWindowTitle(textOf(view_.area->title));
    QFont bold = look::hexFont(11);
    bold.setBold(true);
    lblCPUType_->setFont(bold);

    const std::array<const char*, 2> captions{"Byte", "Word"};
    for (std::size_t number = 0; number < captions.size(); ++number) {
        cmbBit_[number] = new QPushButton(captions[number], this);
        cmbBit_[number]->setObjectName(QStringLiteral("cmbBit%1").arg(number));
        setButtonUse(*cmbBit_[number], ButtonUse::view);
        cmbBit_[number]->setFont(look::interfaceFont(11));
        cmbBit_[number]->setCheckable(true);
        cmbBit_[number]->setAutoExclusive(true);
        cmbBit_[number]->setGeometry(8 + 40 * static_cast<int>(number), buttonTop, 38, buttonHeight);
        connect(cmbBit_[number], &QPushButton::clicked, this, [this, number] { cmbBit_Click(static_cast<ByteView>(number)); });
    }
    chkTopMost_->setObjectName("chkTopMost");
    chkTopMost_->setFont(look::textFont(12));
    connect(chkTopMost_, &QCheckBox::clicked, this, [this](bool onTop) { emit topMostWanted(this->area(), onTop); });

    grid_->move(0, gridTop);
    connect(grid_, &DumpGrid::pointed, this, &frmDump::showPointing);
    connect(grid_, &DumpGrid::pointedNowhere, this, &frmDump::showResting);
    connect(grid_, &DumpGrid::doubleClicked, this, [this](int cell, DumpGrid::Side side) {
        emit cellDoubleClicked(this->area(), cell, side, grid_->mapToGlobal(grid_->cellRect(cell, side).topLeft()));
    });

    layoutCells(ByteView::word);
    showResting();
    connect(&timColor_, &Timer::timeout, this, [this] {
        timColor_Timer(view_);
        grid_->showTouched();
    });
    timColor_.setInterval(1000);
}

bool frmDump::topMost() const {
    return chkTopMost_->isChecked();
}

bool frmDump::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && isWindow()) {
        emit activated();
        // The smallest window is the one that gets lost behind the others.
        if (area() == Area::drc && topMost()) {
            raise();
        }
    }
    return QWidget::event(event);
}

void frmDump::refreshArea() {
    view_.visible = isVisible();
    ::refreshArea(machine_, view_);
    grid_->showTouched();
}

void frmDump::setAreaLayout() {
    view_.visible = isVisible();
    ::setAreaLayout(machine_, view_);
    if (view_.visible) {
        lblCPUType_->setText(textOf(cpuTypeNames[static_cast<std::size_t>(machine_.cpuType)]));
        layoutCells(view_.piMode);
    }
}

void frmDump::layoutCells(ByteView piMode) {
    cmbBit_[static_cast<std::size_t>(piMode)]->setChecked(true);
    grid_->setPiMode(piMode);
    const int width = twips(layoutOf(piMode).windowWidth);
    chkTopMost_->setGeometry(width - checkBoxWidth - 4, buttonTop - 1, checkBoxWidth, buttonHeight + 2);
    setFixedSize(width, gridTop + grid_->gridHeight());
    const char given = piMode == ByteView::byte ? 'B' : 'W';
    if (given != width_) {
        width_ = given;
        emit moveWanted(piMode == ByteView::byte ? -twips(byteToWordShift) : twips(byteToWordShift));
    }
}

void frmDump::cmbBit_Click(ByteView piMode) {
    view_.piMode = piMode;
    layoutCells(piMode);
    refreshArea();
}

void frmDump::markWord(int cell, bool evenRed, bool oddRed) {
    colourWord(view_, cell, evenRed, oddRed);
    view_.touched = {cell & ~1, cell | 1};
    grid_->showTouched();
}

void frmDump::showPointing(int cell) {
    lblPointAddress_->setText(QString::fromStdString(pointingAddress(machine_, view_, cell)));
    lblPointSA_->setText(QString::fromStdString(pointingSA(machine_, view_, cell)));
    grid_->setAccessibleDescription(lblPointAddress_->text() + lblPointSA_->text());
}

void frmDump::showResting() {
    lblPointAddress_->setText(textOf(restingAddress));
    lblPointSA_->setText(textOf(restingSA));
}
