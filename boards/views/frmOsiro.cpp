// SPDX-License-Identifier: Apache-2.0
#include "boards/views/frmOsiro.h"

#include <QPainter>

namespace {

constexpr QSize chartSize{640, 360};
constexpr int charts = 8;

}  // namespace

frmOsiro::frmOsiro(QWidget* owner)
    : QWidget(owner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setObjectName("frmOsiro");
    setWindowTitle("STB解説");
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    setFixedSize(chartSize);
}

void frmOsiro::initPicture(int index) {
    if (index < 1 || index > charts || index == chart_) {
        return;
    }
    chart_ = index;
    update();
}

void frmOsiro::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (chart_ != 0) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), ilsOsiro_.image(chart_, devicePixelRatioF()));
    }
}
