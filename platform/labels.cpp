// SPDX-License-Identifier: Apache-2.0
#include "platform/labels.h"

#include <QLabel>

QString textOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QLabel* makeLabel(QWidget* parent, const QString& name, const QString& text, const QFont& font, const QRect& place) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setGeometry(place);
    return label;
}
