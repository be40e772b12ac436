// The hardware window: the bench as the learner sees and touches it. It holds no rule of its own; a gesture goes to one rule
// of the model, and refresh() brings the pictures into line with the machine.
//
// Its width follows what there is to show: 7890 twips, or 13330 with the cascade card or the PWM panel, at zoom 1.

#pragma once

#include "boards/views/BenchPart.h"
#include "core/answer.h"
#include "platform/Timer.h"

#include <QMdiSubWindow>

#include <array>
#include <memory>

class BenchCombo;
class BenchView;
class QGraphicsScene;
class QGraphicsPixmapItem;
struct BenchComboRow;

class frmHard : public QMdiSubWindow {
    Q_OBJECT

public:
    explicit frmHard(Machine& machine, QWidget* area = nullptr);
    ~frmHard() override;

    // Brings every part into line with the machine; what didn't change isn't touched. Returns how many parts changed.
    int refresh();
    // Width by what there is to show; the height stays, as far as the area has room.
    void setFormWidth();

    // The machine starts anew without this window: open boxes take nothing over, and no gesture counts any more.
    void retire();

    Machine& machine() { return machine_; }
    BenchView& view() { return *view_; }
    // A part by name and index of its control; nullptr when there is none.
    BenchPart* part(std::string_view name, std::size_t index = 0);
    BenchLabel* label(std::string_view name, std::size_t index = 0);
    BenchCombo* combo(std::string_view name, std::size_t index = 0);
    Timer& timMotor() { return timMotor_; }

    // --- what the gesture table asks for -------------------------------------------------------------------------------
    // The machine changed, and this is what its rule has to say.
    void changed(const Answer& answer = {});
    void openCombo(BenchPart& part);
    void closeCombo(BenchPart& part);

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
    struct OpenCombo {
        const BenchComboRow* row;
        std::size_t index;
        BenchCombo* box;
        std::vector<BenchPart*> pictures;
    };

    void makeScene();
    void makeCards();
    void makeParts();
    void makeCombos();
    void onGesture(BenchPart* part, Gesture gesture);
    OpenCombo* comboOf(const BenchPart& part);
    void placeCombos();
    void drawPortLabels();
    void rescale();
    void fit();

    Machine& machine_;
    BenchImages images_;
    std::unique_ptr<QGraphicsScene> scene_;
    BenchView* view_ = nullptr;
    class Mat;
    Mat* mat_ = nullptr;
    struct Card {
        QGraphicsPixmapItem* picBoard = nullptr;
        QGraphicsItem* picShadow = nullptr;
    };
    std::array<Card, cardCount> cards_{};
    std::vector<BenchPart*> parts_;
    std::vector<BenchLabel*> labels_;
    std::array<QGraphicsItem*, 2> portLabels_{};
    std::vector<OpenCombo> combos_;
    bool retired_ = false;
    int width_ = 0;  // in twips, at zoom 1
    Timer timMotor_;
};
