// SPDX-License-Identifier: Apache-2.0
// Every widget, part and label that the learner can meet, as one text: class, name, place, words, tool tip, pointer, font, ink;
// and every kind of button in every state. It is compared with windows.approved.txt, which a person has read. After a change that
// is meant:
//
//   VRB_APPROVE=1 build/release/tests/window_tests --gtest_filter='Windows.*'
//
// writes the file anew; read its difference before it is committed. Left out is what the fonts of a machine decide: the places
// of what a layout places, the width of what is as wide as its text.

#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/views/BenchLabel.h"
#include "boards/views/frmOsiro.h"
#include "platform/HouseStyle.h"
#include "platform/ImageList.h"
#include "tests/views/desk.h"

#include <QComboBox>
#include <QGraphicsSimpleTextItem>
#include <QLayout>
#include <QMdiSubWindow>
#include <QPainter>
#include <QStyleOption>

#include <map>

namespace {

QString placeText(const QRect& place) {
    return QStringLiteral("%1,%2 %3x%4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
}

QString pointerText(const QCursor& cursor) {
    if (cursor.shape() != Qt::BitmapCursor) {
        return cursor.shape() == Qt::ArrowCursor ? QString() : QStringLiteral(" pointer %1").arg(cursor.shape());
    }
    const QImage picture = cursor.pixmap().toImage();
    return picture == singleClickPointer().pixmap().toImage()   ? " click"
           : picture == doubleClickPointer().pixmap().toImage() ? " double-click"
                                                                : " another pointer";
}

// The place, as far as no font has a say in it.
QString placeOf(const QWidget& widget) {
    const bool windowOfTextSize = widget.inherits("frmMessage") || widget.inherits("frmDialog") || widget.inherits("QMessageBox");
    const QWidget* parent = widget.isWindow() ? nullptr : widget.parentWidget();
    if (parent != nullptr && parent->inherits("frmDialog") && widget.inherits("QPushButton")) {
        return QStringLiteral(" middle %1, foot %2").arg(widget.x() - parent->width() / 2).arg(widget.y() - parent->height());
    }
    if (const QLayout* layout = widget.layout(); layout != nullptr && !widget.inherits("QMdiSubWindow")) {
        const QMargins in = layout->contentsMargins();
        return QStringLiteral(" margins %1 %2 %3 %4").arg(in.left()).arg(in.top()).arg(in.right()).arg(in.bottom());
    }
    if (windowOfTextSize || (parent != nullptr && (parent->layout() != nullptr || parent->inherits("frmDialog")))) {
        return {};
    }
    const QRect place(widget.isWindow() ? widget.frameGeometry().topLeft() : widget.pos(), widget.size());
    if (widget.inherits("RegisterCell")) {
        return QStringLiteral(" y %1 h %2").arg(place.y()).arg(place.height());
    }
    if (widget.inherits("QLabel") && place.size() == widget.sizeHint()) {
        const bool centred = parent != nullptr && std::abs(place.center().x() - parent->rect().center().x()) < 2;
        return centred ? QStringLiteral(" centred y %1").arg(place.y()) : QStringLiteral(" %1,%2").arg(place.x()).arg(place.y());
    }
    return " " + placeText(place);
}

QString itemsText(const QAbstractItemModel* list) {
    constexpr int all = 10;
    QStringList items;
    for (int row = 0; row < list->rowCount(); ++row) {
        items += list->index(row, 0).data().toString();
    }
    return items.size() <= all ? items.join(" | ")
                               : QStringLiteral("%1 | %2 ... %3 (%4)").arg(items[0], items[1], items.last()).arg(items.size());
}

QString wordsOf(const QWidget& widget) {
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        return itemsText(list->model()) + QStringLiteral(" shows %1").arg(list->maxVisibleItems());
    }
    if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
        return itemsText(list->model());
    }
    if (const auto* cell = dynamic_cast<const RegisterCell*>(&widget)) {
        return cell->text();
    }
    if (widget.objectName().startsWith("tabHint")) {
        return {};  // as much of its name as the font lets stand
    }
    for (const char* name : {"text", "title", "windowTitle"}) {
        if (const QString words = widget.property(name).toString(); !words.isEmpty()) {
            return words;
        }
    }
    return {};
}

