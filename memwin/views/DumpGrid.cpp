// SPDX-License-Identifier: Apache-2.0
#include "memwin/views/DumpGrid.h"

#include "access/hexText.h"
#include "platform/ImageList.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/twips.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

// Pixels. Picture1 begins beside the strips; the rest of its places come in twips from the view.
constexpr int stripLeft = 4;
constexpr int stripWidth = 13;
constexpr int hexLeft = 20;
constexpr int headingHeight = 20;
constexpr int rowHeight = 12;
constexpr int rowsPerGroup = 8;
constexpr int groupGap = 3;
constexpr int cellPixels = twips(cellWidth);
constexpr int asciiMargin = 6;
constexpr int asciiPitch = 8;
constexpr int asciiWidth = 2 * asciiMargin + cellsPerRow * asciiPitch;
constexpr int wedgeLines = 6;

constexpr QRgb frameLine = 0xffa7b4ae;
constexpr QRgb headingFace = 0xffe4eae7;
constexpr QRgb addressInk = 0xff8a969c;

// The strip of a group by area: control words, DO and DI each have their colour, the others that of what they hold.
QColor stripColour(Area area, int group) {
    constexpr std::array<QRgb, 3> first{0xff5b6b66, 0xff1f7348, 0xff1c5fb0};
    if (area == Area::controlDoDi) {
        return QColor::fromRgb(first[static_cast<std::size_t>(group)]);
    }
    return QColor::fromRgb(area == Area::drc ? first[0] : first[2]);
}

int topOfRow(int row) {
    return headingHeight + 1 + row * rowHeight + row / rowsPerGroup * groupGap;
}

QPixmap glyph(const QString& text, int width, QRgb colour, qreal ratio) {
    QPixmap picture(QSize(width, rowHeight) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setFont(look::hexFont(11));
    painter.setPen(QColor::fromRgb(colour));
    painter.drawText(QRect(0, 0, width, rowHeight), Qt::AlignCenter, text);
    return picture;
}

}  // namespace

DumpGrid::DumpGrid(const DumpView& view, QWidget* parent) : QWidget(parent), view_(view) {
    setObjectName("grid");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(textOf(view.area->title));
}

// --- places ------------------------------------------------------------------------------------------------------------

int DumpGrid::gridHeight() const {
    return topOfRow(rows() - 1) + rowHeight + 4;
}

QRect DumpGrid::cellRect(int cell, Side side) const {
    const int top = topOfRow(cell / cellsPerRow);
    const int column = cell % cellsPerRow;
    if (side == Side::ascii) {
        return {twips(layoutOf(piMode_).asciiLeft) + asciiMargin + column * asciiPitch, top, asciiPitch, rowHeight};
    }
    return {hexLeft + twips(columnLeft(piMode_, column)), top, cellPixels, rowHeight};
}

int DumpGrid::rowAt(int y) const {
    for (int row = 0; row < rows(); ++row) {
        if (y >= topOfRow(row) && y < topOfRow(row) + rowHeight) {
            return row;
        }
    }
    return -1;
}

std::optional<DumpGrid::Hit> DumpGrid::hitAt(QPoint point) const {
    const int row = rowAt(point.y());
    if (row < 0) {
        return std::nullopt;
    }
    for (int cell = row * cellsPerRow; cell < (row + 1) * cellsPerRow; ++cell) {
        for (const Side side : {Side::data, Side::ascii}) {
            if (cellRect(cell, side).contains(point)) {
                return Hit{cell, side};
            }
        }
    }
    return std::nullopt;
}

void DumpGrid::setPiMode(ByteView piMode) {
    piMode_ = piMode;
    setFixedSize(twips(layoutOf(piMode).windowWidth), gridHeight());
    update();
}

void DumpGrid::showTouched() {
    // One region of whole rows where much changed: thousands of small rectangles cost more than they save.
    constexpr std::size_t many = 64;
    if (view_.touched.size() > many) {
        update();
        return;
    }
    for (const int cell : view_.touched) {
        update(cellRect(cell, Side::data));
        update(cellRect(cell, Side::ascii));
    }
}

// --- painting ----------------------------------------------------------------------------------------------------------

