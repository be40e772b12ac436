// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchPart.h"

#include "platform/labels.h"

#include <QAccessible>
#include <QCursor>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr QColor ringColour{0xff, 0xe0, 0x66};
constexpr QColor ringEdge{0x14, 0x2a, 0x3c};
constexpr qreal ringGap = 2.5;

bool isActionKey(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

}  // namespace

// --- pictures ------------------------------------------------------------------------------------------------------------

bool BenchImages::setScale(qreal scale) {
    const int wanted = std::clamp(static_cast<int>(std::ceil(scale - 0.01)), 1, 3);
    if (wanted == scale_) {
        return false;
    }
    scale_ = wanted;
    loaded_.clear();
    return true;
}

const QPixmap& BenchImages::image(const char* images, int number) {
    QPixmap& picture = loaded_[{images, number}];
    if (picture.isNull()) {
        picture = ImageList(QString::fromLatin1(images)).image(number, scale_);
    }
    return picture;
}

// --- a part --------------------------------------------------------------------------------------------------------------

BenchPart::BenchPart(const PartRow& row, BenchImages& images, Reactions reactions, QGraphicsItem* parent)
    : QGraphicsObject(parent), row_(row), images_(images), reactions_(reactions) {
    setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(row.family->name)).arg(row.index));
    setPos(row.place);
    setPointer(row.pointer);
    setFlag(ItemIsFocusable, reactions.any());
    setAcceptedMouseButtons(reactions.any() ? Qt::LeftButton : Qt::NoButton);
}

void BenchPart::setPointer(Pointer pointer) {
    switch (pointer) {
        case Pointer::arrow: unsetCursor(); break;
        case Pointer::singleClick: setCursor(singleClickPointer()); break;
        case Pointer::doubleClick: setCursor(doubleClickPointer()); break;
    }
}

bool BenchPart::refresh(const Machine& machine) {
    const Appearance wanted = row_.family->appearance(machine, row_.index);
    if (wanted == shown_) {
        return false;
    }
    const bool otherPicture = wanted.images != shown_.images || wanted.number != shown_.number;
    shown_ = wanted;
    setPos(row_.place + shown_.moved);
    setVisible(shown_.visible);
    setToolTip(textOf(shown_.tip != nullptr ? shown_.tip : row_.tip));
    if (otherPicture) {
        reloadPicture();
    }
    tellState();
    return true;
}

void BenchPart::reloadPicture() {
    if (shown_.images == nullptr) {
        return;
    }
    picture_ = images_.image(shown_.images, shown_.number);
    const QRectF needed = pictureRect().adjusted(-ringGap, -ringGap, ringGap, ringGap);
    if (needed != bounds_) {
        prepareGeometryChange();
        bounds_ = needed;
    }
    update();
}

void BenchPart::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/) {
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(QPointF(), picture_);
    if (ring_ && hasFocus()) {
        const QRectF ring = pictureRect().adjusted(-1, -1, 1, 1);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(ringEdge, 3));
        painter->drawRoundedRect(ring, 3, 3);
        painter->setPen(QPen(ringColour, 1.5));
        painter->drawRoundedRect(ring, 3, 3);
    }
}

QPainterPath BenchPart::shape() const {
    QPainterPath path;
    path.addRect(pictureRect());
    return path;
}

// --- for those who hear the bench ----------------------------------------------------------------------------------------

QString BenchPart::spokenName() const {
    const QString name = row_.card < cardCount ? QLatin1String(cardRows[row_.card].caption) + QLatin1Char(' ') : QString();
    return name + objectName() + QLatin1Char(' ') + toolTip();
}

QString BenchPart::spokenState() const {
    const auto number = static_cast<std::size_t>(shown_.number - 1);
    const char* state = number < row_.family->states.size() ? row_.family->states[number] : nullptr;
    if (state != nullptr) {
        return textOf(state);
    }
    // The positions of a rotary switch are its hexadecimal digits.
    return shown_.images == std::string_view("ilsRSW") || shown_.images == std::string_view("ilsDIP3")
               ? QString::number(shown_.number - 1, 16).toUpper()
               : QString();
}

void BenchPart::tellFocus() {
    if (QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

// Only for the part at work: a screen reader can't follow sixty LEDs.
void BenchPart::tellState() {
    if (hasFocus() && QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(this, spokenState());
        QAccessible::updateAccessibility(&event);
    }
}

// --- gestures --------------------------------------------------------------------------------------------------------------

void BenchPart::hold() {
    held_ = true;
    emit touched(this, Touch::down);
}

void BenchPart::letGo() {
    if (held_) {
        held_ = false;
        emit touched(this, Touch::up);
    }
}

void BenchPart::mousePressEvent(QGraphicsSceneMouseEvent* event) {
    ring_ = false;
    setFocus(Qt::MouseFocusReason);
    clickBegun_ = true;
    if (reactions_.held) {
        hold();
    }
    event->accept();
}

void BenchPart::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) {
    if (!reactions_.doubleClick && !reactions_.heldByDouble) {
        mousePressEvent(event);  // two clicks in a row are two clicks
        return;
    }
    clickBegun_ = false;
    event->accept();
    if (reactions_.heldByDouble) {
        hold();
    } else {
        // A dialog may come up, and the release would then never arrive here.
        ungrabMouse();
        emit touched(this, Touch::doubleClick);
    }
}

void BenchPart::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) {
    letGo();
    if (clickBegun_ && pictureRect().contains(event->pos()) && reactions_.click) {
        emit touched(this, Touch::click);
    }
    clickBegun_ = false;
}

bool BenchPart::sceneEvent(QEvent* event) {
    // The mouse may be taken away, by a dialog or another program: nothing stays held then. A release comes before this.
    if (event->type() == QEvent::UngrabMouse) {
        letGo();
    }
    return QGraphicsObject::sceneEvent(event);
}

void BenchPart::keyPressEvent(QKeyEvent* event) {
    if (!isActionKey(event->key()) || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
        event->ignore();
        return;
    }
    if (event->isAutoRepeat()) {
        return;
    }
    ring_ = true;
    if (reactions_.held || reactions_.heldByDouble) {
        hold();
    } else {
        emit touched(this, reactions_.doubleClick ? Touch::doubleClick : Touch::click);
    }
}

void BenchPart::keyReleaseEvent(QKeyEvent* event) {
    if (!isActionKey(event->key())) {
        event->ignore();
    } else if (!event->isAutoRepeat()) {
        letGo();
    }
}

void BenchPart::actByKey() {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    keyPressEvent(&press);
    letGo();
}

// The ring is for those who walk by keyboard; a mouse says where it is by its pointer.
void BenchPart::focusInEvent(QFocusEvent* event) {
    switch (event->reason()) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason: ring_ = true; break;
        case Qt::MouseFocusReason: ring_ = false; break;
        default: break;  // the focus comes back to where it was
    }
    tellFocus();
    update();
}

void BenchPart::focusOutEvent(QFocusEvent* /*event*/) {
    letGo();
    update();
}
