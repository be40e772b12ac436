// SPDX-License-Identifier: Apache-2.0
// An item of the bench's picture: it shows the picture of its state, and hands on what the mouse and the keyboard do to it.

#pragma once

#include "boards/views/benchParts.h"
#include "platform/ImageList.h"

#include <QGraphicsObject>
#include <QPixmap>

#include <map>
#include <string>

// The pictures of the bench, loaded once each, for one scale of the screen.
class BenchImages {
public:
    // Pictures are for `scale` device pixels per pixel of the bench; true when that needs other pictures than before.
    bool setScale(qreal scale);
    // Other pictures have come for the same scale.
    void forget() { loaded_.clear(); }
    const QPixmap& image(const char* images, int number);

private:
    int scale_ = 1;
    std::map<std::pair<std::string, int>, QPixmap> loaded_;
};

// What the mouse or the keyboard did to a part. `down` and `up` come in pairs, wherever the pointer went in between.
enum class Touch : std::uint8_t { click, doubleClick, down, up };

class BenchPart : public QGraphicsObject {
    Q_OBJECT

public:
    // What a part reacts to. One without a double click takes every press of a fast series for a click.
    struct Reactions {
        bool click = false;
        bool doubleClick = false;
        bool held = false;          // a press counts, and its release
        bool heldByDouble = false;  // the second press of a double click counts, and its release
        bool any() const { return click || doubleClick || held || heldByDouble; }
    };

    BenchPart(const PartRow& row, BenchImages& images, Reactions reactions, QGraphicsItem* parent);

    const PartRow& row() const { return row_; }
    const Appearance& shown() const { return shown_; }
    const Reactions& reactions() const { return reactions_; }
    bool isHeld() const { return held_; }
    // The last touch came by keyboard.
    bool byKeyboard() const { return ring_; }

    // Brings picture, place and visibility into line with the machine; true when something differed.
    bool refresh(const Machine& machine);
    // Loads the picture anew, for another scale.
    void reloadPicture();
    // The pointer that tells the gesture; a part whose combo box is open wants a single click.
    void setPointer(Pointer pointer);
    // Ends a hold at once, as its release does.
    void letGo();

    // What a screen reader tells of it.
    QString spokenName() const;
    QString spokenState() const;
    // The action of Enter and Space, as one press and release.
    void actByKey();

    QRectF boundingRect() const override { return bounds_; }
    // The picture alone: what the ring needs around it belongs to the neighbours.
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

signals:
    void touched(BenchPart* part, Touch touch);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool sceneEvent(QEvent* event) override;

private:
    QRectF pictureRect() const { return {QPointF(), picture_.deviceIndependentSize()}; }
    void hold();
    void tellFocus();
    void tellState();

    const PartRow& row_;
    BenchImages& images_;
    Reactions reactions_;
    Appearance shown_;
    QPixmap picture_;
    QRectF bounds_;
    bool held_ = false;
    bool clickBegun_ = false;
    bool ring_ = false;  // the keyboard came here
};
