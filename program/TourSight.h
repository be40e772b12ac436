// SPDX-License-Identifier: Apache-2.0
// The tour's eyes: what the pages of a tour promise and only the windows know.

#pragma once

#include "aids/tourLanguage.h"

class BenchWindows;
class MemoryWindows;

class TourSight : public SeenByLearner {
public:
    TourSight(const BenchWindows& bench, const MemoryWindows& memory) : bench_(bench), memory_(memory) {}

    std::optional<bool> shown(const std::string& name, std::size_t index) const override;
    std::optional<int> picture(const std::string& name, std::size_t index) const override;
    std::optional<std::string> label(const std::string& name, std::size_t index) const override;
    std::string readValue() const override;

private:
    const BenchWindows& bench_;
    const MemoryWindows& memory_;
};
