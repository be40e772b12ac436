// SPDX-License-Identifier: Apache-2.0
// The combo boxes of the bench: one table of boxes, their lists, and the rules that take a choice over. A double click on a
// box's picture brings it up, a click makes it go; while it is there the picture has the pointer that says so.

#pragma once

#include "boards/views/BenchPart.h"
#include "core/answer.h"

class BenchCombo;
class BenchScene;
class BenchView;
struct BenchComboRow;

class BenchCombos : public QObject {
    Q_OBJECT

public:
    // The boxes stand in the view, over the pictures of its scene.
    BenchCombos(Machine& machine, const BenchScene& scene, BenchView& view);

    // The box by name and index of its control; nullptr when there is none.
    BenchCombo* box(std::string_view name, std::size_t index = 0) const;

    void open(BenchPart* picture);
    void close(BenchPart* picture);
    // Hides all boxes; nothing is taken over.
    void cancel();
    // Puts the boxes where their pictures are now.
    void place();

signals:
    // The machine changed, and this is what the rule has to say.
    void committed(const Answer& answer);
    // Signals of frmHard: they are told there.
    void diagramChanged(int index);
    void busTypeChanged();

private:
    struct Placed {
        const BenchComboRow* row = nullptr;
        BenchCombo* box = nullptr;
        std::vector<BenchPart*> pictures;  // either opens and closes the box; it stands at the first
    };

    void make(const BenchComboRow& row, const BenchScene& scene);
    void commit(const BenchComboRow& row, int item);
    const Placed* boxOf(const BenchPart* picture) const;

    Machine& machine_;
    BenchView& view_;
    std::vector<Placed> boxes_;
};
