// SPDX-License-Identifier: Apache-2.0
// The dialog of the settings: shows the file's numbers by name, saves them, hands them over to be applied at once, or puts the
// maker's values in. It works on values of its own: neither the machine nor the file changes before the learner asks for it.
//
//   ┌ windows ──┐ ┌ QDA60 ────┐ ┌ Board No1 ┐
//   │           │ ├ Board No2 ┤ ├ Board No4 ┤
//   ├ bench ────┤ │           │ │           │
//   └───────────┘ └───────────┘ └───────────┘
//   [apply] (restarts)        [maker's values]
//   [save]  (at next start)            [close]
//
// Not modal: the scan goes on behind it. Every control stands under the name that the table of settings gives it.

#pragma once

#include "config/settings.h"
#include "platform/twips.h"

#include <QDialog>
#include <QPoint>

#include <array>

class QAbstractButton;
class QComboBox;
class QPushButton;
class SettingsStore;

class frmDefault : public QDialog {
    Q_OBJECT

public:
    // Reads the file: a dialog that was unloaded and made anew shows what is saved. The store tells what came of a save, also
    // when the dialog has gone meanwhile.
    frmDefault(SettingsStore& store, QWidget* owner);

    // Its place, counted from the main window's top left corner.
    static constexpr QPoint placeInMain{twips(4700), twips(4000)};
    // Shows the dialog with its controls as they were left, at a place on the screen.
    void openAt(QPoint place);

    // What the controls show.
    DialogValues values() const;

    enum Action : std::size_t { actionClose, actionApply, actionSave, actionMaker };
    QPushButton& cmdAction(Action action) { return *cmdAction_[action]; }

signals:
    // Apply at once. The dialog has hidden itself, and may go by deleteLater.
    void applied(const DialogValues& values);
    // The close box: the dialog is to be forgotten and made anew at its next use.
    void unloaded();

public slots:
    // Escape is the close box.
    void reject() override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeWindows();
    QWidget* makeBench();
    QWidget* makeCenter();
    QWidget* makeBoardNo1();
    QWidget* makeBoardNo2();
    QWidget* makeBoardNo4();
    QWidget* makeButtons();
    void bindControls();
    void showValues(const DialogValues& values);
    void cmdAction_Click(Action action);

    SettingsStore& store_;
    std::array<QPushButton*, 4> cmdAction_{};
    QAbstractButton* optHF0_ = nullptr;
    // By row of the settings: one of the two, or none for a setting that is not shown.
    struct Control {
        QAbstractButton* button = nullptr;
        QComboBox* list = nullptr;
    };
    std::array<Control, settings.size()> controls_{};
};