const QPixmap& DumpGrid::glyphOf(Side side, bool changed, std::uint8_t value) {
    QPixmap& picture = glyphs_[side == Side::data ? 0 : 1][changed ? 1 : 0][value];
    if (picture.isNull()) {
        const QString text = side == Side::data ? QString::fromStdString(hexText(value, 2)) : QChar(QLatin1Char(asciiOf(value)));
        picture =
            glyph(text, side == Side::data ? cellPixels : asciiPitch, changed ? look::changed : look::unchanged, glyphRatio_);
    }
    return picture;
}

void DumpGrid::paintEvent(QPaintEvent* event) {
    if (glyphRatio_ != devicePixelRatioF()) {
        glyphs_ = {};
        glyphRatio_ = devicePixelRatioF();
    }
    QPainter painter(this);
    const QRect clip = event->rect();
    const bool cellsOnly = clip.top() > headingHeight && clip.left() >= hexLeft && clip.height() <= rowHeight;
    if (cellsOnly) {
        painter.fillRect(clip, Qt::white);
    } else {
        paintFrames(painter);
        paintHeading(painter);
        paintWedges(painter);
        paintStrips(painter);
    }
    painter.setFont(look::hexFont(11));
    for (int row = 0; row < rows(); ++row) {
        if (event->region().intersects(QRect(0, topOfRow(row), width(), rowHeight))) {
            paintRow(painter, row, clip);
        }
    }
}

void DumpGrid::paintFrames(QPainter& painter) {
    painter.fillRect(rect(), QColor::fromRgb(look::windowFace));
    const int foot = gridHeight() - 2;
    for (const QRect& part : {QRect(hexLeft, 0, twips(layoutOf(piMode_).hexWidth), foot),
                              QRect(twips(layoutOf(piMode_).asciiLeft), 0, asciiWidth, foot)}) {
        painter.fillRect(part, Qt::white);
        painter.fillRect(QRect(part.topLeft(), QSize(part.width(), headingHeight)), QColor::fromRgb(headingFace));
        painter.setPen(QColor::fromRgb(frameLine));
        painter.drawRect(part.adjusted(0, 0, -1, -1));
        for (int row = rowsPerGroup; row < rows(); row += rowsPerGroup) {
            const int line = topOfRow(row) - 2;
            painter.drawLine(part.left() + 1, line, part.right() - 1, line);
        }
    }
}

void DumpGrid::paintHeading(QPainter& painter) {
    painter.setFont(look::hexFont(11));
    painter.setPen(QColor::fromRgb(look::secondInk));
    const int labelTop = headingHeight - 12;
    painter.drawText(QRect(hexLeft + 4, labelTop, 30, 12), Qt::AlignLeft | Qt::AlignVCenter, "adr.");
    for (int column = 0; column < cellsPerRow; ++column) {
        QRect place = cellRect(column, Side::data);
        place.moveTop(labelTop);
        painter.drawText(place, Qt::AlignCenter, QString::fromStdString(columnLabel(view_, column)));

        constexpr std::string_view asciiLabels = "0.......8......F";
        place = cellRect(column, Side::ascii);
        place.moveTop(labelTop);
        painter.drawText(place, Qt::AlignCenter, QChar(QLatin1Char(asciiLabels[static_cast<std::size_t>(column)])));
    }
    const int ascii = twips(layoutOf(piMode_).asciiLeft);
    painter.drawText(QRect(ascii, labelTop, asciiMargin + 1, 12), Qt::AlignCenter, "-");
    painter.setFont(look::printFont(9));
    painter.drawText(QRect(ascii, 0, asciiWidth, 10), Qt::AlignCenter, "Ascii Dump");
}

void DumpGrid::paintWedges(QPainter& painter) const {
    painter.setPen(QColor::fromRgb(look::secondInk));
    constexpr int base = 8;
    for (const bool high : {false, true}) {
        for (int line = 0; line <= wedgeLines; ++line) {
            const WedgeLine ends = line == 0 ? wedgeBase(high) : wedgeLine(view_.bigEndian, high, line);
            painter.drawLine(hexLeft + twips(ends.left), base - line, hexLeft + twips(ends.right), base - line);
        }
    }
}

