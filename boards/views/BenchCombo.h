// SPDX-License-Identifier: Apache-2.0
// A combo box that stands over a picture of the bench while a setting is chosen. It commits when it loses the focus, by
// whatever means; one that never had the focus commits nothing, and neither does a list that merely drops down. Escape takes
// back what was chosen meanwhile: what it commits is the item that the box came up with.
//
// When the box goes, the keyboard is where it was before the box had it.

#pragma once

#include "platform/KeyboardLoan.h"

#include <QComboBox>

class BenchCombo : public QComboBox {
    Q_OBJECT

public:
    BenchCombo(const QString& name, const QStringList& items, int width, QWidget* parent);

    // Shows the box with this item chosen.
    void open(int listIndex);
    bool isOpen() const { return open_; }
    // Hides the box; a box that has the focus commits.
    void close();
    // Hides the box; nothing is taken over.
    void cancel() { end(false); }

signals:
    void committed(int listIndex);
    // The box came up or went away.
    void opened(bool open);

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void end(bool commit);

    KeyboardLoan keyboard_;
    int first_ = 0;  // list index at the opening
    bool open_ = false;
    bool hadFocus_ = false;
    bool walking_ = false;
};
