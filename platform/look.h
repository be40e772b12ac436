// SPDX-License-Identifier: Apache-2.0
// The one look of all windows: fonts by use, colours by role.

#pragma once

#include <QColor>
#include <QFont>

class QPainter;
class QRectF;
class QWidget;

namespace look {

// Names, buttons, captions.
QFont interfaceFont(int pixelSize = 12);
// Japanese running text, proportional.
QFont textFont(int pixelSize = 13);
// Japanese text in columns: a full-width character is twice as wide as a half-width one.
QFont columnFont(int pixelSize = 13);
// Hexadecimal and bits.
QFont hexFont(int pixelSize = 13);
// Print on the parts and cards, bold and condensed so that it fits at a legible size.
QFont printFont(int pixelSize);

inline constexpr QRgb ink = 0xff1d2a30;
inline constexpr QRgb secondInk = 0xff55636a;
inline constexpr QRgb faint = 0xff8a969c;
inline constexpr QRgb brandGreen = 0xff1f7348;
inline constexpr QRgb workspace = 0xffa9b5b1;
inline constexpr QRgb toolStrip = 0xffe4eae7;
inline constexpr QRgb windowFace = 0xffeef2f0;
inline constexpr QRgb zebra = 0xfff5f8f6;
inline constexpr QRgb popupFace = 0xffffffcc;
inline constexpr QRgb popupLine = 0xff8a7a2a;
inline constexpr QRgb hairline = 0xffc3cfc9;
inline constexpr QRgb focusLine = 0xff1c5fb0;
inline constexpr QRgb changed = 0xffff0000;
inline constexpr QRgb unchanged = 0xff000000;

// Takes the fonts that lie in a folder, for this program alone: before the first window. A folder that is missing, as where the
// system has the fonts, gives none.
void addFonts(const QString& folder);

// Whether the desktop has any font with Japanese characters; without one they come out as empty boxes.
bool japaneseFontFound();

// A filled ground with a line inside its edge; `radius` of its corners in pixels.
void paintPanel(QPainter& painter, QRectF place, QRgb fill, QRgb line, int radius = 0, int lineWidth = 1);
// The colour of a label's letters, of a widget's ground.
void setInk(QWidget& widget, QRgb colour);
void setGround(QWidget& widget, QRgb ground);

// Style, palette, font and icon of the application: the same on a dark desktop as on a light one.
void applyTo();

}  // namespace look
