// SPDX-License-Identifier: Apache-2.0
// The main window's area, the desk on which the windows lie. Where nothing lies on it, one quiet line tells a newcomer where to
// begin.

#pragma once

#include <QMdiArea>

class DeskArea : public QMdiArea {
    Q_OBJECT

public:
    explicit DeskArea(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
