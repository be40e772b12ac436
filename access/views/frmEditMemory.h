// SPDX-License-Identifier: Apache-2.0
// The dialog in which the learner writes a word or a byte of the chip's memory, as the host CPU.

#pragma once

#include "access/memoryAccess.h"
#include "access/views/WriteDialog.h"

class frmEditMemory : public WriteDialog {
    Q_OBJECT

public:
    frmEditMemory(Machine& machine, QWidget* owner);

    // Prepares the dialog for a cell of a dump window and shows it at `place`.
    void openFor(Area area, const QString& rowText, int cell, QPoint place);

signals:
    // The cells of the word at `cell` that are being edited, to be shown in red; none when the dialog is over.
    void wordMarked(Area area, int cell, bool even, bool odd);
    // The dialog is over: the windows are to be refreshed.
    void refreshWanted();
    // The dialog has closed and this is what the write has to say.
    void answered(const Answer& answer);

public slots:
    void done(int result) override;

protected:
    void setupAccess() override { setupMemoryAccess(width()); }

private:
    void setupMemoryAccess(Width option);
    void showMemoryValue(Width option);

    Machine& machine_;
    Area area_ = Area::controlDoDi;
    QString rowText_;
    int cell_ = 0;
};
