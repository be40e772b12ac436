// SPDX-License-Identifier: Apache-2.0
#include "platform/KeyboardLoan.h"

#include <QApplication>

namespace {

bool isWithin(const QWidget& borrower, const QWidget* widget) {
    return widget != nullptr && (widget == &borrower || borrower.isAncestorOf(widget));
}

}  // namespace

void KeyboardLoan::lendTo(const QWidget& borrower) {
    QWidget* now = QApplication::focusWidget();
    if (!isWithin(borrower, now)) {
        before_ = now;
    }
}

void KeyboardLoan::giveBack(const QWidget& borrower, QWidget* otherwise) {
    const bool mine = isWithin(borrower, borrower.window()->focusWidget());
    QWidget* heir = before_ != nullptr && before_->isVisible() ? before_.data() : otherwise;
    if (mine && heir != nullptr) {
        heir->setFocus(Qt::OtherFocusReason);
    }
    before_.clear();
}
