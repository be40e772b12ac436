// SPDX-License-Identifier: Apache-2.0
#include "boards/views/BenchCombos.h"

#include "boards/comboLists.h"
#include "boards/views/BenchCombo.h"
#include "boards/views/BenchScene.h"
#include "boards/views/BenchView.h"
#include "platform/labels.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace {

constexpr int narrow = 76;
// A box leaves its picture free, but for the lower edge: a click there closes it.
constexpr qreal overlap = 4;

}  // namespace

struct BenchComboRow {
    std::string_view name;
    std::size_t index = 0;
    std::string_view picture;
    std::vector<std::size_t> pictures{0};
    int width = narrow;
    int shift = 0;  // to the left, where it would leave the card or go under the register window
    ItemList items;
    std::function<int(const Machine&)> listIndex;
    std::function<Answer(Machine&, int item)> commit;
    std::optional<int> diagram{};  // a circuit diagram that shows the setting
    bool busType = false;
    bool changesPointer = true;
};

namespace {

QStringList textsOf(const ItemList& items) {
    QStringList texts;
    for (int index = 0; index < items.count; ++index) {
        texts += textOf(items.item(index));
    }
    return texts;
}

template <Combo Machine::*combo>
int chosen(const Machine& machine) {
    return (machine.*combo).listIndex;
}

// A rule that has nothing to say.
template <auto rule>
Answer silently(Machine& machine, int item) {
    rule(machine, item);
    return {};
}

BenchComboRow addressRow(std::size_t board) {
    return {.name = "cmbSA",
            .index = board,
            .picture = "picSA",
            .pictures = {2 * board, 2 * board + 1},
            .items = initSACombos(),
            .listIndex = [board](const Machine& m) { return m.cmbSA[board].listIndex; },
            .commit = [board](Machine& m, int item) { return cmbSA_LostFocus(m, board, item); }};
}

std::vector<BenchComboRow> makeComboRows() {
    return {addressRow(saQDA41),
            addressRow(saQDA73),
            addressRow(saQDA52),
            {.name = "cmbClock41",
             .picture = "picClock",
             .pictures = {1},
             .shift = 14,
             .items = initClockCombos(),
             .listIndex = chosen<&Machine::cmbClock41>,
             .commit = silently<cmbClock41_LostFocus>},
            {.name = "cmbClock52",
             .picture = "picClock",
             .pictures = {3},
             .shift = 14,
             .items = initClockCombos(),
             .listIndex = chosen<&Machine::cmbClock52>,
             .commit = silently<cmbClock52_LostFocus>},
            {.name = "cmbBPS73",
             .picture = "picBPS73",
             .items = listOf<rateItems>(),
             .listIndex = chosen<&Machine::cmbBPS73>,
             .commit = silently<cmbBPS73_LostFocus>},
            {.name = "cmbCPUType",
             .picture = "picCPU",
             .width = 136,
             .shift = 44,
             .items = initCPUTypeCombo(),
             .listIndex = chosen<&Machine::cmbCPUType>,
             .commit = silently<cmbCPUType_LostFocus>,
             .diagram = 0,
             .busType = true},
            {.name = "cmbIOS",
             .picture = "picIOS",
             .width = 262,
             .shift = 110,
             .items = initIOSCombo(),
             .listIndex = chosen<&Machine::cmbIOS>,
             .commit = cmbIOS_LostFocus,
             .diagram = 4},
            {.name = "cmbMode",
             .picture = "picMode",
             .width = 126,
             .shift = 14,
             .items = initModeCombo(),
             .listIndex = chosen<&Machine::cmbMode>,
             .commit = [](Machine& m, int /*item*/) { return cmbMode_LostFocus(m); },
             .changesPointer = false}};
}

}  // namespace

BenchCombos::BenchCombos(Machine& machine, const BenchScene& scene, BenchView& view) : machine_(machine), view_(view) {
    static const std::vector<BenchComboRow> rows = makeComboRows();
    for (const BenchComboRow& row : rows) {
        make(row, scene);
    }
    place();
}

void BenchCombos::make(const BenchComboRow& row, const BenchScene& scene) {
    Placed placed{&row, new BenchCombo(textOf(row.name), textsOf(row.items), row.width, view_.viewport()), {}};
    for (const std::size_t picture : row.pictures) {
        placed.pictures.push_back(scene.part(row.picture, picture));
    }
    connect(placed.box, &BenchCombo::committed, this, [this, &row](int item) { commit(row, item); });
    if (row.changesPointer) {
        connect(placed.box, &BenchCombo::opened, this, [pictures = placed.pictures](bool open) {
            for (BenchPart* picture : pictures) {
                picture->setPointer(open ? Pointer::singleClick : Pointer::doubleClick);
            }
        });
    }
    boxes_.push_back(std::move(placed));
}

void BenchCombos::commit(const BenchComboRow& row, int item) {
    emit committed(row.commit(machine_, item));
    if (row.busType) {
        emit busTypeChanged();
    }
    if (row.diagram) {
        emit diagramChanged(*row.diagram);
    }
}

BenchCombo* BenchCombos::box(std::string_view name, std::size_t index) const {
    const auto found = std::find_if(boxes_.begin(), boxes_.end(), [&](const Placed& candidate) {
        return candidate.row->index == index && candidate.row->name == name;
    });
    return found != boxes_.end() ? found->box : nullptr;
}

const BenchCombos::Placed* BenchCombos::boxOf(const BenchPart* picture) const {
    const auto found = std::find_if(boxes_.begin(), boxes_.end(), [picture](const Placed& candidate) {
        return std::find(candidate.pictures.begin(), candidate.pictures.end(), picture) != candidate.pictures.end();
    });
    return found != boxes_.end() ? &*found : nullptr;
}

void BenchCombos::open(BenchPart* picture) {
    const Placed* placed = boxOf(picture);
    if (placed == nullptr) {
        return;
    }
    if (!placed->box->isOpen()) {
        placed->box->setAccessibleName(picture->spokenName());
        placed->box->open(placed->row->listIndex(machine_));
    }
    // A mouse goes to the box by itself.
    if (picture->byKeyboard()) {
        placed->box->setFocus(Qt::TabFocusReason);
    }
}

void BenchCombos::close(BenchPart* picture) {
    if (const Placed* placed = boxOf(picture)) {
        placed->box->close();
    }
}

void BenchCombos::cancel() {
    for (const Placed& placed : boxes_) {
        placed.box->cancel();
    }
}

void BenchCombos::place() {
    for (const Placed& placed : boxes_) {
        const QRectF picture = placed.pictures.front()->mapRectToScene(placed.pictures.front()->shape().boundingRect());
        placed.box->move(view_.mapFromScene(picture.bottomLeft() + QPointF(-placed.row->shift, -overlap)));
    }
}
