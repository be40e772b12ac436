// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchScene.h"

#include "boards/views/BenchLabel.h"
#include "platform/labels.h"
#include "platform/look.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsSimpleTextItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <algorithm>

namespace {

constexpr qreal matHeight = -5;
constexpr qreal shadowHeight = -4;
constexpr qreal shadowOffset = 5;

// Lets `paint` paint the exposed part of a place in bands of few lines: a fill of 96 lines and more Qt deals out to threads, and
// waking them takes longer than the fill. Bands and neighbouring places meet on whole pixels at any zoom, so that none is painted
// twice.
template <typename Paint>
void paintInBands(QPainter& painter, const QRectF& place, const QRectF& exposed, Paint paint) {
    constexpr int lines = 80;
    const QTransform toPixels = painter.deviceTransform();
    const QTransform fromPixels = toPixels.inverted();
    const QRectF edges = toPixels.mapRect(place);
    const QRect pixels(QPoint(qRound(edges.left()), qRound(edges.top())),
                       QPoint(qRound(edges.right()) - 1, qRound(edges.bottom()) - 1));
    const QRect seen = toPixels.mapRect(exposed).toAlignedRect();
    painter.save();
    for (int top = pixels.top(); top <= pixels.bottom(); top += lines) {
        const QRect band = pixels & QRect(pixels.left(), top, pixels.width(), lines);
        if (band.intersects(seen)) {
            painter.setClipRect(fromPixels.mapRect(QRectF(band)));
            paint();
        }
    }
    painter.restore();
}

// A soft shadow, fading over its outer pixels. Of what lies under the card nothing is painted.
class Shadow : public QGraphicsItem {
public:
    explicit Shadow(const QRectF& card) : rect_(QPointF(), card.size()) {
        setPos(card.topLeft() + QPointF(shadowOffset, shadowOffset));
        setZValue(shadowHeight);
        setFlag(ItemUsesExtendedStyleOption);
    }
    QRectF boundingRect() const override { return rect_.adjusted(-1, -1, 1, 1); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* /*widget*/) override {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(0x14, 0x20, 0x26, 34));
        QRectF foot = boundingRect();
        QRectF right = foot;
        foot.setTop(rect_.bottom() - edge);
        right.setLeft(rect_.right() - edge);
        foot.setRight(right.left());
        for (const QRectF& part : {right, foot}) {
            paintInBands(*painter, part, option->exposedRect, [this, painter] { paintLayers(*painter); });
        }
    }

private:
    static constexpr qreal edge = 16;  // what the card leaves free, its round corners included

    void paintLayers(QPainter& painter) const {
        constexpr int layers = 4;
        constexpr qreal corner = 5;
        for (int layer = 0; layer < layers; ++layer) {
            painter.drawRoundedRect(rect_.adjusted(layer, layer, -layer, -layer), corner, corner);
        }
    }

    QRectF rect_;
};

// The drawing of a card, or of the mat.
class Drawing : public QGraphicsPixmapItem {
public:
    Drawing() {
        setTransformationMode(Qt::SmoothTransformation);
        setFlag(ItemUsesExtendedStyleOption);
    }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override {
        const QRectF place = boundingRect().adjusted(-1, -1, 1, 1);  // with the half pixels at its edges
        paintInBands(*painter, place, option->exposedRect, [&] { QGraphicsPixmapItem::paint(painter, option, widget); });
    }
};

}  // namespace

BenchScene::BenchScene(BenchPart::Reactions (*reactionsOf)(const PartRow& row)) : mat_(new Drawing) {
    addItem(mat_);
    mat_->setZValue(matHeight);
    makeCards();
    makeParts(reactionsOf);
    for (const LabelRow& row : benchLabels()) {
        labels_.push_back(new BenchLabel(row, cards_[row.card].picBoard));
    }
    makePortLabels();
}

