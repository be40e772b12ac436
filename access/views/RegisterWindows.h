// SPDX-License-Identifier: Apache-2.0
// The register window as a set: the window, and the dialog that a value leads to. What they want from the rest of the program
// goes out as signals.

#pragma once

#include "access/registers.h"
#include "core/answer.h"
#include "platform/OnDemand.h"

#include <QObject>

class frmEditRegister;
class frmRegister;

class RegisterWindows : public QObject {
    Q_OBJECT

public:
    // Both windows belong to `owner`, the main window.
    RegisterWindows(Machine& machine, QWidget& owner);
    ~RegisterWindows() override;

    void open();
    // At the start and after a restart: opens the window if the settings ask for it.
    void openBySettings();
    bool isOpen() const { return frmRegister_.visible(); }
    // Puts the window at its place, counted from the main window's corner.
    void place();
    // Hides the window; its marks live on.
    void hide() { frmRegister_.hide(); }
    // Forgets the window; an open dialog goes unanswered.
    void unload();
    // The window, from the machine; nothing while it is hidden.
    void refresh();

    // Null until they are first asked for.
    frmRegister* window() const;
    frmEditRegister* writeDialog() const;

signals:
    void shown(bool open);
    // What a gesture has to say, beside the form that it speaks of, or at the pointer for null.
    void said(const Answer& answer, const QWidget* form);
    // The learner turns to this register.
    void hintWanted(const QString& name);
    // A write is done: the windows are to be brought up to date.
    void refreshWanted();
    // A write to HPR changed its low byte.
    void readProtectionChanged();
    // A dialog comes up: a popup would stand in its way.
    void messageInTheWay();

private:
    frmRegister* makeWindow();
    frmEditRegister* makeDialog();
    void openRegisterWrite(const QString& name, int row, int top, Half half);

    Machine& machine_;
    QWidget& owner_;
    OnDemand<frmRegister> frmRegister_;
    OnDemand<frmEditRegister> frmEditRegister_;
};
