// SPDX-License-Identifier: Apache-2.0
#include "program/frmMDI.h"

#include "platform/HouseStyle.h"
#include "platform/ImageList.h"
#include "platform/labels.h"
#include "platform/browser.h"
#include "platform/look.h"
#include "program/DeskArea.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QDateTime>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QVBoxLayout>

namespace {

struct ToolRow {
    const char* name;
    const char* caption;
    ToolLabel::Gesture gesture;
    const char* tip;
};

// By Tool.
constexpr std::array<ToolRow, toolCount> toolRows{{
    {"lblRegisterWindow", "Register Window", ToolLabel::Gesture::click, "クリックでレジスタの窓を開きます。"},
    {"lblMemoryWindow", "Memory Window", ToolLabel::Gesture::click, "クリックでメモリの窓を選びます。"},
    {"lblRegisterHint", "Register Hint", ToolLabel::Gesture::click, "クリックでレジスタの説明を開きます。"},
    {"lblNagigator", "Navigator", ToolLabel::Gesture::doubleClick,
     "ダブルクリックで、はじめての方のための案内の一覧を開きます。"},
    {"lblDefault", "Simurator Default Set", ToolLabel::Gesture::click, "クリックで設定の窓を開きます。"},
    {"lblVersion", "Version", ToolLabel::Gesture::click, "クリックでこのプログラムの説明を開きます。"},
}};

// By run mode.
constexpr std::array<const char*, runModes.size()> modeTips{"時間を動かします。1秒に3350局を訪ねます。", "時間を止めます。",
                                                            "ゆっくり動かします。0.3秒に1局を訪ねます。",
                                                            "クリックするたびに1局だけ訪ねます。"};

// The strip with its line at the foot; the modes stand on a grid of 51 pixels, above the track of the tick bar.
constexpr int stripHeight = 45;
constexpr int modePitch = 51;
constexpr int tickBarHeight = 4;
constexpr int strokeGap = 14;

// The ground of the tool strip, with a line at its foot.
class StripGround : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor::fromRgb(look::toolStrip));
        painter.fillRect(0, height() - 1, width(), 1, QColor::fromRgb(look::hairline));
    }
};

QFrame* makeDivider(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFixedSize(1, 28);
    look::setGround(*line, look::hairline);
    return line;
}

}  // namespace

// The track of the tick bar. It paints the ground of the strip as well: the bar moves with every firing, and nothing else is to
// be painted for it.
class TickTrack : public QWidget {
public:
    explicit TickTrack(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

    void showBar(const TickBar& bar) {
        bar_ = bar;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor::fromRgb(look::toolStrip));
        fillRounded(painter, rect(), QColor(0xc9, 0xd4, 0xce));
        fillRounded(painter, {bar_.left, 0, bar_.width, tickBarHeight}, QColor::fromRgb(look::brandGreen));
    }

private:
    // A corner of one pixel: all that a bar of four pixels has to round.
    static void fillRounded(QPainter& painter, QRect bar, QColor colour) {
        painter.fillRect(bar.adjusted(1, 0, -1, 0), colour);
        painter.fillRect(bar.adjusted(0, 1, 0, -1), colour);
    }

    TickBar bar_;
};

frmMDI::frmMDI(Machine& machine) : machine_(machine) {
    setObjectName("frmMDI");
    setWindowTitle("VRB-TS");
    if constexpr (inBrowser) {
        setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    }

    area_ = new DeskArea(this);

    auto* face = new QWidget(this);
    auto* column = new QVBoxLayout(face);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeToolBox());
    column->addWidget(area_, 1);
    setCentralWidget(face);
    area_->setFocus();  // the labels of the strip wait for their key

    connect(&timTick_, &Timer::timeout, this, &frmMDI::timTick_Timer);
    timTick_.setEnabled(false);  // until the window is loaded
    timTick_.setInterval(runModes[modeRun].interval);
    lblRunMode(modeRun).setChecked(true);
    showTickBar();
}

ToolLabel* frmMDI::makeLabel(Tool tool) {
    const ToolRow& row = toolRows[static_cast<std::size_t>(tool)];
    auto* label = new ToolLabel(row.caption, row.gesture, this);
    label->setObjectName(row.name);
    label->setToolTip(QStringLiteral("%1\nキー: F6 のあと Tab で選び、Return").arg(row.tip));
    connect(label, &ToolLabel::activated, this, [this, tool] { emit toolActivated(tool); });
    labels_[static_cast<std::size_t>(tool)] = label;
    return label;
}

