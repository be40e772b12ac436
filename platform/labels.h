// SPDX-License-Identifier: Apache-2.0
// Small helpers that every window with fixed labels needs.

#pragma once

#include <QFont>
#include <QRect>
#include <QString>

#include <string_view>

class QLabel;
class QWidget;

// A text of the model, which is UTF-8.
QString textOf(std::string_view text);

// A plain-text label under the name by which it is found.
QLabel* makeLabel(QWidget* parent, const QString& name, const QString& text, const QFont& font, const QRect& place);
