// SPDX-License-Identifier: Apache-2.0
// What the parts of the bench do when they are touched: one table, by name of the control. A gesture goes to one rule of the
// model; what it asks of other windows goes out as a signal.

#pragma once

#include "boards/views/BenchPart.h"
#include "core/answer.h"

#include <QPoint>

class BenchGestures : public QObject {
    Q_OBJECT

public:
    explicit BenchGestures(Machine& machine) : machine_(machine) {}

    static BenchPart::Reactions reactionsOf(const PartRow& part);
    void play(BenchPart* part, Touch touch);

    Machine& machine() { return machine_; }

signals:
    // The machine changed, and this is what its rule has to say.
    void played(const Answer& answer);
    // The combo box of a part is to come up or to go away.
    void comboWanted(BenchPart* part);
    void comboDone(BenchPart* part);
    // Signals of frmHard: they are told there.
    void duplexQuestion(const Answer& question);
    void chartWanted(int group, QPoint offset);
    void diagramWanted(int index);
    void diagramChanged(int index);
    void diagramGone();
    void serialWanted(int index);

private:
    Machine& machine_;
};
