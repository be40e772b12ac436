#include "boards/views/frmHard.h"

#include "access/memoryAccess.h"
#include "boards/boardSet.h"
#include "boards/counters.h"
#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/stationCheck.h"
#include "boards/views/BenchCombo.h"
#include "boards/views/BenchView.h"
#include "boards/views/benchAccess.h"
#include "core/pwmOutput.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/twips.h"

#include <QCloseEvent>
#include <QGraphicsPixmapItem>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <functional>
#include <type_traits>

namespace {

// --- gestures ----------------------------------------------------------------------------------------------------------

using Handler = void (*)(frmHard& bench, BenchPart& part);

// A rule of the model as the handler of a gesture.
template <auto rule>
void play(frmHard& bench, BenchPart& part) {
    const auto call = [&] {
        if constexpr (std::is_invocable_v<decltype(rule), Machine&, std::size_t>) {
            return rule(bench.machine(), part.row().index);
        } else {
            return rule(bench.machine());
        }
    };
    if constexpr (std::is_void_v<decltype(call())>) {
        call();
        bench.changed();
    } else {
        bench.changed(call());
    }
}

// The timing chart of a port stands beside it.
void showTimingChart(frmHard& bench, std::size_t group) {
    struct Offset {
        int top, left;
    };
    constexpr std::array<Offset, slotCount> offsets{{{twips(7100), twips(7900)},
                                                     {twips(7100), twips(13300)},
                                                     {twips(4000), twips(7900)},
                                                     {twips(9000), twips(7900)},
                                                     {twips(9000), twips(7900)}}};
    emit bench.chartWanted(static_cast<int>(group), {offsets[group].left, offsets[group].top});
}

template <auto rule>
void playAndChart(frmHard& bench, BenchPart& part) {
    play<rule>(bench, part);
    showTimingChart(bench, part.row().index);
}

void chartOfStrobe(frmHard& bench, BenchPart& part) {
    showTimingChart(bench, part.row().index / 2);
}

void fitCard(frmHard& bench, BenchPart& part) {
    play<picFConn_DblClick>(bench, part);
    emit bench.diagramChanged(1);
}

void removeCard(frmHard& bench, BenchPart& part) {
    play<picBridge_DblClick>(bench, part);
    emit bench.diagramGone();
}

void askDuplex(frmHard& bench, BenchPart& /*part*/) {
    emit bench.duplexQuestion(picJumper_DblClick(bench.machine()));
}

void openCombo(frmHard& bench, BenchPart& part) {
    bench.openCombo(part);
}

void closeCombo(frmHard& bench, BenchPart& part) {
    bench.closeCombo(part);
}

void openDiagram(frmHard& bench, BenchPart& part) {
    emit bench.diagramWanted(static_cast<int>(part.row().index));
}

void openDriveDiagram(frmHard& bench, BenchPart& /*part*/) {
    emit bench.diagramWanted(4);
}

void enterSerialData(frmHard& bench, BenchPart& part) {
    emit bench.serialWanted(static_cast<int>(part.row().index));
}

// The gesture table. `down` is the press of a button that is held as long as the mouse button or the key; for most of them
// the press that counts is the second one of a double click.
enum class Press : std::uint8_t { none, first, second };
struct GestureRow {
    std::string_view name;
    Handler click = nullptr;
    Handler doubleClick = nullptr;
    Press press = Press::none;
    Handler down = nullptr;
    Handler up = nullptr;
};

constexpr std::array gestureRows{
    GestureRow{"picSA", closeCombo, openCombo},
    GestureRow{"picClock", closeCombo, openCombo},
    GestureRow{"picBPS73", closeCombo, openCombo},
    GestureRow{"picCPU", closeCombo, openCombo},
    GestureRow{"picIOS", closeCombo, openCombo},
    GestureRow{"picMode", closeCombo, openCombo},
    GestureRow{"picBPSS", nullptr, play<picBPSS_DblClick>},
    GestureRow{"picBOARD1_RXD", nullptr, play<picBOARD1_RXD_DblClick>},
    GestureRow{"picBOARD2_RXD", nullptr, play<picBOARD2_RXD_DblClick>},
    GestureRow{"picCableUp", play<picCableUp_Click>},
    GestureRow{"picCableDn", play<picCableDn_Click>},
    GestureRow{"picFConn", nullptr, fitCard},
    GestureRow{"picBridge", nullptr, removeCard},
    GestureRow{"picJumper", nullptr, askDuplex},
    GestureRow{"picReset", nullptr, nullptr, Press::second, play<picReset_DblClick>, play<picReset_MouseUp>},
    GestureRow{"picQDA", nullptr, openDiagram},
    GestureRow{"picPWM", nullptr, openDriveDiagram},
    GestureRow{"picPI", play<picPI_Click>},
    GestureRow{"picSSA", nullptr, playAndChart<picSSA_DblClick>},
    GestureRow{"picSSB", nullptr, playAndChart<picSSB_DblClick>},
    GestureRow{"picSTB", nullptr, chartOfStrobe},
    GestureRow{"picCLR", nullptr, nullptr, Press::second, play<picCLR_DblClick>, play<picCLR_MouseUp>},
    GestureRow{"picCounter", nullptr, nullptr, Press::first, play<picCounter_MouseDown>, play<picCounter_MouseUp>},
    GestureRow{"picNoise", nullptr, nullptr, Press::first, play<picNoise_MouseDown>, play<picNoise_MouseUp>},
    GestureRow{"picSDI", nullptr, enterSerialData},
};

const GestureRow* gesturesOf(const BenchPart& part) {
    const auto* row = std::find_if(gestureRows.begin(), gestureRows.end(),
                                   [&part](const GestureRow& candidate) { return candidate.name == part.row().family->name; });
    return row != gestureRows.end() ? row : nullptr;
}

BenchPart::Answers answersOf(const PartRow& part) {
    const auto* row = std::find_if(gestureRows.begin(), gestureRows.end(),
                                   [&part](const GestureRow& candidate) { return candidate.name == part.family->name; });
    // The oscillators with a fixed clock offer nothing.
    const bool fixedClock = part.family->name == std::string_view("picClock") && part.index % 2 == 0;
    if (row == gestureRows.end() || fixedClock) {
        return {};
    }
    return {row->click != nullptr, row->doubleClick != nullptr, row->press == Press::first, row->press == Press::second};
}

// --- what lies behind the parts --------------------------------------------------------------------------------------------

constexpr qreal shadowOffset = 5;

// A soft shadow, dense where the card lies and fading over its outer pixels.
class Shadow : public QGraphicsItem {
public:
    explicit Shadow(const QRectF& card) : rect_(QPointF(), card.size()) {
        setPos(card.topLeft() + QPointF(shadowOffset, shadowOffset));
    }
    QRectF boundingRect() const override { return rect_.adjusted(-1, -1, 1, 1); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/) override {
        constexpr int layers = 4;
        constexpr qreal corner = 5;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(0x14, 0x20, 0x26, 34));
        for (int layer = 0; layer < layers; ++layer) {
            painter->drawRoundedRect(rect_.adjusted(layer, layer, -layer, -layer), corner, corner);
        }
    }

private:
    QRectF rect_;
};

