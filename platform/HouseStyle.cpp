// SPDX-License-Identifier: Apache-2.0
#include "platform/HouseStyle.h"

#include "platform/LateIcon.h"
#include "platform/look.h"

#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>

#include <array>

namespace {

constexpr const char* useProperty = "buttonUse";
constexpr const char* footProperty = "buttonFoot";
constexpr int footHeight = 3;

ButtonUse useOf(const QWidget* button) {
    return button == nullptr ? ButtonUse::dialog : static_cast<ButtonUse>(button->property(useProperty).toInt());
}

enum class When { always, isDefault, hovered, pressed, checked, focused, checkedAndFocused };

// The looks of a button in the order in which they are laid over each other; 0 leaves what lies below.
struct Coat {
    ButtonUse use;
    When when;
    QRgb fill;
    QRgb line;
    int lineWidth;
    bool bold;
};

constexpr QRgb paper = 0xfffbfdfc;
constexpr QRgb mint = 0xffd9efe1;
constexpr QRgb ordinaryLine = 0xffa9b8b1;

constexpr auto coats = std::to_array<Coat>({
    {ButtonUse::dialog, When::always, paper, 0xff8fa098, 1, false},
    {ButtonUse::dialog, When::isDefault, mint, look::brandGreen, 0, true},
    {ButtonUse::dialog, When::hovered, 0, look::brandGreen, 0, false},
    {ButtonUse::dialog, When::pressed, 0xffc3dccf, 0, 0, false},
    {ButtonUse::dialog, When::focused, 0, look::focusLine, 2, false},
    {ButtonUse::view, When::always, paper, ordinaryLine, 1, false},
    {ButtonUse::view, When::checked, mint, look::brandGreen, 0, true},
    {ButtonUse::view, When::focused, 0, look::focusLine, 2, false},
    {ButtonUse::tool, When::always, paper, ordinaryLine, 1, false},
    {ButtonUse::tool, When::hovered, 0xffe4f1e9, look::brandGreen, 0, false},
    {ButtonUse::tool, When::pressed, 0xffcfe4d8, 0, 0, false},
    {ButtonUse::tool, When::focused, 0, look::focusLine, 2, false},
    {ButtonUse::tintedTool, When::always, mint, 0xff9ccab2, 1, true},
    {ButtonUse::tintedTool, When::hovered, 0, look::brandGreen, 0, true},
    {ButtonUse::tintedTool, When::pressed, 0xffc3dccf, 0, 0, true},
    {ButtonUse::tintedTool, When::focused, 0, look::focusLine, 2, true},
    {ButtonUse::runMode, When::always, 0xffffffc0, 0xffb9ab72, 1, false},
    {ButtonUse::runMode, When::focused, 0, look::focusLine, 2, false},
    {ButtonUse::runMode, When::checked, 0xffffa080, 0xffa8481f, 2, true},
    {ButtonUse::runMode, When::checkedAndFocused, 0, look::focusLine, 2, true},
});

bool holds(When when, const QStyleOptionButton& button) {
    const auto in = [&button](QStyle::State state) { return (button.state & state) == state; };
    switch (when) {
        case When::isDefault: return (button.features & QStyleOptionButton::DefaultButton) != 0;
        case When::hovered: return in(QStyle::State_MouseOver | QStyle::State_Enabled);
        case When::pressed: return in(QStyle::State_Sunken);
        case When::checked: return in(QStyle::State_On);
        case When::focused: return in(QStyle::State_HasFocus);
        case When::checkedAndFocused: return in(QStyle::State_On | QStyle::State_HasFocus);
        default: return true;
    }
}

Coat coatOf(const QStyleOptionButton& button, ButtonUse use) {
    Coat whole{use, When::always, 0, 0, 0, false};
    for (const Coat& coat : coats) {
        if (coat.use == use && holds(coat.when, button)) {
            whole.fill = coat.fill != 0 ? coat.fill : whole.fill;
            whole.line = coat.line != 0 ? coat.line : whole.line;
            whole.lineWidth = coat.lineWidth != 0 ? coat.lineWidth : whole.lineWidth;
            whole.bold = whole.bold || coat.bold;
        }
    }
    return whole;
}

// Margins around the caption, and the least size inside the line. The places of run modes and views are set by their windows.
struct Measures {
    int margin = 0;
    QSize least;
};

Measures measuresOf(ButtonUse use) {
    return use == ButtonUse::dialog ? Measures{14, {74, 24}} : Measures{10, {0, 26}};
}

}  // namespace

void setButtonUse(QPushButton& button, ButtonUse use) {
    button.setProperty(useProperty, static_cast<int>(use));
    if (use == ButtonUse::tintedTool) {
        QFont bold = button.font();
        bold.setBold(true);
        button.setFont(bold);
    }
}

void setButtonFoot(QPushButton& button, bool foot) {
    button.setProperty(footProperty, foot);
    button.update();
}

HouseStyle::HouseStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != CE_PushButton || button == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const ButtonUse use = useOf(widget);
    const Coat coat = coatOf(*button, use);
    const int radius = use == ButtonUse::view ? 3 : 4;
    painter->save();
    look::paintPanel(*painter, button->rect, coat.fill, coat.line, radius, coat.lineWidth);
    if (widget != nullptr && widget->property(footProperty).toBool()) {
        painter->setClipRect(button->rect.adjusted(0, button->rect.height() - footHeight, 0, 0));
        look::paintPanel(*painter, button->rect, look::brandGreen, look::brandGreen, radius);
        painter->setClipping(false);
    }
    if (coat.bold) {
        QFont bold = painter->font();
        bold.setBold(true);
        painter->setFont(bold);
    }
    proxy()->drawControl(CE_PushButtonLabel, option, painter, widget);
    painter->restore();
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    if (element == PE_PanelTipLabel) {
        look::paintPanel(*painter, option->rect, look::popupFace, look::popupLine);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
    if (type != CT_PushButton) {
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
    const Measures measures = measuresOf(useOf(widget));
    constexpr QSize line{2, 2};
    return (contents + QSize(2 * measures.margin, 0)).expandedTo(measures.least) + line;
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    return metric == PM_ToolTipLabelFrameWidth ? 3 : QProxyStyle::pixelMetric(metric, option, widget);
}

QIcon HouseStyle::standardIcon(StandardPixmap kind, const QStyleOption* option, const QWidget* widget) const {
    const bool ofFrameMenu = kind == SP_TitleBarNormalButton || kind == SP_TitleBarMinButton || kind == SP_TitleBarMaxButton ||
                             kind == SP_TitleBarCloseButton;
    if (ofFrameMenu && option == nullptr) {
        return QIcon(new LateIcon([kind, style = baseStyle()] { return style->standardIcon(kind); }));
    }
    return QProxyStyle::standardIcon(kind, option, widget);
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const {
    // A list as long as it is told, at its box, instead of a menu over the height of the screen.
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}