void DumpGrid::paintStrips(QPainter& painter) {
    QFont font = look::interfaceFont(11);
    font.setBold(true);
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int group = 0; group < rows() / rowsPerGroup; ++group) {
        const int top = topOfRow(group * rowsPerGroup);
        const QRect strip(stripLeft, top, stripWidth, rowsPerGroup * rowHeight);
        painter.setPen(Qt::NoPen);
        painter.setBrush(stripColour(view_.area->area, group));
        painter.drawRoundedRect(strip, 2, 2);
        painter.setPen(Qt::white);
        painter.save();
        painter.translate(strip.left(), strip.bottom() + 1);
        painter.rotate(-90);
        const std::string_view name = view_.area->groups[static_cast<std::size_t>(group)];
        painter.drawText(QRect(0, 0, strip.height(), strip.width()), Qt::AlignCenter, textOf(name));
        painter.restore();
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void DumpGrid::paintRow(QPainter& painter, int row, const QRect& clip) {
    const QRect label(hexLeft + 4, topOfRow(row), 28, rowHeight);
    if (clip.intersects(label)) {
        painter.setPen(QColor::fromRgb(addressInk));
        painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(view_.rowText(row)));
    }
    for (int cell = row * cellsPerRow; cell < (row + 1) * cellsPerRow; ++cell) {
        const DumpCell& shown = view_.cells[static_cast<std::size_t>(cell)];
        const QRect hexPlace = cellRect(cell, Side::data);
        if (clip.intersects(hexPlace)) {
            painter.drawPixmap(hexPlace.topLeft(), glyphOf(Side::data, shown.red, shown.value));
        }
        const QRect asciiPlace = cellRect(cell, Side::ascii);
        if (clip.intersects(asciiPlace)) {
            painter.drawPixmap(asciiPlace.topLeft(), glyphOf(Side::ascii, shown.red, shown.value));
        }
        if (ring_ && cell == current_) {
            painter.setPen(QColor::fromRgb(look::focusLine));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(hexPlace.adjusted(0, 0, -1, -1));
        }
    }
}

// --- gestures ----------------------------------------------------------------------------------------------------------

void DumpGrid::mouseMoveEvent(QMouseEvent* event) {
    const auto hit = hitAt(event->position().toPoint());
    if (hit) {
        setCursor(doubleClickPointer());
        emit pointed(hit->cell);
    } else {
        unsetCursor();
        emit pointedNowhere();
    }
}

void DumpGrid::mousePressEvent(QMouseEvent* event) {
    if (const auto hit = hitAt(event->position().toPoint())) {
        current_ = hit->cell;
        ring_ = false;
        update();
    }
}

void DumpGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    if (const auto hit = hitAt(event->position().toPoint()); hit && event->button() == Qt::LeftButton) {
        emit doubleClicked(hit->cell, hit->side);
    }
}

void DumpGrid::walkTo(int cell) {
    const int before = current_;
    current_ = std::clamp(cell, 0, view_.area->cells - 1);
    ring_ = true;
    update(cellRect(before, Side::data));
    update(cellRect(current_, Side::data));
    emit pointed(current_);
}

void DumpGrid::keyPressEvent(QKeyEvent* event) {
    const int column = current_ % cellsPerRow;
    switch (event->key()) {
        case Qt::Key_Left: walkTo(current_ - 1); break;
        case Qt::Key_Right: walkTo(current_ + 1); break;
        case Qt::Key_Up: walkTo(current_ >= cellsPerRow ? current_ - cellsPerRow : current_); break;
        case Qt::Key_Down: walkTo(current_ + cellsPerRow < view_.area->cells ? current_ + cellsPerRow : current_); break;
        case Qt::Key_PageUp: walkTo(std::max(column, current_ - cellsPerGroup)); break;
        case Qt::Key_PageDown: walkTo(std::min(view_.area->cells - cellsPerRow + column, current_ + cellsPerGroup)); break;
        case Qt::Key_Home: walkTo(current_ - column); break;
        case Qt::Key_End: walkTo(current_ - column + cellsPerRow - 1); break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: emit doubleClicked(current_, Side::data); break;
        default: QWidget::keyPressEvent(event);
    }
}

void DumpGrid::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        walkTo(current_);
    }
}

void DumpGrid::focusOutEvent(QFocusEvent* /*event*/) {
    ring_ = false;
    update(cellRect(current_, Side::data));
    emit pointedNowhere();
}
