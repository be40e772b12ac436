// SPDX-License-Identifier: Apache-2.0
// The dialog of the serial input: the learner types a word, sees its waveform, and sends it; the waveform then moves out into
// the board. Modal to the program; the scan goes on behind it.
//
//   Set      draws the waveform and allows Start
//   Start    sends the digits that the field now shows, whatever Set has drawn
//   Cancel   closes without a word, and so do Escape and the close box, also while the word goes out

#pragma once

#include "platform/Timer.h"

#include <QDialog>

#include <array>

class OvertypeField;
class QLabel;
class QPushButton;
class SerialWave;

class frmEditSerial : public QDialog {
    Q_OBJECT

public:
    explicit frmEditSerial(QWidget* owner);

    // Opens for circuit 0 or 1 with the digits of the time before, its frame at `place` on the screen.
    void openFor(int index, QPoint place);

    enum Action : std::size_t { actionSet, actionCancel, actionStart };
    QPushButton& cmdAction(Action action) { return *cmdAction_[action]; }
    OvertypeField& txtWriteData() { return *txtWriteData_; }
    Timer& timEnter() { return timEnter_; }
    QWidget& picDREQ_Data();

signals:
    // The word begins to go out.
    void started(int index);
    // The dialog has closed: with the digits that went out, or empty.
    void closed(int index, const QString& sentText);

public slots:
    void done(int result) override;

private:
    void makeEntry();
    void makeCircuit();
    void setWave();
    void startShift();
    void timEnter_Timer();

    int index_ = 0;
    QString sentText_;
    QLabel* lblAdr_ = nullptr;
    OvertypeField* txtWriteData_ = nullptr;
    std::array<QPushButton*, 3> cmdAction_{};
    SerialWave* picDREQ_Data_ = nullptr;
    Timer timEnter_;
};
