// SPDX-License-Identifier: Apache-2.0
// The tour window: two lines of a tour's text at the foot of the screen, in front of everything, and the buttons that turn its
// pages.
//
//   ┌────────────────────────────────────────────────────────────────┐
//   │ upper line                                                      │
//   │ lower line                                                    ○ │
//   │ [Back] [Next ..............................] 1/8 [to Menu List] [Navi 終了] │
//   └────────────────────────────────────────────────────────────────┘
//
// The sign at the end of the lower line tells whether all that the page promises has been seen: ○ not yet, ✓ yes. It only looks:
// nothing depends on it.

#pragma once

#include "aids/navigation.h"
#include "aids/tourWatch.h"
#include "aids/views/NaviSign.h"
#include "platform/Timer.h"

#include <QWidget>

#include <array>
#include <filesystem>
#include <map>

class QLabel;
class QPushButton;

// A line of a tour, drawn in its colours. What passes the width is cut off.
class NaviLine : public QWidget {
public:
    explicit NaviLine(QWidget* parent);

    void drawMarkedText(std::string_view text);
    void clear() { drawMarkedText({}); }
    const std::vector<TextRun>& runs() const { return runs_; }
    // In pixels, to tell whether a line is cut off.
    int textWidth() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<TextRun> runs_;
};

class frmNavigation : public QWidget {
    Q_OBJECT

public:
    // `naviPath` is the folder of the tours; the pages' promises are looked for in the machine and in what is seen of it.
    frmNavigation(std::filesystem::path naviPath, const Machine& machine, const SeenByLearner& seen, QWidget* owner);

    // Reads a tour and turns to its first page. A file that can't be read says so in the upper line.
    void setNavigation(const std::string& fileName);

    // The windows were refreshed: a look at what the page promises.
    void watch() { watchFor(0); }
    // A popup or the message dialog says something.
    void hear(const QString& text);

    void setVisible(bool visible) override;

    enum Action : std::size_t { actionBack, actionNext, actionMenu, actionEnd };
    QPushButton& cmdAction(Action action) { return *cmdAction_[action]; }
    const NaviLine& picNav(std::size_t row) const { return *picNav_[row]; }
    const NaviSign& picSign() const { return *picSign_; }
    Timer& timWatch() { return timWatch_; }
    QString lblIndex() const;
    const Tour& tour() const { return tour_; }

signals:
    void menuWanted();
    // The tour is over: the window is to be unloaded.
    void ended();
    // The last page of a tour is up: that is what counts as having finished it, whatever its sign says.
    void finished(const std::string& fileName);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void cmdAction_Click(Action action);
    void showPage();
    void updateButtons();
    void clearPages();
    void layOut();
    void watchFor(int milliseconds);
    void showSign();

    std::filesystem::path naviPath_;
    const Machine& machine_;
    const SeenByLearner& seen_;
    std::string fileName_;
    Tour tour_;
    std::map<std::int16_t, TourWatch> watches_;  // by page: one that was done stays so when the learner pages back
    Timer timWatch_;
    std::array<NaviLine*, linesShown> picNav_{};
    NaviSign* picSign_;
    QLabel* lblIndex_;
    std::array<QPushButton*, 4> cmdAction_{};
};
