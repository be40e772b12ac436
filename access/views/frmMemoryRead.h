// SPDX-License-Identifier: Apache-2.0
// The read dialog of an 8-bit bus: reads one byte at a time, through the read temporary buffer where hazard protection wants
// it. It stays open beside the other windows.

#pragma once

#include "core/mduMain.h"

#include <QDialog>

class OvertypeField;
class QLabel;

class frmMemoryRead : public QDialog {
    Q_OBJECT

public:
    frmMemoryRead(Machine& machine, QWidget* owner);

    // The starting state: nothing read yet. HPR and the read buffer stay as they are.
    void initReadMemory();

signals:
    void beepWanted();

private:
    void read();

    Machine& machine_;
    OvertypeField* txtAddress_;
    QLabel* lblAdr_;
    QLabel* lblData_;
    QLabel* lblGuide_;
};