void BenchScene::makeCards() {
    for (std::size_t card = 0; card < cardCount; ++card) {
        const CardRow& row = cardRows[card];
        if (row.drawing == nullptr) {
            continue;
        }
        cards_[card].picShadow = new Shadow(row.place);
        addItem(cards_[card].picShadow);
        cards_[card].picBoard = new Drawing;
        cards_[card].picBoard->setPos(row.place.topLeft());
        addItem(cards_[card].picBoard);
    }
    // The frame of the power LEDs explains itself as they do, print included.
    constexpr QRectF powerFrame{34, 20, 150, 42};
    auto* frame = new QGraphicsRectItem(powerFrame, cards_[card::panel].picBoard);
    frame->setPen(Qt::NoPen);
    frame->setToolTip(textOf(powerFrameTip));
}

void BenchScene::makeParts(BenchPart::Reactions (*reactionsOf)(const PartRow& row)) {
    for (const PartRow& row : benchParts()) {
        QGraphicsItem* card = row.card < cardCount ? cards_[row.card].picBoard : nullptr;
        auto* part = new BenchPart(row, images_, reactionsOf(row), card);
        if (card == nullptr) {
            addItem(part);  // in the order of the rows: what comes later lies over what comes before
        }
        connect(part, &BenchPart::touched, this, &BenchScene::touched);
        parts_.push_back(part);
    }
}

void BenchScene::makePortLabels() {
    for (const std::size_t index : {0U, 1U}) {
        constexpr QPointF place{5, 7};
        constexpr int pixelSize = 11;
        auto* text = new QGraphicsSimpleTextItem(QStringLiteral("RXD%1").arg(index + 1), part("picBOARD1_RXD", index));
        text->setFont(look::printFont(pixelSize));
        text->setBrush(Qt::white);
        text->setPos(place);
        text->setAcceptedMouseButtons(Qt::NoButton);
        text->hide();
        portLabels_[index] = text;
    }
}

BenchPart* BenchScene::part(std::string_view name, std::size_t index) const {
    const auto found = std::find_if(parts_.begin(), parts_.end(), [&](const BenchPart* candidate) {
        return candidate->row().index == index && candidate->row().family->name == name;
    });
    return found != parts_.end() ? *found : nullptr;
}

BenchLabel* BenchScene::label(std::string_view name, std::size_t index) const {
    const auto found = std::find_if(labels_.begin(), labels_.end(), [&](const BenchLabel* candidate) {
        return candidate->row().index == index && candidate->row().name == name;
    });
    return found != labels_.end() ? *found : nullptr;
}

int BenchScene::refresh(const Machine& machine) {
    int differing = 0;
    for (std::size_t card = 0; card < cardCount; ++card) {
        QGraphicsItem* board = cards_[card].picBoard;
        if (board != nullptr && board->isVisible() != cardVisible(machine, card)) {
            board->setVisible(!board->isVisible());
            cards_[card].picShadow->setVisible(board->isVisible());
            ++differing;
        }
    }
    for (BenchPart* part : parts_) {
        differing += part->refresh(machine) ? 1 : 0;
    }
    for (BenchLabel* label : labels_) {
        differing += label->refresh(machine) ? 1 : 0;
    }
    return differing;
}

void BenchScene::rescale(qreal scale) {
    if (images_.setScale(scale) || mat_->pixmap().isNull()) {
        reloadPictures();
    }
}

void BenchScene::reloadPictures() {
    images_.forget();
    mat_->setPixmap(images_.image("benchMat", 1));
    for (std::size_t card = 0; card < cardCount; ++card) {
        if (cards_[card].picBoard != nullptr) {
            cards_[card].picBoard->setPixmap(images_.image(cardRows[card].drawing, 1));
        }
    }
    for (BenchPart* part : parts_) {
        part->reloadPicture();
    }
}

void BenchScene::drawPortLabels() {
    for (QGraphicsItem* label : portLabels_) {
        label->show();
    }
}
