// SPDX-License-Identifier: Apache-2.0
// The tour's eyes: what the pages of a tour promise and only the windows know.

#pragma once

#include "aids/tourLanguage.h"

class AidWindows;
class BenchWindows;
class MemoryWindows;
class QWidget;
class RegisterWindows;
class SettingsWindows;

class TourSight : public SeenByLearner {
public:
    // The sets may be made after this.
    struct Sets {
        const RegisterWindows& registers;
        const MemoryWindows& memory;
        const BenchWindows& bench;
        const AidWindows& aids;
        const SettingsWindows& settings;
    };
    explicit TourSight(const Sets& sets) : sets_(sets) {}

    std::optional<bool> shown(const std::string& name, std::size_t index) const override;
    std::optional<int> picture(const std::string& name, std::size_t index) const override;
    std::optional<std::string> label(const std::string& name, std::size_t index) const override;
    std::optional<bool> ticked(const std::string& window, const std::string& caption) const override;
    std::string readValue() const override;

    // A window of the tour's language; null for any other name, and before somebody asked for it.
    QWidget* window(std::string_view name) const;

private:
    std::optional<std::string> labelOfWindow(const std::string& name) const;

    Sets sets_;
};