QWidget* frmMDI::makeToolBox() {
    auto* strip = new StripGround(this);
    strip->setObjectName("ToolBox");
    strip->setFixedHeight(stripHeight);
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(6);
    row->addWidget(makeLabel(Tool::registerWindow));
    row->addWidget(makeLabel(Tool::memoryWindow));
    row->addWidget(makeLabel(Tool::registerHint));
    row->addSpacing(strokeGap - 6);
    row->addWidget(makeDivider(strip));
    row->addSpacing(strokeGap - 6);
    row->addWidget(makeRunModes());
    row->addSpacing(strokeGap - 6);
    row->addWidget(makeDivider(strip));
    row->addSpacing(strokeGap - 6);
    row->addWidget(makeLabel(Tool::defaultSet));
    row->addWidget(makeLabel(Tool::version));
    row->addStretch(1);
    row->addWidget(makeLabel(Tool::navigator));
    setButtonUse(label(Tool::navigator), ButtonUse::tintedTool);
    return strip;
}

QWidget* frmMDI::makeRunModes() {
    auto* box = new QWidget(this);
    box->setFixedSize(static_cast<int>(runModes.size()) * modePitch, stripHeight - 1);
    auto* heading = new QLabel("Simurator Mode", box);
    heading->setObjectName("lblSimulationTick");
    heading->setFont(look::interfaceFont(11));
    heading->setGeometry(0, 1, box->width(), 15);

    auto* modes = new QButtonGroup(this);
    for (std::size_t index = 0; index < runModes.size(); ++index) {
        const auto caption = runModes[index].caption;
        auto* label = new ToolLabel(textOf(caption), ToolLabel::Gesture::everyClick, box);
        label->setObjectName(QStringLiteral("lblRunMode%1").arg(index));
        setButtonUse(*label, ButtonUse::runMode);
        label->setFont(look::interfaceFont(11));
        label->setCheckable(true);
        label->setToolTip(QStringLiteral("%1\nキー: %2")
                              .arg(modeTips[index], QKeySequence(runModeKeys[index]).toString(QKeySequence::PortableText)));
        label->setGeometry(static_cast<int>(index) * modePitch, 17, modePitch - 2, 20);
        modes->addButton(label);
        lblRunMode_[index] = label;
        connect(label, &ToolLabel::activated, this, [this, index] { lblRunMode_Click(static_cast<int>(index)); });
        connect(label, &ToolLabel::mouseUp, this, &frmMDI::lblRunMode_MouseUp);
    }

    shpTick_ = new TickTrack(box);
    shpTick_->setGeometry(0, 39, tickTrackWidth, tickBarHeight);
    return box;
}

QMdiArea& frmMDI::area() {
    return *area_;
}

void frmMDI::holdPainting(bool held) {
    area_->viewport()->setUpdatesEnabled(!held);
}

void frmMDI::lblRunMode_Click(int index) {
    lblRunMode(index).setChecked(true);
    emit runModeClicked();
    keepTime();
    const Firing firing = ::lblRunMode_Click(machine_, tickBar_, index);
    timTick_.setInterval(runModes[static_cast<std::size_t>(index)].interval);
    follow(firing);
    showTickBar();
}

// A tick may seed the noise from it.
void frmMDI::keepTime() {
    machine_.systemTimer = static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch());
}

void frmMDI::lblRunMode_MouseUp() {
    if (machine_.runMode == modeOneTime) {
        timTick_Timer();
    }
}

void frmMDI::timTick_Timer() {
    keepTime();
    follow(::timTick_Timer(machine_, tickBar_));
}

void frmMDI::follow(const Firing& firing) {
    if (firing.beep) {
        emit beepWanted();
    }
    if (firing.ticked) {
        showTickBar();
    }
    if (firing.refresh) {
        emit refreshWanted();
    }
}

void frmMDI::showTickBar() {
    shpTick_->showBar(tickBar_);
}

void frmMDI::closeEvent(QCloseEvent* event) {
    // The window never closes by itself: the answer to the question ends the program.
    event->ignore();
    MDIForm_QueryUnload();
}

void frmMDI::MDIForm_QueryUnload() {
    if (exitQuestion_ != nullptr) {
        exitQuestion_->raise();
        exitQuestion_->activateWindow();
        return;
    }
    exitQuestion_ = new QMessageBox(QMessageBox::Question, "VRBTS終了確認", "アプリケーションを終了します。よろしいですか？",
                                    QMessageBox::Ok | QMessageBox::Cancel, this);
    exitQuestion_->setObjectName("exitQuestion");
    exitQuestion_->setAttribute(Qt::WA_DeleteOnClose);
    exitQuestion_->setWindowFlag(Qt::WindowStaysOnTopHint);  // not behind a topmost window, where nobody finds it
    exitQuestion_->setFont(look::textFont(14));
    exitQuestion_->setIconPixmap(ImageList("picQuestion").image(1, devicePixelRatioF()));
    for (QAbstractButton* button : exitQuestion_->buttons()) {
        button->setIcon({});
    }
    connect(exitQuestion_, &QMessageBox::finished, this, [this](int answer) {
        if (answer == QMessageBox::Ok) {
            emit quitConfirmed();
        }
    });
    exitQuestion_->open();
}
