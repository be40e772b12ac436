// SPDX-License-Identifier: Apache-2.0
#include "memwin/views/frmDumpSel.h"

#include "platform/look.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr std::array<const char*, 5> captions{"コントロール+DI+DO", "C1～C7", "DRC", "Memory Read", "Window All Close"};

}  // namespace

frmDumpSel::frmDumpSel(QWidget* area) : QFrame(area) {
    setObjectName("frmDumpSel");
    setFocusPolicy(Qt::ClickFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(5);
    for (std::size_t index = 0; index < captions.size(); ++index) {
        cmdAREA_[index] = new QPushButton(captions[index], this);
        cmdAREA_[index]->setObjectName(QStringLiteral("cmdAREA%1").arg(index));
        cmdAREA_[index]->setFont(look::textFont(13));
        cmdAREA_[index]->setMinimumWidth(166);
        column->addWidget(cmdAREA_[index]);
        connect(cmdAREA_[index], &QPushButton::clicked, this, [this, index] {
            hide();
            emit chosen(static_cast<int>(index));
        });
    }
    hide();
}

void frmDumpSel::open(QPoint place, bool byKeyboard) {
    adjustSize();
    move(place);
    keyboard_.lendTo(*this);
    show();
    raise();
    // A ring is for those who walk by keyboard; the others find the arrows ready all the same.
    if (byKeyboard) {
        cmdAREA_[0]->setFocus(Qt::TabFocusReason);
    } else {
        setFocus(Qt::OtherFocusReason);
    }
}

void frmDumpSel::setVisible(bool visible) {
    if (!visible && isVisible()) {
        keyboard_.giveBack(*this);
    }
    QFrame::setVisible(visible);
}

void frmDumpSel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    look::paintPanel(painter, rect(), look::windowFace, 0xff6f7d77, 3);
}

void frmDumpSel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape: hide(); break;
        case Qt::Key_Down: walk(1); break;
        case Qt::Key_Up: walk(-1); break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (auto* button = qobject_cast<QPushButton*>(focusWidget())) {
                button->click();
            }
            break;
        default: QFrame::keyPressEvent(event);
    }
}

// Tab and the arrow keys of a button go round among the buttons: outside the chooser no key would close it any more.
bool frmDumpSel::focusNextPrevChild(bool next) {
    walk(next ? 1 : -1);
    return true;
}

void frmDumpSel::walk(int step) {
    constexpr auto count = static_cast<int>(captions.size());
    int at = step > 0 ? -1 : count;
    for (int index = 0; index < count; ++index) {
        if (cmdAREA(index).hasFocus()) {
            at = index;
        }
    }
    at += step;
    cmdAREA(at < 0 ? count - 1 : at < count ? at : 0).setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}
