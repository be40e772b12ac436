// SPDX-License-Identifier: Apache-2.0
#include "access/views/frmMemoryRead.h"

#include "access/hexText.h"
#include "access/memoryAccess.h"
#include "platform/OvertypeField.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/twips.h"

#include <QLabel>
#include <QPushButton>

namespace {

constexpr QSize windowSize{twips(4995), twips(1905)};

}  // namespace

frmMemoryRead::frmMemoryRead(Machine& machine, QWidget* owner)
    : QDialog(owner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      machine_(machine),
      txtAddress_(new OvertypeField(OvertypeField::Case::asTyped, this)) {
    setObjectName("frmMemoryRead");
    setWindowTitle("Memory Read");
    setFixedSize(windowSize);

    const QFont names = look::interfaceFont(12);
    const QFont values = look::hexFont(14);
    makeLabel(this, "Label1_0", "Address", names, {14, 12, 60, 20});
    txtAddress_->setObjectName("txtAddress");
    txtAddress_->setAccessibleName("Address");
    txtAddress_->setFont(values);
    txtAddress_->setTextMargins(0, 0, 0, 0);
    txtAddress_->setMaxLength(3);
    txtAddress_->setGeometry(14, 36, 36, 26);

    makeLabel(this, "Label1_1", "Readed Address", names, {84, 12, 110, 20});
    lblAdr_ = makeLabel(this, "lblAdr", {}, values, {84, 38, 50, 22});
    lblData_ = makeLabel(this, "lblData", {}, values, {146, 38, 28, 22});
    makeLabel(this, "lblBitInd", "bit 7-0", look::hexFont(12), {180, 38, 60, 22});
    lblGuide_ = makeLabel(this, "lblGuide", {}, look::textFont(13), {14, 96, windowSize.width() - 20, 22});

    const std::array<const char*, 2> captions{"Read", "Close"};
    std::array<QPushButton*, 2> cmdAction{};
    for (std::size_t action = 0; action < captions.size(); ++action) {
        cmdAction[action] = new QPushButton(captions[action], this);
        cmdAction[action]->setObjectName(QStringLiteral("cmdAction%1").arg(action));
        cmdAction[action]->setGeometry(246, 14 + 36 * static_cast<int>(action), 76, 28);
    }
    cmdAction[0]->setDefault(true);
    connect(cmdAction[0], &QPushButton::clicked, this, &frmMemoryRead::read);
    connect(cmdAction[1], &QPushButton::clicked, this, &QDialog::reject);
    // However it closes, the next showing begins at the address.
    connect(this, &QDialog::finished, txtAddress_, qOverload<>(&QWidget::setFocus));
    initReadMemory();
}

void frmMemoryRead::initReadMemory() {
    lblGuide_->clear();
    lblAdr_->setText("???H");
    lblData_->setText("??");
    txtAddress_->setValue("???");
}

void frmMemoryRead::read() {
    const QString entered = txtAddress_->text();
    const auto result = readMemory(machine_, entered.toStdString());
    txtAddress_->setFocus();
    if (!result) {
        emit beepWanted();
        return;
    }
    lblGuide_->setText(textOf(result->guide));
    lblData_->setText(QString::fromStdString(hexText(result->value, 2)));
    lblAdr_->setText(entered + "H");
    txtAddress_->setValue("???");
}
