// SPDX-License-Identifier: Apache-2.0
// The keyboard, lent to something that comes up for a moment (a list, a box, a chooser): when that goes away, the widget that had
// the keyboard has it again. Without this the next one in the order of the Tab key would get it, and a Return meant for nobody
// would act there.

#pragma once

#include <QPointer>
#include <QWidget>

class KeyboardLoan {
public:
    // `borrower` is about to take the keyboard; whoever has it now is remembered.
    void lendTo(const QWidget& borrower);
    // The same where the keyboard has gone already, from `before`.
    void remember(QWidget* before) { before_ = before; }
    // `borrower` is about to hide. If it, or something in it, has the keyboard, that goes back, or to `otherwise` if the widget
    // that had it is gone. No ring shows for it.
    void giveBack(const QWidget& borrower, QWidget* otherwise = nullptr);

private:
    QPointer<QWidget> before_;
};
