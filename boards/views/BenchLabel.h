// SPDX-License-Identifier: Apache-2.0
// A label that the window writes on a card.

#pragma once

#include "boards/views/benchLabels.h"

#include <QFont>
#include <QGraphicsItem>

class BenchLabel : public QGraphicsItem {
public:
    BenchLabel(const LabelRow& row, QGraphicsItem* parent);

    const LabelRow& row() const { return row_; }
    QString text() const { return QString::fromUtf8(text_.data(), static_cast<qsizetype>(text_.size())); }
    // Brings text and visibility into line with the machine; true when something differed.
    bool refresh(const Machine& machine);

    QRectF boundingRect() const override { return bounds_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    const LabelRow& row_;
    QFont font_;
    std::string_view text_;
    bool visible_ = true;  // by its own row; a hidden card hides it all the same
    QRectF bounds_;
};
