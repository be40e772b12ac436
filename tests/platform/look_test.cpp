// SPDX-License-Identifier: Apache-2.0
#include "platform/look.h"

#include <QApplication>
#include <QPalette>
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

}  // namespace
