// The tour window: two lines of a tour's text at the foot of the screen, in front of everything, and the buttons that turn its
// pages.
//
//   ┌────────────────────────────────────────────────────────────────┐
//   │ upper line                                                      │
//   │ lower line                                                      │
//   │ [Back] [Next ..............................] 1/8 [to Menu List] [Navi 終了] │
//   └────────────────────────────────────────────────────────────────┘

#pragma once

#include "aids/navigation.h"

#include <QWidget>

#include <array>
#include <filesystem>

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
    // `naviPath` is the folder of the tours.
    frmNavigation(std::filesystem::path naviPath, QWidget* owner);

    // Reads a tour and turns to its first page. A file that can't be read says so in the upper line.
    void setNavigation(const std::string& fileName);

    enum Action : std::size_t { actionBack, actionNext, actionMenu, actionEnd };
    QPushButton& cmdAction(Action action) { return *cmdAction_[action]; }
    const NaviLine& picNav(std::size_t row) const { return *picNav_[row]; }
    QString lblIndex() const;
    const Tour& tour() const { return tour_; }

signals:
    void menuWanted();
    // The tour is over: the window is to be unloaded.
    void ended();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void cmdAction_Click(Action action);
    void showPage();
    void updateButtons();
    void clearPages();
    void layOut();

    std::filesystem::path naviPath_;
    Tour tour_;
    std::array<NaviLine*, linesShown> picNav_{};
    QLabel* lblIndex_;
    std::array<QPushButton*, 4> cmdAction_{};
};
