// SPDX-License-Identifier: Apache-2.0
#include "aids/views/frmDialog.h"

#include "platform/ImageList.h"
#include "platform/look.h"
#include "platform/screen.h"
#include "platform/twips.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int titleHeight = twips(450);
constexpr int leastWidth = twips(6060);
constexpr int sideSpace = twips(480);
constexpr int spaceBelowText = twips(700);
constexpr int buttonFoot = 8;
constexpr QSize buttonSize{96, 28};
constexpr int signLeft = sideSpace / 4;
constexpr int signSize = 28;
constexpr int titleLeft = signLeft + signSize + 4;

}  // namespace

frmDialog::frmDialog(QWidget* owner)
    // In front of the topmost windows too: behind one, the program would seem dead.
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      lblDialogTitle_(new QLabel(this)),
      lblMessage_(new QLabel(this)),
      sign_(new QLabel(this)) {
    setObjectName("frmDialog");
    setWindowModality(Qt::ApplicationModal);

    lblDialogTitle_->setObjectName("lblDialogTitle");
    QFont titleFont = look::textFont(14);
    titleFont.setBold(true);
    lblDialogTitle_->setFont(titleFont);
    lblMessage_->setObjectName("lblMessage");
    lblMessage_->setFont(look::textFont(14));
    lblMessage_->setTextFormat(Qt::PlainText);
    sign_->setGeometry(signLeft, 1, signSize, signSize);

    const std::array<const char*, 2> captions{"OK", "ｷｬﾝｾﾙ"};
    for (std::size_t action = 0; action < captions.size(); ++action) {
        cmdAction_[action] = new QPushButton(captions[action], this);
        cmdAction_[action]->setObjectName(QStringLiteral("cmdAction%1").arg(action));
        cmdAction_[action]->resize(buttonSize);
        connect(cmdAction_[action], &QPushButton::clicked, this, [this, action] { answer(static_cast<Result>(action + 1)); });
    }
    cmdAction_[0]->setDefault(true);
}

void frmDialog::warningDialog(const Warning& warning, Continuation next) {
    waiting_.push_back({warning, std::move(next)});
    if (waiting_.size() == 1) {
        showFirst();
    }
}

void frmDialog::showFirst() {
    const Warning& warning = waiting_.front().warning;
    const bool question = warning.kind == Warning::Kind::okCancel;
    sign_->setPixmap(ImageList(question ? "picQuestion" : "picWarn").image(1, devicePixelRatioF()));
    lblMessage_->setText("\n" + QString::fromStdString(warning.text));
    lblMessage_->adjustSize();
    const int wide = std::max(lblMessage_->width() + sideSpace, leastWidth);
    const int high = lblMessage_->height() + titleHeight + spaceBelowText;
    setFixedSize(wide, high);
    const QString title = QString::fromStdString(warning.title);
    lblDialogTitle_->setText(title);
    // The title begins behind the sign; its own blanks are part of it.
    lblDialogTitle_->setGeometry(titleLeft, 0, wide - titleLeft, titleHeight);
    lblMessage_->move((wide - lblMessage_->width()) / 2, titleHeight);
    setWindowTitle(title.trimmed());
    setAccessibleName(title.trimmed());
    setAccessibleDescription(QString::fromStdString(warning.text));

    const int button = buttonSize.width();
    const int top = high - buttonSize.height() - buttonFoot;
    cmdAction_[0]->move(question ? wide / 2 - button * 9 / 8 : wide / 2 - button / 2, top);
    cmdAction_[1]->move(wide / 2 + button / 8, top);
    cmdAction_[1]->setVisible(question);

    const QRect owner = parentWidget()->frameGeometry();
    move(keptOnScreen({owner.center() - QPoint(wide / 2, high / 2), size()}).topLeft());
    emit appeared(QString::fromStdString(warning.text));
    show();
    activateWindow();
    cmdAction_[0]->setDefault(true);  // not the button of the answer before
    cmdAction_[0]->setFocus();
}

void frmDialog::dismiss() {
    waiting_.clear();
    hide();
}

void frmDialog::answer(Result dialogResult) {
    if (waiting_.empty()) {
        return;
    }
    const Continuation next = std::move(waiting_.front().next);
    hide();
    waiting_.pop_front();
    // The next one in turn is up before what follows the answer: a warning of the continuation lines up behind it.
    if (!waiting_.empty()) {
        showFirst();
    }
    if (next) {
        next(dialogResult);
    }
}

// Escape, or the desktop closing the window: Cancel where there is one.
void frmDialog::reject() {
    if (!waiting_.empty()) {
        answer(waiting_.front().warning.kind == Warning::Kind::okCancel ? resultCancel : resultOk);
    }
}

void frmDialog::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::popupFace));
    painter.fillRect(0, 0, width(), titleHeight, QColor(0xff, 0xe6, 0x8a));
    painter.setPen(QColor::fromRgb(look::popupLine));
    painter.drawLine(0, titleHeight, width(), titleHeight);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
