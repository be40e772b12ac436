// SPDX-License-Identifier: Apache-2.0
// An icon that is made when it is first painted: the menu of a window's frame has five of them, which have Qt look through all
// its decoders of pictures, and few learners ever open it.

#pragma once

#include <QIcon>
#include <QIconEngine>

#include <functional>

class LateIcon : public QIconEngine {
public:
    explicit LateIcon(std::function<QIcon()> make) : make_(std::move(make)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;

private:
    const QIcon& icon();

    std::function<QIcon()> make_;
    QIcon icon_;
};
