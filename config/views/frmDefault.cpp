// SPDX-License-Identifier: Apache-2.0
#include "config/views/frmDefault.h"

#include "config/views/SettingsStore.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/screen.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int gap = 12;
constexpr int rowGap = 10;
constexpr int textSize = 14;
constexpr int listLength = 16;
constexpr int captionWidth = 68;
constexpr int shortListWidth = 112;  // of the lists with a few letters an item

// The one style sheet of the program: frames within frames, and a window that the start does not make.
constexpr const char* dialogStyle = R"(
    QGroupBox {
        background: #fbfdfc; border: 1px solid #b4c2bb; border-radius: 5px; margin-top: 22px; padding: 4px 6px 4px 6px;
    }
    QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 2px; top: 2px; color: #1f7348; }
    QGroupBox QGroupBox { background: #f1f6f3; }
)";

struct ButtonRow {
    frmDefault::Action action;
    const char* caption;
    const char* beside;
    int row;
    int column;
};

// In the order of the Tab key, which walks over the controls as they are made.
constexpr std::array<ButtonRow, 4> buttonRows{{
    {frmDefault::actionApply, "今すぐ設定", "（※セット状態からリスタートします)", 0, 0},
    {frmDefault::actionSave, "設定をファイルに保存", "（※次回立ち上げ時に設定が反映)", 1, 0},
    {frmDefault::actionMaker, "メーカ推奨値に戻す", nullptr, 0, 3},
    {frmDefault::actionClose, "閉じる", nullptr, 1, 3},
}};

QLabel* makeCaption(const char* caption, QWidget* parent) {
    auto* label = new QLabel(caption, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(look::textFont(textSize));
    return label;
}

QGroupBox* makeFrame(const QString& name, const QString& caption, QWidget* parent) {
    auto* frame = new QGroupBox(caption, parent);
    frame->setObjectName(name);
    frame->setFont(look::textFont(textSize));
    return frame;
}

QAbstractButton* makeCheck(const char* name, const char* caption, QWidget* parent) {
    auto* check = new QCheckBox(caption, parent);
    check->setObjectName(name);
    check->setFont(look::textFont(textSize));
    return check;
}

// A combo box with its label before it, as a row of a frame's grid.
QComboBox* makeList(const char* name, const char* caption, QGridLayout* grid, int row) {
    QWidget* frame = grid->parentWidget();
    QLabel* label = makeCaption(caption, frame);
    label->setObjectName(QString("lbl") + (name + 3));
    auto* list = new QComboBox(frame);
    list->setObjectName(name);
    list->setFont(look::columnFont(textSize));
    list->setMaxVisibleItems(listLength);
    list->setMinimumWidth(shortListWidth);
    list->setAccessibleName(static_cast<QGroupBox*>(frame)->title() + " " + caption);
    grid->addWidget(label, row, 0);
    grid->addWidget(list, row, 1, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(0, captionWidth);
    grid->setVerticalSpacing(rowGap);
    return list;
}

}  // namespace

frmDefault::frmDefault(SettingsStore& store, QWidget* owner)
    : QDialog(owner,
              Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint),
      store_(store) {
    setObjectName("frmDefault");
    setWindowTitle("システムデフォルト設定");
    setFont(look::textFont(textSize));

    setStyleSheet(dialogStyle);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(gap + 4, gap, gap + 4, gap + 4);
    grid->setSpacing(gap);
    auto* left = new QVBoxLayout;
    left->setSpacing(gap);
    left->addWidget(makeWindows());
    left->addWidget(makeBench(), 1);
    grid->addLayout(left, 0, 0, 2, 1);
    grid->addWidget(makeCenter(), 0, 1);
    grid->addWidget(makeBoardNo1(), 0, 2);
    grid->addWidget(makeBoardNo2(), 1, 1);
    grid->addWidget(makeBoardNo4(), 1, 2);
    grid->addWidget(makeButtons(), 2, 0, 1, 3);
    grid->setRowStretch(1, 1);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    bindControls();
    showValues(store_.dialogValues());
}

// --- the frames ------------------------------------------------------------------------------------------------------------

QWidget* frmDefault::makeWindows() {
    QGroupBox* frame = makeFrame("fraWindows", "立ち上げ時　開く窓", this);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(makeCheck("chkDef2", "レジスタ", frame));
    column->addWidget(makeCheck("chkDef3", "レジスタヒント", frame));
    QGroupBox* inner = makeFrame("fraMemoryWindows", "メモリウィンドウ", frame);
    auto* innerColumn = new QVBoxLayout(inner);
    innerColumn->addWidget(makeCheck("chkDef4", "コントロール+DI+DO", inner));
    innerColumn->addWidget(makeCheck("chkDef5", "C1～C7", inner));
    innerColumn->addWidget(makeCheck("chkDef6", "DRC", inner));
    column->addWidget(inner);
    column->addStretch(1);
    return frame;
}

QWidget* frmDefault::makeBench() {
    QGroupBox* frame = makeFrame("fraBench", "立ち上げ時　初期設定と動作", this);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(makeCheck("chkDef0", "通信ケーブルをすべて接続", frame));
    column->addWidget(makeCheck("chkDef1", "メモリ全域00Hクリア実行", frame));
    column->addStretch(1);
    return frame;
}

QWidget* frmDefault::makeCenter() {
    QGroupBox* frame = makeFrame("fraCenter", "QDA60 Center-Board", this);
    auto* grid = new QGridLayout(frame);
    makeList("cmbCPUType", "CPU Type", grid, 0);
    grid->addWidget(makeCaption("通信方式", frame), 1, 0);
    auto* options = new QHBoxLayout;
    options->setSpacing(gap);
    const std::array<const char*, 2> captions{"全2重", "半2重"};
    for (std::size_t option = 0; option < captions.size(); ++option) {
        auto* button = new QRadioButton(captions[option], frame);
        button->setObjectName(QStringLiteral("optHF%1").arg(option));
        button->setFont(look::textFont(textSize));
        options->addWidget(button);
        if (option == 0) {
            optHF0_ = button;
        }
    }
    options->addStretch(1);
    grid->addLayout(options, 1, 1);
    QLabel* clock = makeCaption("Clock", frame);
    clock->setObjectName("lblClockDEF60");
    clock->setEnabled(false);
    grid->addWidget(clock, 2, 0);
    grid->setRowStretch(3, 1);
    return frame;
}

QWidget* frmDefault::makeBoardNo1() {
    QGroupBox* frame = makeFrame("fraBoardNo1", "Board No1 ： QDA73", this);
    auto* grid = new QGridLayout(frame);
    makeList("cmbSA2", "SA", grid, 0);
    makeList("cmbClockDEF73", "BPS", grid, 1);
    grid->setRowStretch(2, 1);
    return frame;
}

QWidget* frmDefault::makeBoardNo2() {
    QGroupBox* frame = makeFrame("fraBoardNo2", "Board No2 ： QDA41", this);
    auto* grid = new QGridLayout(frame);
    makeList("cmbSA0", "SA", grid, 0);
    makeList("cmbClockDEF41", "Clock", grid, 1);
    grid->addWidget(makeCheck("chkCascade", "No3.カスケード接続", frame), 2, 1);
    grid->setRowStretch(3, 1);
    return frame;
}

QWidget* frmDefault::makeBoardNo4() {
    QGroupBox* frame = makeFrame("fraBoardNo4", "Board No4 ： QDA52", this);
    auto* grid = new QGridLayout(frame);
    makeList("cmbSA4", "SA", grid, 0);
    makeList("cmbClockDEF52", "Clock", grid, 1);
    makeList("cmbIOS", "IOS", grid, 2);
    makeList("cmbMode", "Mode", grid, 3)->setEnabled(false);  // the counter counts freely, whatever the file says
    frame->findChild<QLabel*>("lblMode")->setEnabled(false);
    grid->setRowStretch(4, 1);
    return frame;
}

QWidget* frmDefault::makeButtons() {
    auto* bar = new QWidget(this);
    auto* grid = new QGridLayout(bar);
    grid->setContentsMargins(0, 4, 0, 0);
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(rowGap);
    for (const ButtonRow& row : buttonRows) {
        auto* button = new QPushButton(row.caption, bar);
        button->setObjectName(QStringLiteral("cmdAction%1").arg(row.action));
        button->setFont(look::textFont(textSize));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, action = row.action] { cmdAction_Click(action); });
        grid->addWidget(button, row.row, row.column);
        if (row.beside != nullptr) {
            grid->addWidget(makeCaption(row.beside, bar), row.row, row.column + 1);
        }
        cmdAction_[row.action] = button;
    }
    grid->setColumnStretch(2, 1);
    return bar;
}

