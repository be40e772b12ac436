// SPDX-License-Identifier: Apache-2.0
// The picture of the bench: the mat, the cards with their shadows, and all parts and labels on them, each bound to the machine
// by its row.

#pragma once

#include "boards/views/BenchPart.h"

#include <QGraphicsScene>

class BenchLabel;

class BenchScene : public QGraphicsScene {
    Q_OBJECT

public:
    // `reactionsOf` tells what the part of a row reacts to.
    explicit BenchScene(BenchPart::Reactions (*reactionsOf)(const PartRow& row));

    // A part or label by name and index of its control; nullptr when there is none.
    BenchPart* part(std::string_view name, std::size_t index = 0) const;
    BenchLabel* label(std::string_view name, std::size_t index = 0) const;
    // In the order of the walk by keyboard.
    const std::vector<BenchPart*>& parts() const { return parts_; }

    // Brings everything into line with the machine; what didn't change isn't touched. Returns how many things changed.
    int refresh(const Machine& machine);
    // Takes pictures for this many device pixels per pixel of the bench.
    void rescale(qreal scale);
    void reloadPictures();
    // "RXD1" and "RXD2" on the connectors of the center board, which come with the window's first activation.
    void drawPortLabels();

signals:
    void touched(BenchPart* part, Touch touch);

private:
    void makeCards();
    void makeParts(BenchPart::Reactions (*reactionsOf)(const PartRow& row));
    void makePortLabels();

    struct Card {
        QGraphicsPixmapItem* picBoard = nullptr;
        QGraphicsItem* picShadow = nullptr;
    };
    BenchImages images_;
    QGraphicsPixmapItem* mat_ = nullptr;  // behind the cards: one picture, that of the wide bench
    std::array<Card, cardCount> cards_{};
    std::vector<BenchPart*> parts_;
    std::vector<BenchLabel*> labels_;
    std::array<QGraphicsItem*, 2> portLabels_{};
};
