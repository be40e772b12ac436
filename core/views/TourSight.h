// The tour's eyes: what the pages of a tour promise and only the windows know.

#pragma once

#include "aids/tourLanguage.h"

class Program;

class TourSight : public SeenByLearner {
public:
    explicit TourSight(Program& program) : program_(program) {}

    std::optional<bool> shown(const std::string& name, std::size_t index) const override;
    std::optional<int> picture(const std::string& name, std::size_t index) const override;
    std::optional<std::string> label(const std::string& name, std::size_t index) const override;
    std::string readValue() const override;

private:
    Program& program_;
};
