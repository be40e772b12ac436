// SPDX-License-Identifier: Apache-2.0
#include "program/TourSight.h"

#include "access/views/RegisterWindows.h"
#include "access/views/frmMemoryRead.h"
#include "access/views/frmRegister.h"
#include "aids/circuitDiagrams.h"
#include "aids/views/AidWindows.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmKAIROZU.h"
#include "aids/views/frmVersion.h"
#include "boards/views/BenchView.h"
#include "boards/views/BenchWindows.h"
#include "boards/views/frmHard.h"
#include "boards/views/frmOsiro.h"
#include "config/views/SettingsWindows.h"
#include "config/views/frmDefault.h"
#include "memwin/views/MemoryWindows.h"
#include "memwin/views/frmDump.h"
#include "memwin/views/frmDumpSel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

#include <algorithm>

namespace {

struct WindowRow {
    std::string_view name;
    QWidget* (*find)(const TourSight::Sets& sets);
};

constexpr std::array<WindowRow, tourWindows.size()> windowRows{{
    {"register", [](const TourSight::Sets& s) -> QWidget* { return s.registers.window(); }},
    {"hint", [](const TourSight::Sets& s) -> QWidget* { return s.aids.hints(); }},
    {"control", [](const TourSight::Sets& s) -> QWidget* { return s.memory.window(Area::controlDoDi); }},
    {"c1c7", [](const TourSight::Sets& s) -> QWidget* { return s.memory.window(Area::c1ToC7); }},
    {"drc", [](const TourSight::Sets& s) -> QWidget* { return s.memory.window(Area::drc); }},
    {"read", [](const TourSight::Sets& s) -> QWidget* { return s.memory.readDialog(); }},
    {"chooser", [](const TourSight::Sets& s) -> QWidget* { return s.memory.chooser(); }},
    {"settings", [](const TourSight::Sets& s) -> QWidget* { return s.settings.dialog(); }},
    {"version", [](const TourSight::Sets& s) -> QWidget* { return s.aids.versionPanel(); }},
    {"chart", [](const TourSight::Sets& s) -> QWidget* { return s.bench.timingChartWindow(); }},
    {"diagram", [](const TourSight::Sets& s) -> QWidget* { return s.aids.circuitDiagram(); }},
}};

bool isWindow(std::string_view name) {
    return std::find(tourWindows.begin(), tourWindows.end(), name) != tourWindows.end();
}

// What the keys go to, as it is spoken: a part of the bench by name and index.
std::string keyboardAt() {
    const QWidget* widget = QApplication::focusWidget();
    if (const auto* view = qobject_cast<const BenchView*>(widget)) {
        const auto* part = dynamic_cast<const BenchPart*>(view->scene()->focusItem());
        return part == nullptr ? "HardWare" : part->row().family->name + (' ' + std::to_string(part->row().index));
    }
    return widget == nullptr ? "" : widget->accessibleName().toStdString();
}

}  // namespace

QWidget* TourSight::window(std::string_view name) const {
    const auto* row =
        std::find_if(windowRows.begin(), windowRows.end(), [name](const WindowRow& candidate) { return candidate.name == name; });
    return row == windowRows.end() ? nullptr : row->find(sets_);
}

std::optional<bool> TourSight::shown(const std::string& name, std::size_t index) const {
    if (isWindow(name)) {
        const QWidget* found = window(name);
        return found != nullptr && found->isVisible();
    }
    frmHard* bench = sets_.bench.bench();
    if (const BenchPart* part = bench->part(name, index)) {
        return part->isVisible();
    }
    if (name == "bench" || name == "keyboard") {
        return true;
    }
    const BenchLabel* label = bench->label(name, index);
    return label == nullptr ? std::nullopt : std::optional(label->isVisible());
}

std::optional<int> TourSight::picture(const std::string& name, std::size_t index) const {
    const BenchPart* part = sets_.bench.bench()->part(name, index);
    return part == nullptr ? std::nullopt : std::optional(part->shown().number);
}

std::optional<std::string> TourSight::label(const std::string& name, std::size_t index) const {
    if (std::optional<std::string> text = labelOfWindow(name)) {
        return text;
    }
    const BenchLabel* label = sets_.bench.bench()->label(name, index);
    return label == nullptr ? std::nullopt : std::optional(label->text().toStdString());
}

// What an open window shows, where that is one thing.
std::optional<std::string> TourSight::labelOfWindow(const std::string& name) const {
    if (name == "bench") {
        return std::to_string(qRound(100 * sets_.bench.bench()->view().zoom())) + '%';
    }
    if (name == "keyboard") {
        return keyboardAt();
    }
    if (name == "chart") {
        const frmOsiro* chart = sets_.bench.timingChartWindow();
        return std::to_string(chart == nullptr ? 0 : chart->chart());
    }
    if (name == "diagram") {
        const frmKAIROZU* diagram = sets_.aids.circuitDiagram();
        const std::string file = diagram == nullptr ? "" : diagram->widget()->accessibleName().toStdString();
        return file.substr(0, file.find('.'));
    }
    return std::nullopt;
}

std::optional<bool> TourSight::ticked(const std::string& window, const std::string& caption) const {
    const QWidget* found = this->window(window);
    if (found == nullptr || !found->isVisible()) {
        return std::nullopt;
    }
    for (const QAbstractButton* button : found->findChildren<QAbstractButton*>()) {
        if (plainText(button->text().toStdString()) == caption) {
            return button->isChecked();
        }
    }
    return std::nullopt;
}

std::string TourSight::readValue() const {
    const frmMemoryRead* dialog = sets_.memory.readDialog();
    return dialog != nullptr && dialog->isVisible() ? dialog->findChild<QLabel*>("lblData")->text().toStdString() : "";
}