QString stateOf(const QWidget& widget) {
    QString text;
    const auto add = [&text](bool so, const char* word) { text += so ? QStringLiteral(" ") + word : QString(); };
    add(widget.isHidden(), "hidden");
    add(!widget.isEnabled(), "disabled");
    add(widget.property("checked").toBool(), "checked");
    add(widget.property("default").toBool(), "default");
    if (widget.isWindow()) {
        add((widget.windowFlags() & Qt::WindowStaysOnTopHint) != 0, "topmost");
        add((widget.windowFlags() & Qt::FramelessWindowHint) != 0, "frameless");
        add(widget.isModal(), "modal");
    } else if (widget.focusPolicy() != Qt::NoFocus) {
        add(true, widget.focusPolicy() == Qt::StrongFocus ? "keys" : widget.focusPolicy() == Qt::TabFocus ? "Tab" : "wheel");
    }
    const bool framed = widget.isWindow() || widget.inherits("QMdiSubWindow");
    add(framed && (widget.windowFlags() & Qt::WindowMinimizeButtonHint) != 0, "minimizes");
    add(framed && (widget.windowFlags() & Qt::WindowCloseButtonHint) != 0, "closes");
    if (const QPalette& own = widget.palette(); own != QApplication::palette()) {
        text += " ink " + own.color(QPalette::WindowText).name() + " on " + own.color(QPalette::Window).name();
    }
    return text + (widget.testAttribute(Qt::WA_SetCursor) ? pointerText(widget.cursor()) : QString());
}

class Windows : public Desk {
protected:
    void openEverything();
    void describe(const QWidget& widget, int depth = 0);
    void describeBench();
    void describeButtons();
    std::map<QString, QString> partsNow();
    void line(int depth, const QString& words) {
        text += QString(2 * depth, ' ') + QString(words).replace('\n', " / ").trimmed() + '\n';
    }

    QString text;
};

void Windows::openEverything() {
    makeFile("NaviData/NaviIndex.txt", "a.txt\tTour\t-\n");
    makeFile("NaviData/a.txt", "a#blue\n\\red\n\n2\n2\n\n");
    giveFolder(VRB_BIN "/HintData");
    giveFolder(VRB_BIN "/Kairozu");
    start(withHintsAndDump);
    // The tour first: it starts the machine anew.
    program->aids().openNaviList();
    program->aids().naviList()->cmdStart().click();
    main().timTick().setEnabled(false);
    setMemoryWord(machine(), reg::c2crLow, 0x5AA3);
    fire();
    for (const Area area : {Area::c1ToC7, Area::drc, Area::controlDoDi}) {
        program->memory().openArea(area);
    }
    emit bench().diagramWanted(0);
    emit bench().chartWanted(0, {100, 200});
    emit bench().serialWanted(0);
    machine().cpuType = 1;
    click(Tool::memoryWindow);
    click(program->memory().chooser()->cmdAREA(frmDumpSel::memoryRead));
    machine().cpuType = 0;
    openRegister(3, frmRegister::valLow);
    emit dump(Area::drc).cellDoubleClicked(Area::drc, 0, DumpGrid::Side::ascii, {300, 400});
    program->settings().open();
    program->aids().openVersion();
    program->aids().say(Popup{"x"});
    program->aids().say(Warning{"質問", "題", Warning::Kind::okCancel});
    main().close();
    settle();
}