constexpr qreal shadowHeight = -4;

}  // namespace

// The mat behind the cards: one picture, that of the wide bench.
class frmHard::Mat : public QGraphicsPixmapItem {
public:
    Mat() { setZValue(-5); }
};

// --- the combo boxes -----------------------------------------------------------------------------------------------------

struct BenchComboRow {
    std::string_view name;
    std::size_t index;
    std::string_view picture;
    std::vector<std::size_t> pictures;  // either opens and closes the box; it stands over the first
    int width;
    int shift;  // to the left, where it would leave the card
    QStringList items;
    std::function<int(const Machine&)> listIndex;
    std::function<void(frmHard&, int)> commit;
    bool changesPointer = true;
};

namespace {

template <typename Items>
QStringList listOf(const Items& items) {
    QStringList list;
    for (const auto& item : items) {
        list += textOf(item);
    }
    return list;
}

QStringList addressList() {
    QStringList list;
    for (int item = 0; item < stationAddresses; ++item) {
        list += QString::fromStdString(addressItem(item));
    }
    return list;
}

QStringList modeList() {
    QStringList list;
    for (const IOSMode& mode : iosModes) {
        list += textOf(mode.caption);
    }
    return list;
}

// A commit that has nothing to say.
template <auto rule>
void commit(frmHard& bench, int item) {
    rule(bench.machine(), item);
    bench.changed();
}

std::vector<BenchComboRow> makeComboRows() {
    constexpr int narrow = 76;
    std::vector<BenchComboRow> rows;
    for (const std::size_t board : {saQDA41, saQDA73, saQDA52}) {
        rows.push_back({"cmbSA",
                        board,
                        "picSA",
                        {2 * board, 2 * board + 1},
                        narrow,
                        0,
                        addressList(),
                        [board](const Machine& m) { return m.cmbSA[board].listIndex; },
                        [board](frmHard& bench, int item) { bench.changed(cmbSA_LostFocus(bench.machine(), board, item)); }});
    }
    rows.push_back({"cmbClock41",
                    0,
                    "picClock",
                    {1},
                    narrow,
                    14,
                    listOf(clockItems),
                    [](const Machine& m) { return m.cmbClock41.listIndex; },
                    commit<cmbClock41_LostFocus>});
    rows.push_back({"cmbClock52",
                    0,
                    "picClock",
                    {3},
                    narrow,
                    14,
                    listOf(clockItems),
                    [](const Machine& m) { return m.cmbClock52.listIndex; },
                    commit<cmbClock52_LostFocus>});
    rows.push_back({"cmbBPS73",
                    0,
                    "picBPS73",
                    {0},
                    narrow,
                    0,
                    listOf(rateItems),
                    [](const Machine& m) { return m.cmbBPS73.listIndex; },
                    commit<cmbBPS73_LostFocus>});
    rows.push_back({"cmbCPUType",
                    0,
                    "picCPU",
                    {0},
                    136,
                    20,
                    listOf(cpuTypeNames),
                    [](const Machine& m) { return m.cmbCPUType.listIndex; },
                    [](frmHard& bench, int item) {
                        commit<cmbCPUType_LostFocus>(bench, item);
                        emit bench.busTypeChanged();
                        emit bench.diagramChanged(0);
                    }});
    rows.push_back({"cmbIOS",
                    0,
                    "picIOS",
                    {0},
                    262,
                    110,
                    modeList(),
                    [](const Machine& m) { return m.cmbIOS.listIndex; },
                    [](frmHard& bench, int item) {
                        bench.changed(cmbIOS_LostFocus(bench.machine(), item));
                        emit bench.diagramChanged(4);
                    }});
    rows.push_back({"cmbMode",
                    0,
                    "picMode",
                    {0},
                    126,
                    14,
                    listOf(modeItems),
                    [](const Machine& m) { return m.cmbMode.listIndex; },
                    [](frmHard& bench, int /*item*/) { bench.changed(cmbMode_LostFocus(bench.machine())); },
                    false});
    return rows;
}

}  // namespace

