// SPDX-License-Identifier: Apache-2.0
// The bench as a set: the hardware window, the dialog of the serial input and the timing chart of the strobes. What they want
// from the rest of the program goes out as signals.

#pragma once

#include "core/answer.h"
#include "core/mduMain.h"
#include "platform/OnDemand.h"

#include <QObject>
#include <QPoint>

#include <functional>

class QMdiArea;
class frmEditSerial;
class frmHard;
class frmOsiro;

class BenchWindows : public QObject {
    Q_OBJECT

public:
    // The bench is a child of `area`; dialog and chart belong to `owner`, the main window.
    BenchWindows(Machine& machine, QMdiArea& area, QWidget& owner);
    ~BenchWindows() override;

    // The bench as the settings have it, at the top left of the area. Nothing happens if it is there already.
    void load();
    // Forgets the bench with all that was done to it, and what belongs to it.
    void unload();
    // The bench, from the machine.
    void refresh();
    // Pictures have come that were not there before.
    void reloadPictures();

    // Null until they are first asked for.
    frmHard* bench() const;
    frmEditSerial* serialDialog() const;
    frmOsiro* timingChartWindow() const;

signals:
    // What a gesture has to say: a warning, or a popup at the pointer.
    void said(const Answer& answer);
    // A question that decides what follows.
    void asked(const Warning& question, const std::function<void(bool yes)>& answered);
    void refreshWanted();
    // A dialog comes up: a popup would stand in its way.
    void messageInTheWay();
    void busTypeChanged();
    // The circuit diagram of a chip, by index of picQDA: shown, shown anew if it is up, or gone.
    void diagramWanted(int index);
    void diagramChanged(int index);
    void diagramGone();

private:
    frmHard* makeBench();
    frmEditSerial* makeSerialDialog();
    void enterSerialData(int index);
    void openTimingChart(int group, QPoint offset);
    void answerDuplex(const Answer& question);

    Machine& machine_;
    QMdiArea& area_;
    QWidget& owner_;
    OnDemand<frmHard> frmHard_;
    OnDemand<frmEditSerial> frmEditSerial_;
    OnDemand<frmOsiro> frmOsiro_;
};
