// SPDX-License-Identifier: Apache-2.0
#include "platform/look.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <gtest/gtest.h>

namespace {

// What is not set comes from the desktop's theme: light text on our light ground where the theme is dark.
TEST(TheLook, takes_no_colour_from_the_desktop) {
    const QPalette own = QApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            EXPECT_TRUE(role == QPalette::NoRole || own.isBrushSet(group, static_cast<QPalette::ColorRole>(role)))
                << "group " << group << " role " << role;
        }
    }
}

// The icons of a frame's menu are made late, and look as if they had been made at once: at each ratio, greyed or not, as a copy
// too.
TEST(TheLook, late_icons_are_the_style_s_own) {
    auto* style = qobject_cast<QProxyStyle*>(QApplication::style());
    ASSERT_NE(style, nullptr);
    const auto painted = [](const QIcon& icon) {
        QImage picture(40, 30, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        icon.paint(&painter, picture.rect(), Qt::AlignRight);
        return picture;
    };
    for (const auto kind : {QStyle::SP_TitleBarNormalButton, QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarMaxButton,
                            QStyle::SP_TitleBarCloseButton}) {
        const QIcon own = style->baseStyle()->standardIcon(kind);
        for (const qreal ratio : {1.0, 1.5, 2.0}) {
            for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
                const QPixmap wanted = own.pixmap({16, 16}, ratio, mode);
                const QPixmap late = style->standardIcon(kind).pixmap({16, 16}, ratio, mode);
                ASSERT_FALSE(late.isNull());
                EXPECT_EQ(late.toImage(), wanted.toImage()) << kind << " at " << ratio;
                EXPECT_EQ(late.devicePixelRatio(), wanted.devicePixelRatio());
            }
        }
        QIcon copy = style->standardIcon(kind);
        copy.detach();
        EXPECT_EQ(painted(copy), painted(own)) << kind;
        EXPECT_EQ(style->standardIcon(kind).availableSizes(), own.availableSizes());
        EXPECT_EQ(style->standardIcon(kind).actualSize({100, 100}), own.actualSize({100, 100}));
    }
}

}  // namespace
