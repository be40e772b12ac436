// SPDX-License-Identifier: Apache-2.0
#include "aids/views/frmNaviList.h"

#include "aids/views/NaviSign.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/screen.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize listSize{440, 390};  // the sixteen tours that come with the program
constexpr int rowHeight = 24;
constexpr int buttonWidth = 138;
constexpr int gap = 10;

QLabel* makeCaption(const char* text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(look::textFont(14));
    return label;
}

QPushButton* makeButton(const char* name, const char* caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setFont(look::interfaceFont(12));
    button->setMinimumWidth(buttonWidth);
    return button;
}

}  // namespace

frmNaviList::frmNaviList(const std::vector<NaviRecord>& naviIndex, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                         // in front of the tour window too: under it, neither of the two could be used
                         Qt::WindowStaysOnTopHint),
      lstTitle_(new QListWidget(this)),
      cmdStart_(makeButton("cmdStart", "Navigation Start", this)),
      cmdCancel_(makeButton("cmdCancel", "Cancel", this)) {
    setObjectName("frmNaviList");
    setWindowTitle("Navigator List");
    setModal(true);

    lstTitle_->setObjectName("lstTitle");
    lstTitle_->setFont(look::textFont(14));
    lstTitle_->setUniformItemSizes(true);
    lstTitle_->setIconSize({NaviSign::size, NaviSign::size});
    lstTitle_->setMinimumSize(listSize);
    lstTitle_->setAccessibleName(windowTitle());
    for (std::size_t number = 1; number < naviIndex.size(); ++number) {
        auto* item = new QListWidgetItem(textOf(naviIndex[number].title), lstTitle_);
        item->setSizeHint({0, rowHeight});
        item->setIcon(NaviSign::icon(TourSign::none));  // the place of the mark
        fileNames_.push_back(naviIndex[number].fileName);
    }
    lstTitle_->setCurrentRow(0);
    cmdStart_->setDefault(true);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(gap + 4, gap, gap + 4, gap + 4);
    column->setSpacing(gap);
    column->addWidget(makeCaption("リストの項目を選択し、\"Navigation Start\"ボタンを押してください。", this));
    column->addWidget(lstTitle_, 1);
    column->addWidget(makeCaption("（※　ナビゲーションのスタート時に、メーカー推奨設定に強制されます）", this));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap);
    buttons->addStretch(1);
    buttons->addWidget(cmdStart_);
    buttons->addWidget(cmdCancel_);
    column->addLayout(buttons);

    connect(cmdStart_, &QPushButton::clicked, this, &frmNaviList::cmdStart_Click);
    connect(cmdCancel_, &QPushButton::clicked, this, &QWidget::hide);
    connect(lstTitle_, &QListWidget::itemDoubleClicked, this, &frmNaviList::cmdStart_Click);
}

void frmNaviList::openList() {
    if (!isVisible()) {
        adjustSize();
        placeBottomRight(*this);
        show();
    }
    raise();
    activateWindow();
    lstTitle_->setFocus();
}

void frmNaviList::markFinished(const std::string& fileName) {
    for (std::size_t row = 0; row < fileNames_.size(); ++row) {
        if (fileNames_[row] == fileName) {
            QListWidgetItem& item = *lstTitle_->item(static_cast<int>(row));
            item.setIcon(NaviSign::icon(TourSign::done));
            item.setData(Qt::AccessibleTextRole, item.text() + " (最後まで進みました)");
        }
    }
}

void frmNaviList::cmdStart_Click() {
    if (!isVisible()) {
        return;  // the second click of a hasty pair: the first has begun the tour
    }
    emit startWanted(static_cast<std::size_t>(lstTitle_->currentRow()) + 1);
}

void frmNaviList::tellMissing() {
    if (notice_ != nullptr) {
        return;
    }
    notice_ = new QMessageBox(QMessageBox::Information, "確認", "ファイルが見つかりません。", QMessageBox::Ok, this);
    notice_->setObjectName("naviNotice");
    notice_->setAttribute(Qt::WA_DeleteOnClose);
    notice_->setWindowFlag(Qt::WindowStaysOnTopHint);
    notice_->open();
}
