// SPDX-License-Identifier: Apache-2.0
// The sign of a page's promises, and the mark of a finished tour: a ring or a check mark, told apart by their shapes.

#pragma once

#include "aids/tourWatch.h"

#include <QIcon>
#include <QWidget>

class NaviSign : public QWidget {
public:
    static constexpr int size = 13;

    using QWidget::QWidget;

    void setSign(TourSign sign);
    TourSign sign() const { return sign_; }

    // The sign as an icon; an empty one of the same size for none.
    static QIcon icon(TourSign sign);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TourSign sign_ = TourSign::none;
};
