// The items of the bench's picture: a part, which shows the picture of its state and hands gestures on, and a label.

#pragma once

#include "boards/views/benchParts.h"
#include "platform/ImageList.h"

#include <QFont>
#include <QGraphicsObject>
#include <QPixmap>

#include <map>
#include <string>

// The pictures of the bench, loaded once each, for one scale of the screen.
class BenchImages {
public:
    // Pictures are for `scale` device pixels per pixel of the bench; true when that needs other pictures than before.
    bool setScale(qreal scale);
    const QPixmap& image(const char* images, int number);

private:
    int scale_ = 1;
    std::map<std::pair<std::string, int>, QPixmap> loaded_;
};

// What the mouse or the keyboard did to a part. `down` and `up` come in pairs, wherever the pointer went in between.
enum class Gesture : std::uint8_t { click, doubleClick, down, up };

class BenchPart : public QGraphicsObject {
    Q_OBJECT

public:
    // Which gestures a part answers to. One without a double click takes every press of a fast series for a click.
    struct Answers {
        bool click = false;
        bool doubleClick = false;
        bool held = false;          // a press counts, and its release
        bool heldByDouble = false;  // the second press of a double click counts, and its release
        bool any() const { return click || doubleClick || held || heldByDouble; }
    };

    BenchPart(const PartRow& row, BenchImages& images, Answers answers, QGraphicsItem* parent);

    const PartRow& row() const { return row_; }
    const Look& shown() const { return look_; }
    const Answers& answers() const { return answers_; }
    bool isHeld() const { return held_; }
    // The last gesture came by keyboard.
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
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

signals:
    void gesture(BenchPart* part, Gesture gesture);

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
    void hold();

    const PartRow& row_;
    BenchImages& images_;
    Answers answers_;
    Look look_;
    QPixmap picture_;
    QRectF bounds_;
    bool held_ = false;
    bool clickBegun_ = false;
    bool ring_ = false;  // the keyboard came here
};

class BenchLabel : public QGraphicsItem {
public:
    BenchLabel(const LabelRow& row, QGraphicsItem* parent);

    const LabelRow& row() const { return row_; }
    QString text() const { return QString::fromUtf8(text_.data(), static_cast<qsizetype>(text_.size())); }
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

// Print on the parts and cards, condensed so that it fits at a legible size.
QFont benchFont(int pixelSize, bool bold = true);
