// SPDX-License-Identifier: Apache-2.0
#include "access/views/WriteDialog.h"

#include "access/hexText.h"
#include "platform/look.h"
#include "platform/screen.h"
#include "platform/twips.h"

#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr QSize dialogSize{322, 148};
constexpr int fieldTop = 88;
constexpr int fieldHeight = 26;

// The value field by width of the access, word and byte: wide enough for its digits.
struct FieldLayout {
    int left;
    int width;
    int digits;
};
constexpr std::array<FieldLayout, 2> fieldLayouts{{{twips(2220), twips(610), 4}, {twips(2490), twips(370), 2}}};

}  // namespace

WriteDialog::WriteDialog(const char* name, const QString& title, OvertypeField::Case letters, QWidget* owner)
    : QDialog(owner), lblAdr_(new QLabel(this)), lblBitInd_(new QLabel(this)), txtWriteData_(new OvertypeField(letters, this)) {
    setObjectName(name);
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowStaysOnTopHint);  // under a topmost window the program would seem dead
    setFixedSize(dialogSize);

    auto* label1 = new QLabel("Address", this);
    label1->setObjectName("Label1");
    label1->setGeometry(16, 14, 60, 20);
    lblAdr_->setObjectName("lblAdr");
    lblAdr_->setFont(look::hexFont(13));
    lblAdr_->setGeometry(76, 14, 180, 20);
    lblBitInd_->setObjectName("lblBitInd");
    lblBitInd_->setFont(look::hexFont(12));
    lblBitInd_->setGeometry(fieldLayouts[0].left - 8, fieldTop - 28, 90, 20);
    txtWriteData_->setObjectName("txtWriteData");
    txtWriteData_->setAccessibleName("value");
    txtWriteData_->setFont(look::hexFont(14));
    txtWriteData_->setTextMargins(0, 0, 0, 0);
    makeAccessFrame();
    makeButtons();
    setTabOrder(txtWriteData_, cmdAction_[0]);
    setTabOrder(cmdAction_[0], cmdAction_[1]);
    setTabOrder(cmdAction_[1], opnAccess_[0]);
    setTabOrder(opnAccess_[0], opnAccess_[1]);
}

void WriteDialog::makeAccessFrame() {
    auto* fraAccess = new QGroupBox("Access", this);
    fraAccess->setObjectName("fraAccess");
    fraAccess->setGeometry(14, 46, 112, 88);
    const std::array<const char*, 2> captions{"1&6 bit", " &8 bit"};
    for (std::size_t option = 0; option < captions.size(); ++option) {
        opnAccess_[option] = new QRadioButton(captions[option], fraAccess);
        opnAccess_[option]->setObjectName(QStringLiteral("opnAccess%1").arg(option));
        opnAccess_[option]->setGeometry(12, 26 + 28 * static_cast<int>(option), 90, 24);
        connect(opnAccess_[option], &QRadioButton::clicked, this, [this] {
            setupAccess();
            // After Qt has given the option the focus, which it does behind a choice by arrow key.
            QMetaObject::invokeMethod(
                this, [this] { txtWriteData_->setFocus(); }, Qt::QueuedConnection);
        });
    }
}

void WriteDialog::makeButtons() {
    const std::array<const char*, 2> captions{"Write", "Cancel"};
    for (std::size_t action = 0; action < captions.size(); ++action) {
        cmdAction_[action] = new QPushButton(captions[action], this);
        cmdAction_[action]->setObjectName(QStringLiteral("cmdAction%1").arg(action));
        cmdAction_[action]->setGeometry(232, 58 + 38 * static_cast<int>(action), 76, 28);
    }
    connect(cmdAction_[0], &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAction_[1], &QPushButton::clicked, this, &QDialog::reject);
}

void WriteDialog::openAt(QPoint place, bool byteWide) {
    opnAccess_[0]->setEnabled(!byteWide);
    opnAccess_[byteWide ? 1 : 0]->setChecked(true);
    setupAccess();
    placeWindow(*this, place);
    txtWriteData_->setFocus();
    cmdAction_[0]->setDefault(true);  // not the button that the dialog ended by before
    show();
    activateWindow();
}

Width WriteDialog::width() const {
    return opnAccess_[0]->isChecked() ? Width::word : Width::byte;
}

void WriteDialog::showAccess(const QString& address, const QString& bits, const QString& value) {
    lblAdr_->setText(address);
    lblBitInd_->setText(bits);
    const FieldLayout& layout = fieldLayouts[width() == Width::word ? 0 : 1];
    txtWriteData_->setGeometry(layout.left, fieldTop, layout.width, fieldHeight);
    txtWriteData_->setMaxLength(layout.digits);
    txtWriteData_->setValue(value);
}

QString WriteDialog::hex(int value, int digits) {
    return QString::fromStdString(hexText(static_cast<unsigned>(value), digits));
}

bool WriteDialog::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        txtWriteData_->setFocus();
    }
    return QDialog::event(event);
}
