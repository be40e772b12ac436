#include "platform/KeyboardLoan.h"

#include <QApplication>
#include <QWidget>

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

void KeyboardLoan::giveBack(const QWidget& borrower) {
    const bool mine = isWithin(borrower, borrower.window()->focusWidget());
    if (mine && before_ != nullptr && before_->isVisible()) {
        before_->setFocus(Qt::OtherFocusReason);
    }
    before_.clear();
}
