// SPDX-License-Identifier: Apache-2.0
#include "access/views/frmRegister.h"

#include "access/hexText.h"
#include "platform/ImageList.h"
#include "platform/labels.h"
#include "platform/look.h"

#include <QCloseEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int windowWidth = 270;
constexpr int headingHeight = 22;
constexpr int rowHeight = 18;
constexpr int nameLeft = 8;
constexpr int lineRight = 262;

// The four values of a row, in characters of the hexadecimal font from the left edge of their column. The binary text of
// the high half begins with a blank, so that the heading's 15, 7 and 0 stand over their bits.
constexpr int valueLeft = 62;
constexpr int binaryLeft = 106;
struct Place {
    const char* name;
    int columnLeft;
    int firstCharacter;
    int characters;
};
constexpr std::array<Place, 4> places{
    {{"lblValH", valueLeft, 0, 2}, {"lblValL", valueLeft, 2, 2}, {"lblBinH", binaryLeft, 0, 10}, {"lblBinL", binaryLeft, 11, 9}}};

QRect cellPlace(const Place& place, const QFont& font, int top) {
    const qreal character = QFontMetricsF(font).horizontalAdvance('0');
    const int left = place.columnLeft + qRound(place.firstCharacter * character);
    const int right = place.columnLeft + qRound((place.firstCharacter + place.characters) * character);
    return {left, top, right - left, rowHeight};
}

int topOfRow(int row) {
    return headingHeight + (row - 1) * rowHeight;
}

QColor groundOf(int row) {
    return row % 2 == 0 ? QColor::fromRgb(look::zebra) : QColor(Qt::white);
}

}  // namespace

// --- one value -------------------------------------------------------------------------------------------------------

RegisterCell::RegisterCell(QString text, QColor ground, Drawn& drawn, QWidget* parent)
    : QWidget(parent), text_(std::move(text)), ground_(ground), drawn_(drawn) {
    setFont(look::hexFont(12));
    setCursor(doubleClickPointer());
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void RegisterCell::show(const QString& text, bool red) {
    text_ = text;
    red_ = red;
    if (hasFocus()) {
        setAccessibleDescription(text);
    }
    update();
}

void RegisterCell::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        emit writeWanted();
    }
}

void RegisterCell::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: emit writeWanted(); break;
        case Qt::Key_Up: emit moveWanted(-1, 0); break;
        case Qt::Key_Down: emit moveWanted(1, 0); break;
        case Qt::Key_Left: emit moveWanted(0, -1); break;
        case Qt::Key_Right: emit moveWanted(0, 1); break;
        default: QWidget::keyPressEvent(event);
    }
}

// The ring is for those who walk by keyboard; a mouse says where it is by its pointer.
void RegisterCell::focusInEvent(QFocusEvent* event) {
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        ring_ = event->reason() != Qt::MouseFocusReason;
    }
    setAccessibleDescription(text_);
    update();
    QWidget::focusInEvent(event);
}

void RegisterCell::focusOutEvent(QFocusEvent* event) {
    update();
    QWidget::focusOutEvent(event);
}

// Most values are the same at the start, and SSR walks through the same few, fifty times a second: each is drawn once, and then
// only copied.
const QPixmap& RegisterCell::drawnText() {
    const qreal ratio = devicePixelRatioF();
    if (drawn_.size() > mostDrawn) {
        drawn_.clear();
    }
    QPixmap& picture = drawn_[{text_, red_, ground_.rgb(), width()}];
    if (picture.isNull() || picture.devicePixelRatio() != ratio) {
        picture = QPixmap(size() * ratio);
        picture.setDevicePixelRatio(ratio);
        picture.fill(ground_);
        QPainter painter(&picture);
        painter.setFont(font());
        painter.setPen(QColor::fromRgb(red_ ? look::changed : look::unchanged));
        painter.drawText(0, (height() + fontMetrics().ascent() - fontMetrics().descent()) / 2, text_);
    }
    return picture;
}

void RegisterCell::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, drawnText());
    if (ring_ && hasFocus()) {
        painter.setPen(QColor(0x1c, 0x5f, 0xb0));
        painter.drawRect(rect().adjusted(0, 1, -1, -2));
    }
}

// --- the window ------------------------------------------------------------------------------------------------------

