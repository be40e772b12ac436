// SPDX-License-Identifier: Apache-2.0
#include "platform/look.h"

#include "platform/HouseStyle.h"
#include "platform/browser.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QPainter>
#include <QPalette>
#include <QToolTip>
#include <QWidget>

#include <algorithm>

namespace look {

namespace {

// The first family of a list that this machine has. Naming the others to Qt as well would have it look for substitutes of each
// font before the first letter needs one.
QString present(const QStringList& families) {
    const auto found =
        std::find_if(families.begin(), families.end(), [](const QString& name) { return QFontDatabase::hasFamily(name); });
    return found != families.end() ? *found : families.front();
}

QFont fontOf(const QStringList& families, int pixelSize, bool fixed = false) {
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(pixelSize);
    font.setHintingPreference(QFont::PreferVerticalHinting);  // the same widths on every platform
    if (fixed) {
        font.setStyleHint(QFont::Monospace);
        font.setFixedPitch(true);
    }
    return font;
}

// Debian's families first, then those of Windows and macOS.
const QString& japanese() {
    static const QString family = present({"IPAPGothic", "VRB PGothic", "Yu Gothic UI", "Meiryo", "MS PGothic", "Hiragino Sans",
                                           "Noto Sans CJK JP", "DejaVu Sans"});
    return family;
}

}  // namespace

QFont interfaceFont(int pixelSize) {
    static const QStringList families{present({"DejaVu Sans", "Segoe UI", "Helvetica Neue"}), japanese()};
    return fontOf(families, pixelSize);
}

QFont textFont(int pixelSize) {
    return fontOf({japanese()}, pixelSize);
}

QFont columnFont(int pixelSize) {
    static const QStringList families = [] {
        QStringList found{
            present({"IPAGothic", "VRB Gothic", "MS Gothic", "Osaka-Mono", "Noto Sans Mono CJK JP", "DejaVu Sans Mono"})};
        if constexpr (inBrowser) {
            found << japanese();  // whose kanji, as wide, are not sent twice
        }
        return found;
    }();
    return fontOf(families, pixelSize, true);
}

QFont hexFont(int pixelSize) {
    static const QStringList families{present({"DejaVu Sans Mono", "Consolas", "Menlo"})};
    return fontOf(families, pixelSize, true);
}

QFont printFont(int pixelSize) {
    static const QStringList families{present({"DejaVu Sans Condensed", "DejaVu Sans", "Segoe UI", "Helvetica Neue"})};
    QFont font = fontOf(families, pixelSize);
    if (!families.front().contains("Condensed")) {
        font.setStretch(QFont::SemiCondensed);  // Windows would narrow the narrow one again
    }
    font.setBold(true);
    return font;
}

void addFonts(const QString& folder) {
    const QDir fonts(folder);
    for (const QString& name : fonts.entryList({"*.ttf", "*.ttc", "*.otf"}, QDir::Files)) {
        QFontDatabase::addApplicationFont(fonts.filePath(name));
    }
}

bool japaneseFontFound() {
    return !QFontDatabase::families(QFontDatabase::Japanese).isEmpty();
}

void paintPanel(QPainter& painter, QRectF place, QRgb fill, QRgb line, int radius, int lineWidth) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, radius != 0);
    painter.setPen(QPen(QColor::fromRgb(line), lineWidth));
    painter.setBrush(QColor::fromRgb(fill));
    const double inset = lineWidth / 2.0;
    painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
    painter.restore();
}

void setInk(QWidget& widget, QRgb colour) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgb(colour));
    widget.setPalette(palette);
}

void setGround(QWidget& widget, QRgb ground) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, QColor::fromRgb(ground));
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

void applyTo() {
    QApplication::setStyle(new HouseStyle);
    // Made of these colours alone: a role that is left out would come from the desktop, light on light under a dark theme.
    QPalette palette(QColor::fromRgb(toolStrip), QColor::fromRgb(windowFace));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor::fromRgb(ink));
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor::fromRgb(zebra));
    palette.setColor(QPalette::ToolTipBase, QColor::fromRgb(popupFace));
    palette.setColor(QPalette::PlaceholderText, QColor::fromRgb(faint));
    palette.setColor(QPalette::Link, QColor::fromRgb(brandGreen));
    palette.setColor(QPalette::LinkVisited, QColor::fromRgb(brandGreen));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(brandGreen));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(faint));
    }
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    QApplication::setFont(interfaceFont());
}

}  // namespace look
