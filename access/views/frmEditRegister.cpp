#include "access/views/frmEditRegister.h"

#include "access/hexText.h"
#include "access/memoryAccess.h"
#include "platform/look.h"
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

// The value field by width of the access: wide enough for its digits, its right edge in the same place.
struct FieldLayout {
    int left;
    int width;
    int digits;
};
constexpr std::array<FieldLayout, 2> fieldLayouts{{{twips(2220), twips(610), 4}, {twips(2490), twips(370), 2}}};

QString textOf(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace

frmEditRegister::frmEditRegister(Machine& machine, QWidget* owner) : QDialog(owner), machine_(machine) {
    setObjectName("frmEditRegister");
    setWindowTitle("Register Write");
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setFixedSize(dialogSize);

    auto* label1 = new QLabel("Address", this);
    label1->setObjectName("Label1");
    label1->setGeometry(16, 14, 60, 20);
    lblAdr_ = new QLabel(this);
    lblAdr_->setObjectName("lblAdr");
    lblAdr_->setFont(look::hexFont(13));
    lblAdr_->setGeometry(76, 14, 140, 20);

    auto* fraAccess = new QGroupBox("Access", this);
    fraAccess->setObjectName("fraAccess");
    fraAccess->setGeometry(14, 46, 112, 88);
    const std::array<const char*, 2> captions{"1&6 bit", " &8 bit"};
    for (std::size_t option = 0; option < captions.size(); ++option) {
        opnAccess_[option] = new QRadioButton(captions[option], fraAccess);
        opnAccess_[option]->setObjectName(QStringLiteral("opnAccess%1").arg(option));
        opnAccess_[option]->setGeometry(12, 26 + 28 * static_cast<int>(option), 90, 24);
        connect(opnAccess_[option], &QRadioButton::clicked, this, [this] {
            setupRegisterDialog();
            txtWriteData_->setFocus();
        });
    }

    lblBitInd_ = new QLabel(this);
    lblBitInd_->setObjectName("lblBitInd");
    lblBitInd_->setFont(look::hexFont(12));
    lblBitInd_->setGeometry(fieldLayouts[0].left - 8, fieldTop - 28, 84, 20);
    txtWriteData_ = new OvertypeField(OvertypeField::Case::upper, this);
    txtWriteData_->setObjectName("txtWriteData");
    txtWriteData_->setFont(look::hexFont(14));
    txtWriteData_->setTextMargins(0, 0, 0, 0);
    txtWriteData_->setStyleSheet("padding: 0;");

    const std::array<const char*, 2> actions{"Write", "Cancel"};
    for (std::size_t action = 0; action < actions.size(); ++action) {
        cmdAction_[action] = new QPushButton(actions[action], this);
        cmdAction_[action]->setObjectName(QStringLiteral("cmdAction%1").arg(action));
        cmdAction_[action]->setProperty("dialogButton", true);
        cmdAction_[action]->setAutoDefault(false);
        cmdAction_[action]->setGeometry(232, 58 + 38 * static_cast<int>(action), 76, 28);
    }
    cmdAction_[0]->setDefault(true);
    connect(cmdAction_[0], &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAction_[1], &QPushButton::clicked, this, &QDialog::reject);
    setTabOrder(txtWriteData_, cmdAction_[0]);
    setTabOrder(cmdAction_[0], cmdAction_[1]);
    setTabOrder(cmdAction_[1], opnAccess_[0]);
    setTabOrder(opnAccess_[0], opnAccess_[1]);
}

void frmEditRegister::openFor(const QString& name, int row, Half half, QPoint place) {
    name_ = name;
    row_ = row;
    half_ = half;
    const std::string registerName = name.toStdString();
    // The row without a register stands at 000H: its value can be looked at, and a write does nothing.
    address_ = hexValue(regAddress(registerName)).value_or(0);
    const bool byteWide = bus8bit(machine_);
    opnAccess_[0]->setEnabled(!byteWide);
    opnAccess_[byteWide ? 1 : 0]->setChecked(true);
    setupRegisterDialog();
    move(place);
    show();
    activateWindow();
    txtWriteData_->setFocus();
}

bool frmEditRegister::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        txtWriteData_->setFocus();
    }
    return QDialog::event(event);
}

Width frmEditRegister::width() const {
    return opnAccess_[0]->isChecked() ? Width::word : Width::byte;
}

// A half's bus address: on a big-endian bus the high byte comes first.
int frmEditRegister::shownAddress() const {
    if (width() == Width::word) {
        return address_;
    }
    const int index = address_ + (half_ == Half::high ? 1 : 0);
    return busToMemoryIndex(machine_, index);
}

void frmEditRegister::setupRegisterDialog() {
    const bool word = width() == Width::word;
    const QString byteRange = half_ == Half::low ? "7-0" : "15-8";
    const QString range = word ? "15-0" : byteRange;
    lblAdr_->setText(textOf(hexText(static_cast<unsigned>(shownAddress()), 3)) + "H " + name_ + " " + range);
    lblBitInd_->setText("bit " + range);

    const FieldLayout& layout = fieldLayouts[word ? 0 : 1];
    txtWriteData_->setGeometry(layout.left, fieldTop, layout.width, fieldHeight);
    txtWriteData_->setMaxLength(layout.digits);
    showRegisterValue();
}

void frmEditRegister::showRegisterValue() {
    const bool word = width() == Width::word;
    const int value = memoryWord(machine_, address_);
    const int byte = half_ == Half::high ? value >> 8 : value & 0xFF;
    txtWriteData_->setValue(textOf(word ? hexText(static_cast<unsigned>(value), 4) : hexText(static_cast<unsigned>(byte), 2)));
    emit rowMarked(row_, word || half_ == Half::high, word || half_ == Half::low);
}

// Write, Cancel, Escape and the close box all end here.
void frmEditRegister::done(int result) {
    Answer answer;
    const std::uint8_t protection = machine_.chipMemory[reg::hprLow];
    if (result == Accepted) {
        answer = writeRegister(machine_, address_, width(), half_, txtWriteData_->text().toStdString());
        emit written();
    }
    emit rowMarked(row_, false, false);
    QDialog::done(result);
    emit answered(answer);
    if (result == Accepted && row_ == rowHPR && machine_.chipMemory[reg::hprLow] != protection) {
        emit readProtectionChanged();
    }
}
