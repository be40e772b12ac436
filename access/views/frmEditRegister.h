// The dialog in which the learner writes a register, as a whole or one half.

#pragma once

#include "access/registers.h"
#include "platform/OvertypeField.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QPushButton;
class QRadioButton;

class frmEditRegister : public QDialog {
    Q_OBJECT

public:
    frmEditRegister(Machine& machine, QWidget* owner);

    // Prepares the dialog for a register and shows it, modal to the program, at `place`.
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
    bool event(QEvent* event) override;

private:
    void setupRegisterDialog();
    void showRegisterValue();
    Width width() const;
    int shownAddress() const;

    Machine& machine_;
    QString name_;
    int row_ = 0;
    int address_ = 0;
    Half half_ = Half::low;

    QLabel* lblAdr_;
    QLabel* lblBitInd_;
    std::array<QRadioButton*, 2> opnAccess_{};  // 0 16 bit, 1 8 bit
    OvertypeField* txtWriteData_;
    std::array<QPushButton*, 2> cmdAction_{};  // 0 Write, 1 Cancel
};
