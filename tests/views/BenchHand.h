// SPDX-License-Identifier: Apache-2.0
// The learner's hand on the bench: real mouse events at the place where a part is seen.

#pragma once

#include "boards/views/BenchView.h"
#include "boards/views/frmHard.h"

#include <QTest>
#include <gtest/gtest.h>

class BenchHand {
public:
    explicit BenchHand(frmHard& bench) : bench_(bench) {}

    BenchPart& part(std::string_view name, std::size_t index = 0) const {
        BenchPart* found = bench_.part(name, index);
        EXPECT_NE(found, nullptr) << name << index;
        return *found;
    }
    QWidget* viewport() const { return bench_.view().viewport(); }
    QPoint at(const BenchPart& part) const { return bench_.view().mapFromScene(part.sceneBoundingRect().center()); }

    void press(const BenchPart& part) const { QTest::mousePress(viewport(), Qt::LeftButton, {}, at(part)); }
    void release(QPoint place) const { QTest::mouseRelease(viewport(), Qt::LeftButton, {}, place); }
    void click(const BenchPart& part) const { QTest::mouseClick(viewport(), Qt::LeftButton, {}, at(part)); }
    // Press, release, and the second press; the release is the caller's.
    void doublePress(const BenchPart& part) const {
        press(part);
        release(at(part));
        const QPointF place = at(part);
        QMouseEvent second(QEvent::MouseButtonDblClick, place, viewport()->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                           {});
        QApplication::sendEvent(viewport(), &second);
    }
    void doubleClick(const BenchPart& part) const {
        doublePress(part);
        release(at(part));
    }

private:
    frmHard& bench_;
};