void Windows::describe(const QWidget& widget, int depth) {
    const QString words = wordsOf(widget);
    QString said = widget.accessibleName() != words ? widget.accessibleName() : QString();
    said += widget.accessibleDescription().isEmpty() ? "" : ": " + widget.accessibleDescription();
    const bool hasWords = !words.isEmpty() || widget.inherits("QLabel");
    const QFont font = widget.font();
    line(depth, QStringLiteral("%1 %2%3%4%5%6%7%8")
                    .arg(widget.metaObject()->className(), widget.objectName(), placeOf(widget), stateOf(widget),
                         hasWords ? QStringLiteral(" %1%2").arg(font.pixelSize()).arg(font.bold() ? "b" : "") : QString(),
                         words.isEmpty() ? "" : " \"" + words + '"', said.isEmpty() ? "" : " said \"" + said + '"',
                         widget.toolTip().isEmpty() ? "" : " tip \"" + widget.toolTip() + '"'));
    if (const auto* child = qobject_cast<const QMdiSubWindow*>(&widget)) {
        child->objectName() == "frmHard" ? describeBench() : describe(*child->widget(), depth + 1);
    } else if (const auto* area = qobject_cast<const QMdiArea*>(&widget)) {
        for (const QMdiSubWindow* each : area->subWindowList()) {
            describe(*each, depth + 1);
        }
    }
    if (widget.inherits("QComboBox") || widget.inherits("QLineEdit") || widget.inherits("QMdiSubWindow") ||
        (widget.inherits("QAbstractScrollArea") && !widget.inherits("QMdiArea"))) {
        return;
    }
    for (const QWidget* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const bool ofQt = child->objectName().startsWith("qt_") || child->inherits("QScrollBar");
        const auto* area = qobject_cast<const QMdiArea*>(&widget);
        if (!child->isWindow() && !ofQt && (area == nullptr || child != area->viewport())) {
            describe(*child, depth + 1);
        }
    }
}

// Each part by its name: what it shows, where, and what it tells.
std::map<QString, QString> Windows::partsNow() {
    std::map<QString, QString> parts;
    for (const BenchPart* part : bench().view().parts()) {
        const QRectF place = part->mapRectToScene(part->shape().boundingRect());
        const BenchPart::Reactions& on = part->reactions();
        QString does = on.click ? " on click" : "";
        does += QLatin1String(on.doubleClick    ? " on double click"
                              : on.held         ? " held"
                              : on.heldByDouble ? " held by double click"
                                                : "");
        QString print;
        for (const QGraphicsItem* child : part->childItems()) {
            if (const auto* label = dynamic_cast<const QGraphicsSimpleTextItem*>(child); label != nullptr && label->isVisible()) {
                print += " print \"" + label->text() + '"';
            }
        }
        parts[part->objectName()] =
            QStringLiteral("%1%2 %3:%4%5%6%7%8 \"%9\"")
                .arg(part->isVisible() ? "" : "hidden ", placeText(place.toRect()), part->shown().images)
                .arg(part->shown().number)
                .arg(part->spokenState().isEmpty() ? "" : " said \"" + part->spokenState() + '"',
                     part->hasCursor() ? pointerText(part->cursor()) : QString(), does, print, part->toolTip());
    }
    for (const LabelRow& row : benchLabels()) {
        const BenchLabel& label = *bench().label(row.name, row.index);
        const QRectF box = label.boundingRect();
        const QPointF at = label.scenePos();
        const bool centred = std::abs(box.left() + box.right()) < 2;
        const QString align = row.boxed ? " box " + placeText(box.toRect()) : centred ? " centred" : "";
        const QString look = QStringLiteral("%1,%2%3 \"%4\"").arg(at.x()).arg(at.y()).arg(align, label.text());
        parts[QStringLiteral("%1(%2)").arg(row.name).arg(row.index)] = (label.isVisible() ? "" : "hidden ") + look;
    }
    return parts;
}

// The maker's bench whole, and what other settings change on it.
void Windows::describeBench() {
    for (const BenchCombo* box : bench().view().findChildren<BenchCombo*>()) {
        describe(*box, 3);
    }
    const auto first = partsNow();
    for (const auto& [name, look] : first) {
        line(3, name + ' ' + look);
    }
    const Machine before = machine();
    const auto changes = [&](const QString& title) {
        line(2, title + QStringLiteral(", %1 wide").arg(bench().width()));
        for (const auto& [name, look] : partsNow()) {
            if (look != first.at(name)) {
                line(3, name + ' ' + look);
            }
        }
        machine() = before;
        program->refreshAll();
    };
    for (const int mode : {0, 1, 2, 3, 4, 6, 7}) {
        cmbIOS_LostFocus(machine(), mode);
        bench().refresh();
        changes(QStringLiteral("with IOS mode %1").arg(mode));
    }
    for (const auto& [board, address] : {std::pair{saQDA41, 0x10}, {saQDA73, 0x20}, {saQDA52, 0x30}}) {
        cmbSA_LostFocus(machine(), static_cast<std::size_t>(board), address - 1);
    }
    cmbClock41_LostFocus(machine(), 1);
    cmbClock52_LostFocus(machine(), 2);
    cmbBPS73_LostFocus(machine(), 3);
    picJumper_Answered(machine(), true);
    picBridge_DblClick(machine());
    bench().refresh();
    changes("with other addresses, clocks and duplex, without the cascade card");
    for (const std::size_t group : {0U, 1U, 2U, 4U}) {
        BenchPart& strobe = part("picSTB", 2 * group);
        emit strobe.touched(&strobe, Touch::doubleClick);
        const frmOsiro& chart = *program->bench().timingChartWindow();
        line(2,
             QStringLiteral("its strobe %1 opens chart %2 at ").arg(2 * group).arg(chart.chart()) + placeText(chart.geometry()));
    }
    // Every part under the hand, but for those that lead to another window.
    for (BenchPart* part : bench().view().parts()) {
        const BenchPart::Reactions& on = part->reactions();
        if (on.any() && !QStringList{"picJumper", "picSDI", "picQDA", "picPWM", "picBridge"}.contains(part->row().family->name)) {
            emit part->touched(part, on.held || on.heldByDouble ? Touch::down
                                     : on.doubleClick           ? Touch::doubleClick
                                                                : Touch::click);
        }
    }
    for (BenchCombo* box : bench().view().findChildren<BenchCombo*>()) {
        describe(*box, 3);
        box->cancel();
    }
    changes("with every part touched once");
}

