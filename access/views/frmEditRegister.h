// SPDX-License-Identifier: Apache-2.0
// The dialog in which the learner writes a register, as a whole or one half.

#pragma once

#include "access/registers.h"
#include "access/views/WriteDialog.h"

class frmEditRegister : public WriteDialog {
    Q_OBJECT

public:
    frmEditRegister(Machine& machine, QWidget* owner);

    // Prepares the dialog for a register and shows it at `place`.
    void openFor(const QString& name, int row, Half half, QPoint place);

signals:
    // The halves of the row that are being edited, to be shown in red; none when the dialog is over.
    void rowMarked(int row, bool high, bool low);
    // The write is done: the windows are to be refreshed.
    void written();
    // The dialog has closed and this is what the write has to say.
    void answered(const Answer& answer);
    // A write to HPR changed its low byte.
    void readProtectionChanged();

public slots:
    void done(int result) override;

protected:
    void setupAccess() override { setupRegisterDialog(); }

private:
    void setupRegisterDialog();
    void showRegisterValue();
    int shownAddress() const;

    Machine& machine_;
    QString name_;
    int row_ = 0;
    int address_ = 0;
    Half half_ = Half::low;
};
