// SPDX-License-Identifier: Apache-2.0
#include "platform/look.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>

namespace look {

namespace {

// The first family of a list that the desktop has is taken: Debian's first, then those of Windows and macOS.
QFont fontOf(const QStringList& families, int pixelSize, bool fixed = false) {
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(pixelSize);
    font.setHintingPreference(QFont::PreferVerticalHinting);  // the same widths on every platform
    font.setStyleStrategy(QFont::NoSubpixelAntialias);        // coloured edges come out fat where the ground is painted later
    if (fixed) {
        font.setStyleHint(QFont::Monospace);
        font.setFixedPitch(true);
    }
    return font;
}

constexpr const char* styleSheet = R"(
    QMainWindow, QDialog, #frmRegister { background: #eef2f0; }
    QWidget#ToolBox { background: #e4eae7; border-bottom: 1px solid #c3cfc9; }
    ToolLabel {
        background: #fbfdfc; color: #1d2a30; border: 1px solid #a9b8b1; border-radius: 4px; padding: 0 10px;
        min-height: 26px; max-height: 26px;
    }
    ToolLabel:hover { background: #e4f1e9; border-color: #1f7348; }
    ToolLabel:pressed { background: #cfe4d8; }
    ToolLabel:focus { border: 2px solid #1c5fb0; padding: 0 9px; min-height: 24px; max-height: 24px; }
    ToolLabel[windowOpen="true"] { border-bottom: 3px solid #1f7348; min-height: 24px; max-height: 24px; }
    ToolLabel[tinted="true"] { background: #d9efe1; border-color: #9ccab2; font-weight: bold; }
    ToolLabel[runMode="true"] {
        background: #ffffc0; border: 1px solid #b9ab72; border-radius: 4px; padding: 0;
        min-height: 18px; max-height: 18px; min-width: 47px; max-width: 47px;
    }
    ToolLabel[runMode="true"]:focus {
        border: 2px solid #1c5fb0; min-height: 16px; max-height: 16px; min-width: 45px; max-width: 45px;
    }
    ToolLabel[runMode="true"]:checked {
        background: #ffa080; border: 2px solid #a8481f; font-weight: bold;
        min-height: 16px; max-height: 16px; min-width: 45px; max-width: 45px;
    }
    ToolLabel[runMode="true"]:checked:focus { border-color: #1c5fb0; }
    QPushButton[dialogButton="true"] {
        background: #fbfdfc; border: 1px solid #8fa098; border-radius: 4px; min-width: 74px; min-height: 24px;
    }
    QPushButton[dialogButton="true"]:default { background: #d9efe1; border-color: #1f7348; font-weight: bold; }
    QPushButton[dialogButton="true"]:hover { border-color: #1f7348; }
    QPushButton[dialogButton="true"]:pressed { background: #c3dccf; }
    QPushButton[dialogButton="true"]:focus { border: 2px solid #1c5fb0; min-width: 72px; min-height: 22px; }
    QPushButton[viewButton="true"] { background: #fbfdfc; border: 1px solid #a9b8b1; border-radius: 3px; padding: 0; }
    QPushButton[viewButton="true"]:checked { background: #d9efe1; border: 1px solid #1f7348; font-weight: bold; }
    QPushButton[viewButton="true"]:focus { border: 2px solid #1c5fb0; }
    QComboBox { combobox-popup: 0; }
    QToolTip { background: #ffffcc; color: #1d2a30; border: 1px solid #8a7a2a; padding: 2px 4px; }
)";

}  // namespace

QFont interfaceFont(int pixelSize) {
    return fontOf({"DejaVu Sans", "Segoe UI", "Helvetica Neue", "IPAPGothic", "Yu Gothic UI", "Hiragino Sans"}, pixelSize);
}

QFont textFont(int pixelSize) {
    return fontOf({"IPAPGothic", "Yu Gothic UI", "Meiryo", "MS PGothic", "Hiragino Sans", "Noto Sans CJK JP", "DejaVu Sans"},
                  pixelSize);
}

QFont columnFont(int pixelSize) {
    return fontOf({"IPAGothic", "MS Gothic", "Osaka-Mono", "Noto Sans Mono CJK JP", "DejaVu Sans Mono"}, pixelSize, true);
}

QFont narrowFont(int pixelSize) {
    const QString narrow = "DejaVu Sans Condensed";
    QFont font = fontOf({narrow, "DejaVu Sans", "Segoe UI", "Helvetica Neue"}, pixelSize);
    if (!QFontDatabase::hasFamily(narrow)) {
        font.setStretch(QFont::SemiCondensed);  // Windows would narrow the narrow one again
    }
    return font;
}

QFont hexFont(int pixelSize) {
    return fontOf({"DejaVu Sans Mono", "Consolas", "Menlo"}, pixelSize, true);
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

void applyTo(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
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
    QApplication::setFont(interfaceFont());
    application.setStyleSheet(styleSheet);
}

}  // namespace look