frmRegister::frmRegister(Machine& machine, QWidget* owner)
    : QWidget(owner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint), machine_(machine) {
    setObjectName("frmRegister");
    setWindowTitle("Register Window");
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    setFixedSize(windowWidth, topOfRow(registerRows + 1) + 2);

    const QFont font = look::hexFont(12);
    makeLabel(this, "lblReg0", "Reg.", font, {nameLeft, 0, 50, headingHeight});
    makeLabel(this, "lblVal", "Val.", font, {valueLeft, 0, 40, headingHeight});
    makeLabel(this, "lblBin", "15---------7-------0", font, {binaryLeft, 0, 160, headingHeight});
    for (int row = 1; row <= registerRows; ++row) {
        makeRow(row);
    }
    connect(&timRegister_, &Timer::timeout, this, [this] {
        timRegister_Timer(view_);
        for (int row = 1; row <= lastRegisterRow; ++row) {
            showRow(row);
        }
    });
    timRegister_.setInterval(1000);
}

void frmRegister::makeRow(int row) {
    const QString name = textOf(registerTable[static_cast<std::size_t>(row - 1)].name);
    QFont bold = look::interfaceFont(11);
    bold.setBold(true);
    makeLabel(this, QStringLiteral("lblReg%1").arg(row), name, bold, {nameLeft, topOfRow(row), 54, rowHeight});

    for (std::size_t column = 0; column < places.size(); ++column) {
        const bool binary = column >= binHigh;
        const Half half = column % 2 == 0 ? Half::high : Half::low;
        const QString blank = column == binHigh ? " " : "";
        auto* cell = new RegisterCell(blank + (binary ? "0000_0000" : "00"), groundOf(row), drawn_, this);
        cell->setObjectName(QStringLiteral("%1%2").arg(places[column].name).arg(row));
        cell->setAccessibleName(QStringLiteral("%1 %2").arg(name, half == Half::high ? "15-8" : "7-0"));
        cell->setGeometry(cellPlace(places[column], cell->font(), topOfRow(row)));
        cells_[static_cast<std::size_t>(row)][column] = cell;
        connect(cell, &RegisterCell::writeWanted, this,
                [this, name, row, cell, half] { emit registerWriteWanted(name, row, frameGeometry().top() + cell->y(), half); });
        connect(cell, &RegisterCell::moveWanted, this, [this, row, column](int rows, int columns) {
            const int toRow = std::clamp(row + rows, 1, registerRows);
            const int toColumn = std::clamp(static_cast<int>(column) + columns, 0, 3);
            cells_[static_cast<std::size_t>(toRow)][static_cast<std::size_t>(toColumn)]->setFocus();
        });
    }
}

void frmRegister::showRow(int row) {
    for (const Half half : {Half::high, Half::low}) {
        const int value = registerByte(machine_, row, half);
        const bool red = view_.at(row, half).red;
        Shown& shown = shown_[static_cast<std::size_t>(row)][static_cast<std::size_t>(half)];
        if (shown.value == value && shown.red == red) {
            continue;
        }
        shown = {value, red};
        const auto byte = static_cast<std::uint8_t>(value);
        const QString blank = half == Half::high ? " " : "";
        cell(row, half == Half::high ? valHigh : valLow).show(textOf(hexText(byte, 2)), red);
        cell(row, half == Half::high ? binHigh : binLow).show(blank + textOf(byteToBinary(byte)), red);
    }
}

void frmRegister::refreshRegisters() {
    if (!isVisible()) {
        return;
    }
    ::refreshRegisters(machine_, view_);
    for (int row = 1; row <= lastRegisterRow; ++row) {
        showRow(row);
    }
}

void frmRegister::markRow(int row, bool highRed, bool lowRed) {
    colourRow(view_, row, highRed, lowRed);
    showRow(row);
}

void frmRegister::closeEvent(QCloseEvent* event) {
    event->ignore();  // whoever hears of it forgets the window
    emit closed();
}

void frmRegister::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.fillRect(0, 0, width(), headingHeight, QColor(0xe4, 0xea, 0xe7));
    painter.setPen(QColor(0xd0, 0xd9, 0xd4));
    painter.drawLine(nameLeft, headingHeight - 1, lineRight, headingHeight - 1);
    for (int row = 2; row <= registerRows; row += 2) {
        painter.fillRect(0, topOfRow(row), width(), rowHeight, groundOf(row));
    }
}
