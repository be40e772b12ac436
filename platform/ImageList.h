// SPDX-License-Identifier: Apache-2.0
// A one-based list of pictures that were rendered when building, at 1x, 2x and 3x. The picture for a screen is the next
// larger one, so that it stays crisp at every scale.

#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QString>

class ImageList {
public:
    // `name` is that of the drawing, such as "ilsMouse".
    explicit ImageList(QString name) : name_(std::move(name)) {}

    // Picture `number`, from 1, for a screen of this device pixel ratio. Null for a number outside the list.
    QPixmap image(int number, qreal devicePixelRatio = 1.0) const;

    // Picture `number` as a mouse pointer.
    QCursor cursor(int number, QPoint hotSpot) const;

private:
    QPixmap imageAt(int number, int scale) const;

    QString name_;
};

// The pointers that tell which gesture a control wants.
QCursor singleClickPointer();
QCursor doubleClickPointer();

// The program's own icon, in every size that a title bar, a task list or a switcher takes.
QIcon programIcon();
