// SPDX-License-Identifier: Apache-2.0
// What the dialogs of the host CPU's writes have in common: the address, the choice between 16 and 8 bits, the overtyping
// field, "Write" and "Cancel". Modal to the program; the scan goes on behind it.

#pragma once

#include "access/registers.h"
#include "platform/OvertypeField.h"

#include <QDialog>

#include <array>

class QLabel;
class QPushButton;
class QRadioButton;

class WriteDialog : public QDialog {
    Q_OBJECT

public:
    WriteDialog(const char* name, const QString& title, OvertypeField::Case letters, QWidget* owner);

protected:
    // Chooses the width that the bus has, lets setupAccess fill the dialog, and shows it at `place`.
    void openAt(QPoint place, bool byteWide);
    // The width of the option now chosen.
    Width width() const;
    QString text() const { return txtWriteData_->text(); }
    // Lays the field out for the width and fills the dialog.
    void showAccess(const QString& address, const QString& bits, const QString& value);
    // A number as the dialog shows it.
    static QString hex(int value, int digits);
    // Fills the dialog for the option now chosen, with showAccess.
    virtual void setupAccess() = 0;

    bool event(QEvent* event) override;

private:
    void makeAccessFrame();
    void makeButtons();

    QLabel* lblAdr_;
    QLabel* lblBitInd_;
    std::array<QRadioButton*, 2> opnAccess_{};  // 0 16 bit, 1 8 bit
    OvertypeField* txtWriteData_;
    std::array<QPushButton*, 2> cmdAction_{};  // 0 Write, 1 Cancel
};
