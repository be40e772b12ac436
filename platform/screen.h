// SPDX-License-Identifier: Apache-2.0
// Where a window may stand: wholly on the screen that holds its place, as far as it fits.

#pragma once

#include <QRect>

class QObject;
class QWidget;

// The part of the screen at `point` that windows may use; that of the first screen for a point outside all of them.
QRect usableScreen(QPoint point);

// `frame` moved by the least that brings it wholly onto the screen at its own middle.
QRect keptOnScreen(QRect frame);

// The size of a window with its frame; an estimate before the window was first shown.
QSize sizeWithFrame(const QWidget& window);

// Moves a window's frame to `place`, kept on the screen.
void placeWindow(QWidget& window, QPoint place);

// From now on every window that a screen leaves out of reach, because it has gone or become smaller, comes back onto one. As
// long as `context` lives.
void followScreens(QObject& context);

// Moves a window to the bottom right of its owner's screen, clear of the edge by what a task bar wants.
void placeBottomRight(QWidget& window);
