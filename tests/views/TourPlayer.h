// SPDX-License-Identifier: Apache-2.0
// Plays what a text tells the learner to do, on the running program and through its real windows, and checks what it promises.
// The scripts are in the language of aids/tourLanguage.h.

#pragma once

#include "memwin/views/DumpGrid.h"
#include "program/Program.h"
#include "program/TourSight.h"
#include "tests/views/BenchHand.h"

#include <string>
#include <vector>

class TourPlayer {
public:
    explicit TourPlayer(Program& program);

    // Every failure names the statement.
    void play(const std::string& script);
    // The expectations played so far, to tell whether a promise was checked.
    const std::vector<std::string>& checked() const { return checked_; }
    void forgetChecked() { checked_.clear(); }

private:
    BenchHand hand();
    BenchPart* part(const Statement& s);
    void fireFor(double seconds);

    void hold(const Statement& s);
    void pick(const Statement& s);
    void mode(const std::string& name);
    void openWindow(const std::string& name);
    void press(const Statement& s);
    void key(const std::string& keys);
    void point(const Statement& s);
    void enter(QWidget& dialog, const Statement& s);
    DumpGrid& doubleClickCell(int place);
    void read(const Statement& s);
    void serial(const Statement& s);
    void answer(Qt::Key key);

    void check(const Statement& promise);
    std::string now(const Statement& promise);
    void cycle(const Statement& promise);
    bool movesWithin(const Statement& promise);
    void registerIsShown(const Statement& promise);
    std::string said() const;

    Program& program_;
    const TourSight& sight_;
    BenchPart* held_ = nullptr;
    QPoint heldAt_;
    std::vector<std::string> checked_;
    double sinceTick_ = 0;  // milliseconds
    double sinceMotor_ = 0;
    double sinceWatch_ = 0;
    double sinceVersion_ = 0;
};
