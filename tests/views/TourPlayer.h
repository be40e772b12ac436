// Plays what a text tells the learner to do, on the running program and through its real windows, and checks what it promises.
// A script is a line of statements, separated by " ; ", with words separated by blanks; numbers of registers and memory are
// hexadecimal.
//
//   click PART [I]          dblclick PART [I]       hold PART [I]      release        on the bench, by name and index
//   pick COMBO [I] = TEXT   chooses an item of a combo box of the bench, which an earlier gesture may have opened
//   mode CAPTION            clicks a run mode: RUN, STOP, SLOW, 1-Time
//   wait SECONDS            lets the timers fire for so long
//   open WINDOW             close WINDOW            register, hint, control, c1c7, drc, read
//   write REG VALUE         set ADDRESS VALUE       read ADDRESS       by the dialogs of the host CPU; REG is SCR, SCR.H, SCR.L
//   serial I DIGITS         types a word into the serial dialog of circuit I and lets it go out
//   ok                      cancel                  answers the message dialog
//   point REG               double ADDRESS          a double click that is to be refused
//
//   reg REG VALUE           mem ADDRESS VALUE       2 digits are a byte, 4 a word
//   lit PART [I]            dark PART [I]           image PART [I] = N
//   shown PART [I]          hidden PART [I]         label NAME [I] = TEXT
//   says TEXT               silent                  popup and message dialog
//   got VALUE               bus TEXT                what the read dialog shows; the bus type over the memory
//   sa BOARD VALUE          the address on a board's switches, or that its place gives it
//   cycle REG V1 V2 ...     one click on 1-Time after the other walks through these values, from wherever it stands
//   moves THING             still THING             a register or part of the bench, within a second or five in SLOW
//   differs REG VALUE       the register shows anything but this value

#pragma once

#include "memwin/views/DumpGrid.h"
#include "program/Program.h"
#include "tests/views/BenchHand.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

class TourPlayer {
public:
    explicit TourPlayer(Program& program);

    // Every failure names the statement.
    void play(const std::string& script);
    // The arguments of the expectations played so far, to tell whether a promise was checked.
    const std::vector<std::string>& checked() const { return checked_; }
    void forgetChecked() { checked_.clear(); }

private:
    using Words = std::vector<std::string>;
    struct Part {
        std::string name;
        std::size_t index = 0;
        std::string value;  // behind "="
    };

    void playStatement(const std::string& statement);
    BenchHand hand();
    BenchPart* part(const Words& words);
    static Part partOf(const Words& words);
    void fireFor(double seconds);

    void pick(const Words& words);
    void mode(const Words& words);
    void openWindow(const Words& words, bool open);
    void write(const Words& words);
    void set(const Words& words);
    void read(const Words& words);
    void serial(const Words& words);
    void answer(Qt::Key key);
    void point(const Words& words);
    DumpGrid& doubleClickCell(const std::string& address);
    void stationAddress(const Words& words);
    void cycle(const Words& words);
    bool movesWithin(const std::string& thing);
    std::string shownBy(const std::string& name);
    void reg(const Words& words);
    void mem(const Words& words);
    void led(const Words& words, bool lit);
    void image(const Words& words);
    void seen(const Words& words, bool seen);
    void label(const Words& words);
    std::string said() const;

    Program& program_;
    BenchPart* held_ = nullptr;
    QPoint heldAt_;
    std::vector<std::string> checked_;
    double sinceTick_ = 0;  // milliseconds
    double sinceMotor_ = 0;
};

// The statements of a script.
std::vector<std::string> statementsOf(const std::string& script);