// Each kind of button in each state: its outer and its inner line, its face, and whether its caption takes the ink of bold
// letters.
void Windows::describeButtons() {
    using Look = std::pair<const char*, QStyle::State>;
    int plainInk = 0;
    const QStringList kinds{"dialog", "view", "tool", "tinted tool", "run mode"};
    for (int kind = 0; kind < kinds.size(); ++kind) {
        QPushButton button;
        setButtonUse(button, static_cast<ButtonUse>(kind));
        for (const auto& [name, state] :
             {Look{"plain", QStyle::State_None}, Look{"default", QStyle::State_Active}, Look{"hovered", QStyle::State_MouseOver},
              Look{"pressed", QStyle::State_Sunken}, Look{"checked", QStyle::State_On}, Look{"focused", QStyle::State_HasFocus},
              Look{"checked and focused", QStyle::State_On | QStyle::State_HasFocus}}) {
            QStyleOptionButton option;
            option.rect = {0, 0, 80, 30};
            option.text = "HHH";
            option.state = QStyle::State_Enabled | state;
            option.features = state == QStyle::State_Active ? QStyleOptionButton::DefaultButton : QStyleOptionButton::None;
            QImage picture(option.rect.size(), QImage::Format_RGB32);
            QPainter painter(&picture);
            button.style()->drawControl(QStyle::CE_PushButton, &option, &painter, &button);
            const QColor face = picture.pixelColor(40, 3);
            int ink = 0;
            for (int at = 0; at < 60 * 20; ++at) {
                ink += face.lightness() - picture.pixelColor(10 + at % 60, 5 + at / 60).lightness();
            }
            plainInk = plainInk != 0 ? plainInk : ink;
            line(0, QStringLiteral("button %1, %2: %3 %4 %5%6")
                        .arg(kinds[kind], name, picture.pixelColor(40, 0).name(), picture.pixelColor(40, 1).name(), face.name(),
                             ink > plainInk * 5 / 4 ? " bold" : ""));
        }
    }
}

TEST_F(Windows, are_as_they_were_approved) {
    openEverything();
    QWidgetList windows = QApplication::topLevelWidgets();
    std::sort(windows.begin(), windows.end(),
              [](const QWidget* a, const QWidget* b) { return a->objectName() < b->objectName(); });
    for (const QWidget* window : windows) {
        if (window->inherits("QMessageBox") || window->objectName().startsWith("frm")) {
            describe(*window);
        }
    }
    describeButtons();
    if (qEnvironmentVariableIsSet("VRB_APPROVE")) {
        put(VRB_APPROVED, text.toStdString());
    }
    const QStringList approved = QString::fromStdString(bytesOf(VRB_APPROVED)).split('\n');
    const QStringList now = text.split('\n');
    for (qsizetype line = 0; line < std::max(now.size(), approved.size()); ++line) {
        ASSERT_EQ(now.value(line).toStdString(), approved.value(line).toStdString()) << "line " << line + 1;
    }
}

}  // namespace
