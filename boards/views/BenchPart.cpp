#include "boards/views/BenchPart.h"

#include "boards/views/benchAccess.h"
#include "platform/labels.h"

#include <QCursor>
#include <QFontMetricsF>
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

QFont benchFont(int pixelSize, bool bold) {
    QFont font;
    font.setFamilies({"DejaVu Sans Condensed", "DejaVu Sans", "Segoe UI", "Helvetica Neue"});
    font.setStretch(QFont::SemiCondensed);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return font;
}

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

BenchPart::BenchPart(const PartRow& row, BenchImages& images, Answers answers, QGraphicsItem* parent)
    : QGraphicsObject(parent), row_(row), images_(images), answers_(answers) {
    setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(row.family->name)).arg(row.index));
    setPos(row.place);
    setPointer(row.pointer);
    setFlag(ItemIsFocusable, answers.any());
    setAcceptedMouseButtons(answers.any() ? Qt::LeftButton : Qt::NoButton);
}

void BenchPart::setPointer(Pointer pointer) {
    switch (pointer) {
        case Pointer::arrow: unsetCursor(); break;
        case Pointer::singleClick: setCursor(singleClickPointer()); break;
        case Pointer::doubleClick: setCursor(doubleClickPointer()); break;
    }
}

bool BenchPart::refresh(const Machine& machine) {
    const Look wanted = row_.family->look(machine, row_.index);
    if (wanted == look_) {
        return false;
    }
    const bool otherPicture = wanted.images != look_.images || wanted.number != look_.number;
    look_ = wanted;
    setPos(row_.place + look_.moved);
    setVisible(look_.visible);
    setToolTip(textOf(look_.tip != nullptr ? look_.tip : row_.tip));
    if (otherPicture) {
        reloadPicture();
    }
    tellState(*this);
    return true;
}

void BenchPart::reloadPicture() {
    if (look_.images == nullptr) {
        return;
    }
    picture_ = images_.image(look_.images, look_.number);
    const QRectF needed = QRectF(QPointF(), picture_.deviceIndependentSize()).adjusted(-ringGap, -ringGap, ringGap, ringGap);
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
        const QRectF ring(QPointF(), picture_.deviceIndependentSize());
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(ringEdge, 3));
        painter->drawRoundedRect(ring.adjusted(-1, -1, 1, 1), 3, 3);
        painter->setPen(QPen(ringColour, 1.5));
        painter->drawRoundedRect(ring.adjusted(-1, -1, 1, 1), 3, 3);
    }
}

QString BenchPart::spokenName() const {
    const QString name = row_.card < cardCount ? QLatin1String(cardRows[row_.card].caption) + QLatin1Char(' ') : QString();
    return name + objectName() + QLatin1Char(' ') + toolTip();
}

QString BenchPart::spokenState() const {
    const auto number = static_cast<std::size_t>(look_.number - 1);
    const char* state = number < row_.family->states.size() ? row_.family->states[number] : nullptr;
    if (state != nullptr) {
        return textOf(state);
    }
    // The positions of a rotary switch are its hexadecimal digits.
    return look_.images == std::string_view("ilsRSW") || look_.images == std::string_view("ilsDIP3")
               ? QString::number(look_.number - 1, 16).toUpper()
               : QString();
}

// --- gestures --------------------------------------------------------------------------------------------------------------

void BenchPart::hold() {
    held_ = true;
    emit gesture(this, Gesture::down);
}

void BenchPart::letGo() {
    if (held_) {
        held_ = false;
        emit gesture(this, Gesture::up);
    }
}

void BenchPart::mousePressEvent(QGraphicsSceneMouseEvent* event) {
    ring_ = false;
    setFocus(Qt::MouseFocusReason);
    clickBegun_ = true;
    if (answers_.held) {
        hold();
    }
    event->accept();
}

void BenchPart::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) {
    if (!answers_.doubleClick && !answers_.heldByDouble) {
        mousePressEvent(event);  // two clicks in a row are two clicks
        return;
    }
    clickBegun_ = false;
    event->accept();
    if (answers_.heldByDouble) {
        hold();
    } else {
        // A dialog may come up, and the release would then never arrive here.
        ungrabMouse();
        emit gesture(this, Gesture::doubleClick);
    }
}

void BenchPart::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) {
    letGo();
    const bool inside = QRectF(QPointF(), picture_.deviceIndependentSize()).contains(event->pos());
    if (clickBegun_ && inside && answers_.click) {
        emit gesture(this, Gesture::click);
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
    if (answers_.held || answers_.heldByDouble) {
        hold();
    } else {
        emit gesture(this, answers_.doubleClick ? Gesture::doubleClick : Gesture::click);
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
    tellFocus(*this);
    update();
}

void BenchPart::focusOutEvent(QFocusEvent* /*event*/) {
    letGo();
    update();
}

// --- a label ---------------------------------------------------------------------------------------------------------------

BenchLabel::BenchLabel(const LabelRow& row, QGraphicsItem* parent)
    : QGraphicsItem(parent), row_(row), font_(benchFont(row.pixelSize)) {
    setPos(row.place);
    setAcceptedMouseButtons(Qt::NoButton);
}

bool BenchLabel::refresh(const Machine& machine) {
    const std::string_view wanted = row_.text(machine, row_.index);
    const bool visible = row_.visible(machine, row_.index);
    if (wanted == text_ && visible == visible_) {
        return false;
    }
    visible_ = visible;
    setVisible(visible);
    if (wanted != text_) {
        constexpr qreal boxWidth = 40;
        constexpr qreal boxHeight = 11;
        prepareGeometryChange();
        text_ = wanted;
        const QFontMetricsF metrics(font_);
        const qreal width = metrics.horizontalAdvance(text());
        const qreal left = row_.align == Align::centre ? -width / 2 : 0;
        bounds_ = row_.boxed ? QRectF(-boxWidth / 2, -boxHeight + 2, boxWidth, boxHeight)
                             : QRectF(left, -metrics.ascent(), width + 1, metrics.height());
        update();
    }
    return true;
}

void BenchLabel::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/) {
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    if (row_.boxed) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(0xf3, 0xf7, 0xf1));
        painter->drawRoundedRect(bounds_, 1.5, 1.5);
    }
    painter->setFont(font_);
    painter->setPen(QColor::fromRgb(row_.colour));
    if (row_.boxed) {
        painter->drawText(bounds_, Qt::AlignCenter, text());
    } else {
        painter->drawText(QPointF(bounds_.left(), 0), text());
    }
}
