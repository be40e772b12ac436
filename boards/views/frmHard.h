// SPDX-License-Identifier: Apache-2.0
// The hardware window: the bench as the learner sees and touches it. It holds no rule of its own; a gesture goes to one rule
// of the model, and refresh() brings the pictures into line with the machine.
//
//   BenchScene      what is shown: cards, parts and labels, each bound to the machine
//   BenchView       zoom, and the walk by keyboard
//   BenchGestures   what a touch of a part does
//   BenchCombos     the settings that are chosen from a list
//
// Its width follows what there is to show: 7890 twips, or 13330 with the cascade card or the PWM panel, at zoom 1.

#pragma once

#include "boards/views/BenchCombos.h"
#include "boards/views/BenchGestures.h"
#include "boards/views/BenchLabel.h"
#include "platform/Timer.h"

#include <QMdiSubWindow>

#include <memory>

class frmHard : public QMdiSubWindow {
    Q_OBJECT

public:
    explicit frmHard(Machine& machine, QWidget* area = nullptr);
    ~frmHard() override;

    // Brings every part into line with the machine; what didn't change isn't touched. Returns how many parts changed.
    int refresh();
    // Pictures have come that were not there before.
    void reloadPictures();
    // Width by what there is to show; the height stays, as far as the area has room.
    void setFormWidth();

    // The machine starts anew without this window: open boxes take nothing over, and no gesture counts any more.
    void retire();

    // The machine changed, and this is what its rule has to say.
    void changed(const Answer& answer = {});

    BenchView& view() { return *view_; }
    // A part by name and index of its control; nullptr when there is none.
    BenchPart* part(std::string_view name, std::size_t index = 0);
    BenchLabel* label(std::string_view name, std::size_t index = 0);
    BenchCombo* combo(std::string_view name, std::size_t index = 0) { return combos_->box(name, index); }
    Timer& timMotor() { return timMotor_; }

signals:
    void refreshWanted();
    void answered(const Answer& answer);
    // The question before all boards change their duplex.
    void duplexQuestion(const Answer& question);
    // The timing chart of a port, 0 to 4, in the window at these offsets from this window's corner.
    void chartWanted(int group, QPoint offset);
    // The circuit diagram of a chip, by index of picQDA.
    void diagramWanted(int index);
    // A setting that diagram `index` shows has changed.
    void diagramChanged(int index);
    // The cascade card was removed: an open diagram goes.
    void diagramGone();
    void busTypeChanged();
    void serialWanted(int index);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void wire();
    void rescale();
    void fit();

    Machine& machine_;
    std::unique_ptr<BenchScene> scene_;
    BenchView* view_ = nullptr;
    BenchGestures gestures_;
    std::unique_ptr<BenchCombos> combos_;
    bool retired_ = false;
    int width_ = 0;  // in twips, at zoom 1
    Timer timMotor_;
};