// --- the window ------------------------------------------------------------------------------------------------------------

frmHard::frmHard(Machine& machine, QWidget* area)
    : QMdiSubWindow(area, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      machine_(machine),
      scene_(std::make_unique<QGraphicsScene>()),
      view_(new BenchView(scene_.get(), this)) {
    setObjectName("frmHard");
    setWidget(view_);
    setWindowTitle("HardWare");
    setAttribute(Qt::WA_DeleteOnClose, false);
    makeBenchAccessible();
    makeScene();
    makeCombos();
    connect(view_, &BenchView::zoomed, this, &frmHard::rescale);
    connect(view_, &BenchView::scrolled, this, &frmHard::placeCombos);
    connect(this, &QMdiSubWindow::windowStateChanged, this, [this](Qt::WindowStates /*before*/, Qt::WindowStates now) {
        if (now & Qt::WindowActive) {
            drawPortLabels();
        }
    });
    connect(&timMotor_, &Timer::timeout, this, [this] {
        timMotor_Timer(machine_);
        refresh();
    });
    rescale();
    refresh();
    setFormWidth();
}

frmHard::~frmHard() {
    view_->setScene(nullptr);  // the scene goes first
}

void frmHard::makeScene() {
    mat_ = new Mat;
    scene_->addItem(mat_);
    makeCards();
    makeParts();
    for (const LabelRow& row : benchLabels()) {
        labels_.push_back(new BenchLabel(row, cards_[row.card].picBoard));
    }
    for (const std::size_t index : {0U, 1U}) {
        constexpr QPointF place{4, 7};
        constexpr int pixelSize = 12;
        auto* text = new QGraphicsSimpleTextItem(QStringLiteral("RXD%1").arg(index + 1), part("picBOARD1_RXD", index));
        text->setFont(benchFont(pixelSize));
        text->setBrush(Qt::white);
        text->setPos(place);
        text->setAcceptedMouseButtons(Qt::NoButton);
        text->hide();
        portLabels_[index] = text;
    }
}

void frmHard::makeCards() {
    for (std::size_t card = 0; card < cardCount; ++card) {
        const CardRow& row = cardRows[card];
        if (row.drawing == nullptr) {
            continue;
        }
        cards_[card].picShadow = new Shadow(row.place);
        cards_[card].picShadow->setZValue(shadowHeight);
        scene_->addItem(cards_[card].picShadow);
        cards_[card].picBoard = new QGraphicsPixmapItem;
        cards_[card].picBoard->setPos(row.place.topLeft());
        cards_[card].picBoard->setTransformationMode(Qt::SmoothTransformation);
        scene_->addItem(cards_[card].picBoard);
    }
    // The frame of the power LEDs explains itself as they do, print included.
    constexpr QRectF powerFrame{34, 20, 150, 42};
    auto* frame = new QGraphicsRectItem(powerFrame, cards_.back().picBoard);
    frame->setPen(Qt::NoPen);
    frame->setToolTip(textOf(powerFrameTip));
}

void frmHard::makeParts() {
    for (const PartRow& row : benchParts()) {
        QGraphicsItem* card = row.card < cardCount ? cards_[row.card].picBoard : nullptr;
        auto* part = new BenchPart(row, images_, answersOf(row), card);
        if (card == nullptr) {
            scene_->addItem(part);  // in the order of the rows: what comes later lies over what comes before
        }
        connect(part, &BenchPart::gesture, this, &frmHard::onGesture);
        parts_.push_back(part);
    }
    view_->setParts(parts_);
}

void frmHard::makeCombos() {
    static const std::vector<BenchComboRow> rows = makeComboRows();
    for (const BenchComboRow& row : rows) {
        auto* box = new BenchCombo(textOf(row.name), row.items, row.width, view_->viewport());
        OpenCombo combo{&row, row.index, box, {}};
        for (const std::size_t picture : row.pictures) {
            combo.pictures.push_back(part(row.picture, picture));
        }
        connect(box, &BenchCombo::committed, this, [this, &row](int item) { row.commit(*this, item); });
        connect(box, &BenchCombo::opened, this, [this, combo](bool open) {
            for (BenchPart* picture : combo.pictures) {
                picture->setPointer(open && combo.row->changesPointer ? Pointer::singleClick : Pointer::doubleClick);
            }
            if (!open && combo.pictures.front()->byKeyboard()) {
                view_->setFocus(Qt::OtherFocusReason);
                combo.pictures.front()->setFocus(Qt::TabFocusReason);
            }
        });
        combos_.push_back(combo);
    }
    placeCombos();
}

BenchPart* frmHard::part(std::string_view name, std::size_t index) {
    const auto* found = std::find_if(parts_.data(), parts_.data() + parts_.size(), [&](const BenchPart* candidate) {
        return candidate->row().index == index && candidate->row().family->name == name;
    });
    return found != parts_.data() + parts_.size() ? *found : nullptr;
}

BenchLabel* frmHard::label(std::string_view name, std::size_t index) {
    const auto found = std::find_if(labels_.begin(), labels_.end(), [&](const BenchLabel* candidate) {
        return candidate->row().index == index && candidate->row().name == name;
    });
    return found != labels_.end() ? *found : nullptr;
}

BenchCombo* frmHard::combo(std::string_view name, std::size_t index) {
    const auto found = std::find_if(combos_.begin(), combos_.end(), [&](const OpenCombo& candidate) {
        return candidate.index == index && candidate.row->name == name;
    });
    return found != combos_.end() ? found->box : nullptr;
}

// --- showing ---------------------------------------------------------------------------------------------------------------

int frmHard::refresh() {
    int differing = 0;
    for (std::size_t card = 0; card < cardCount; ++card) {
        QGraphicsItem* board = cards_[card].picBoard;
        if (board != nullptr && board->isVisible() != cardVisible(machine_, card)) {
            board->setVisible(!board->isVisible());
            cards_[card].picShadow->setVisible(board->isVisible());
            ++differing;
        }
    }
    for (BenchPart* part : parts_) {
        differing += part->refresh(machine_) ? 1 : 0;
    }
    for (BenchLabel* label : labels_) {
        differing += label->refresh(machine_) ? 1 : 0;
    }
    if (timMotor_.interval() != machine_.timMotorInterval) {
        timMotor_.setInterval(machine_.timMotorInterval);
    }
    if (width_ != formWidth(machine_)) {
        setFormWidth();
    }
    return differing;
}

void frmHard::setFormWidth() {
    width_ = formWidth(machine_);
    fit();
}

void frmHard::fit() {
    const QMargins frame = contentsMargins();
    const qreal zoom = view_->zoom();
    int width = qRound((twips(width_) - frame.left() - frame.right()) * zoom) + frame.left() + frame.right();
    const int height = qRound(benchSize.height() * zoom) + frame.top() + frame.bottom();
    const QWidget* area = parentWidget();
    const QSize room = area != nullptr ? area->size() : QSize(width, height);
    if (height > room.height()) {
        width += view_->verticalScrollBar()->sizeHint().width();  // the bar takes nothing away from the cards
    }
    view_->setHorizontalScrollBarPolicy(width > room.width() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    scene_->setSceneRect(0, 0, twips(width_) - frame.left() - frame.right(), benchSize.height());
    setFixedSize(std::min(width, room.width()), std::min(height, room.height()));
    placeCombos();
}

void frmHard::rescale() {
    const qreal scale = devicePixelRatioF() * view_->zoom();
    if (images_.setScale(scale) || mat_->pixmap().isNull()) {
        mat_->setPixmap(images_.image("benchMat", 1));
        for (std::size_t card = 0; card < cardCount; ++card) {
            if (cards_[card].picBoard != nullptr) {
                cards_[card].picBoard->setPixmap(images_.image(cardRows[card].drawing, 1));
            }
        }
        for (BenchPart* part : parts_) {
            part->reloadPicture();
        }
    }
    fit();
}

void frmHard::retire() {
    retired_ = true;
    timMotor_.setEnabled(false);
    for (const OpenCombo& combo : combos_) {
        combo.box->cancel();
    }
}

void frmHard::drawPortLabels() {
    for (QGraphicsItem* label : portLabels_) {
        label->show();
    }
}

void frmHard::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    placeCombos();
}

void frmHard::closeEvent(QCloseEvent* event) {
    event->ignore();  // the bench stays as long as the program runs
}

bool frmHard::event(QEvent* event) {
    if (event->type() == QEvent::ParentChange && parentWidget() != nullptr) {
        parentWidget()->installEventFilter(this);
    }
    return QMdiSubWindow::event(event);
}

bool frmHard::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        fit();
    }
    return QMdiSubWindow::eventFilter(watched, event);
}

