// SPDX-License-Identifier: Apache-2.0
// The timing chart of a port's strobes.

#pragma once

#include "platform/ImageList.h"

#include <QWidget>

class frmOsiro : public QWidget {
    Q_OBJECT

public:
    explicit frmOsiro(QWidget* owner);

    // Shows chart 1 to 8: SSA and SSB 0/0, 1/0, 0/1, 1/1 of the QDA41 and QDA52, then of the QDA73. Any other number is
    // ignored.
    void initPicture(int index);
    int chart() const { return chart_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ImageList ilsOsiro_{"ilsOsiro"};
    int chart_ = 0;
};
