// SPDX-License-Identifier: Apache-2.0
// How the controls are drawn: Qt's Fusion with push buttons of this program. Drawn by a style and not by a style sheet, because a
// sheet is matched against every widget that is made, and a third of the start went into that.

#pragma once

#include <QProxyStyle>

class QPushButton;

// What a push button is for; a button that nobody asked about is one of a dialog.
enum class ButtonUse { dialog, view, tool, tintedTool, runMode };

// Before the button is shown. A tinted tool speaks in bold letters.
void setButtonUse(QPushButton& button, ButtonUse use);
// The green foot of a label whose window is open.
void setButtonFoot(QPushButton& button, bool foot);

class HouseStyle : public QProxyStyle {
public:
    HouseStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap kind, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const override;
};
