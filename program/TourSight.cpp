// SPDX-License-Identifier: Apache-2.0
#include "program/TourSight.h"

#include "access/views/frmMemoryRead.h"
#include "boards/views/BenchWindows.h"
#include "boards/views/frmHard.h"
#include "memwin/views/MemoryWindows.h"

#include <QLabel>

std::optional<bool> TourSight::shown(const std::string& name, std::size_t index) const {
    frmHard* bench = bench_.bench();
    if (const BenchPart* part = bench->part(name, index)) {
        return part->isVisible();
    }
    const BenchLabel* label = bench->label(name, index);
    return label == nullptr ? std::nullopt : std::optional(label->isVisible());
}

std::optional<int> TourSight::picture(const std::string& name, std::size_t index) const {
    const BenchPart* part = bench_.bench()->part(name, index);
    return part == nullptr ? std::nullopt : std::optional(part->shown().number);
}

std::optional<std::string> TourSight::label(const std::string& name, std::size_t index) const {
    const BenchLabel* label = bench_.bench()->label(name, index);
    return label == nullptr ? std::nullopt : std::optional(label->text().toStdString());
}

std::string TourSight::readValue() const {
    const frmMemoryRead* dialog = memory_.readDialog();
    return dialog != nullptr && dialog->isVisible() ? dialog->findChild<QLabel*>("lblData")->text().toStdString() : "";
}
