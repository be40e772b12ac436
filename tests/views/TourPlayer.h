// SPDX-License-Identifier: Apache-2.0
// Plays what a text tells the learner to do, on the running program and through its real windows, and checks what it promises.
// The scripts are in the language of aids/tourLanguage.h.
//
// It plays as a learner on a screen of 1280 x 1024 does: what is to be touched has to be uncovered where it is touched, what is
// to be read as a whole, and a window comes to the front by a click on it and by nothing else.

#pragma once

#include "memwin/views/frmDump.h"
#include "program/Program.h"
#include "program/TourSight.h"
#include "tests/views/BenchHand.h"
#include "tests/views/LearnersScreen.h"

#include <string>
#include <vector>

enum class Eyes { open, closed };

class TourPlayer {
public:
    // With closed eyes it doesn't ask whether a window lies over what it touches and reads.
    explicit TourPlayer(Program& program, Eyes eyes = Eyes::open);

    // Every failure names the statement.
    void play(const std::string& script);
    // The expectations played so far, to tell whether a promise was checked.
    const std::vector<std::string>& checked() const { return checked_; }
    void forgetChecked() { checked_.clear(); }

private:
    BenchHand hand();
    BenchPart* part(const Statement& s);
    QWidget* window(const std::string& name);

    // What keeps the learner from seeing it fails.
    void see(const QWidget& widget, const QRect& rect);
    void see(const QWidget& widget) { see(widget, widget.rect()); }
    void click(QWidget& widget);
    void look(const Statement& promise);
    bool lookAtWindow(const std::string& name);
    void lookAtBench(const std::string& name, std::size_t index);
    void lookAtRegister(const Statement& s);
    void lookAtMemory(const Statement& s);
    QWidget* byTitle(const std::string& name, QPoint& title);
    void front(const std::string& name);
    void drag(const Statement& s);
    void close(const std::string& name);
    void fireFor(double seconds);

    void hold(const Statement& s);
    void pick(const Statement& s);
    void mode(const std::string& name);
    void openWindow(const std::string& name);
    void press(const Statement& s);
    void key(const std::string& keys);
    void point(const Statement& s);
    void enter(QWidget& dialog, const Statement& s);
    frmDump* dumpOf(int place);  // null while nobody has opened it
    QRect cellOf(frmDump& dump, int place);
    void doubleClickCell(int place);
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
    LearnersScreen screen_;
    Eyes eyes_;
    BenchPart* held_ = nullptr;
    QPoint heldAt_;
    std::vector<std::string> checked_;
    double sinceTick_ = 0;  // milliseconds
    double sinceMotor_ = 0;
    double sinceWatch_ = 0;
    double sinceVersion_ = 0;
};
