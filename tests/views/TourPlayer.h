// SPDX-License-Identifier: Apache-2.0
// Plays what a text tells the learner to do, on the running program and through its real windows, and checks what it promises.
// The scripts are in the language of aids/tourLanguage.h.
//
// It plays as a learner on a screen of 1280 x 1024 does: what is to be touched has to be uncovered where it is touched, what is
// to be read as a whole, and a window comes to the front by a click on it and by nothing else.

#pragma once

#include "program/Program.h"

#include <memory>
#include <string>
#include <vector>

enum class Eyes { open, closed };

class TourPlayer {
public:
    // With closed eyes it doesn't ask whether a window lies over what it touches and reads.
    explicit TourPlayer(Program& program, Eyes eyes = Eyes::open);
    ~TourPlayer();

    // Every failure names the statement.
    void play(const std::string& script);
    // The expectations played so far, to tell whether a promise was checked.
    const std::vector<std::string>& checked() const { return checked_; }
    void forgetChecked() { checked_.clear(); }

private:
    class Hands;

    std::unique_ptr<Hands> hands_;
    std::vector<std::string> checked_;
};