// --- the values ------------------------------------------------------------------------------------------------------------

void frmDefault::bindControls() {
    for (std::size_t row = 0; row < settings.size(); ++row) {
        const QString name = textOf(settings[row].control);
        if (name.isEmpty()) {
            continue;
        }
        const ItemList& list = settings[row].list;
        Control& control = controls_[row];
        if (list.count == 0) {
            control.button = findChild<QAbstractButton*>(name);
            continue;
        }
        control.list = findChild<QComboBox*>(name);
        for (int index = 0; index < list.count; ++index) {
            control.list->addItem(textOf(list.item(index)));
        }
    }
}

DialogValues frmDefault::values() const {
    DialogValues values{};
    for (std::size_t row = 0; row < values.size(); ++row) {
        if (const Control& control = controls_[row]; control.button != nullptr) {
            values[row] = static_cast<std::int16_t>(control.button->isChecked() ? 1 : 0);
        } else if (control.list != nullptr) {
            values[row] = static_cast<std::int16_t>(control.list->currentIndex());
        }
    }
    return values;
}

void frmDefault::showValues(const DialogValues& values) {
    optHF0_->setChecked(true);  // of the two choices the other one is the setting
    for (std::size_t row = 0; row < values.size(); ++row) {
        if (const Control& control = controls_[row]; control.button != nullptr) {
            control.button->setChecked(values[row] != 0);
        } else if (control.list != nullptr) {
            control.list->setCurrentIndex(values[row]);
        }
    }
}

// --- gestures --------------------------------------------------------------------------------------------------------------

void frmDefault::openAt(QPoint place) {
    placeWindow(*this, place);
    show();
    activateWindow();
}

void frmDefault::cmdAction_Click(Action action) {
    if (!isVisible()) {
        return;  // the second click of a hasty pair
    }
    switch (action) {
        case actionClose: hide(); break;
        case actionApply: {
            const DialogValues chosen = values();
            hide();
            emit applied(chosen);
            break;
        }
        case actionSave: store_.save(values()); break;
        case actionMaker: showValues(setDialogMaker()); break;
    }
}

void frmDefault::reject() {
    close();
}

bool frmDefault::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        raise();
    }
    return QDialog::event(event);
}

void frmDefault::closeEvent(QCloseEvent* event) {
    event->ignore();  // whoever hears of it forgets the dialog
    hide();
    emit unloaded();
}

// Enter presses the button that has the focus, and no other.
void frmDefault::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
    } else if (auto* button = qobject_cast<QPushButton*>(focusWidget())) {
        button->click();
    }
}