// --- gestures ------------------------------------------------------------------------------------------------------------

void frmHard::onGesture(BenchPart* part, Gesture gesture) {
    const GestureRow* row = gesturesOf(*part);
    Handler handler = nullptr;
    switch (gesture) {
        case Gesture::click: handler = row->click; break;
        case Gesture::doubleClick: handler = row->doubleClick; break;
        case Gesture::down: handler = row->down; break;
        case Gesture::up: handler = row->up; break;
    }
    if (handler != nullptr && !retired_) {
        handler(*this, *part);
    }
}

void frmHard::changed(const Answer& answer) {
    refresh();
    emit refreshWanted();
    emit answered(answer);
}

frmHard::OpenCombo* frmHard::comboOf(const BenchPart& part) {
    const auto found = std::find_if(combos_.begin(), combos_.end(), [&part](const OpenCombo& combo) {
        return std::find(combo.pictures.begin(), combo.pictures.end(), &part) != combo.pictures.end();
    });
    return found != combos_.end() ? &*found : nullptr;
}

void frmHard::openCombo(BenchPart& part) {
    const OpenCombo* combo = comboOf(part);
    if (combo == nullptr) {
        return;
    }
    if (!combo->box->isOpen()) {
        combo->box->open(combo->row->listIndex(machine_));
    }
    // A mouse goes to the box by itself.
    if (part.byKeyboard()) {
        combo->box->setFocus(Qt::TabFocusReason);
    }
}

void frmHard::closeCombo(BenchPart& part) {
    if (const OpenCombo* combo = comboOf(part)) {
        combo->box->close();
    }
}

void frmHard::placeCombos() {
    for (const OpenCombo& combo : combos_) {
        constexpr qreal down = 4;
        const BenchPart& picture = *combo.pictures.front();
        combo.box->move(view_->mapFromScene(picture.scenePos() + QPointF(-combo.row->shift, down)));
    }
}
