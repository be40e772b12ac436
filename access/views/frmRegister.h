// SPDX-License-Identifier: Apache-2.0
// The register window: each register in hexadecimal and binary, half by half, with changes in red for some seconds. A double
// click on a value, or Enter on it, asks for the write dialog; the arrow keys walk over the values.

#pragma once

#include "access/registerView.h"
#include "platform/Timer.h"

#include <QPixmap>
#include <QWidget>

#include <map>
#include <tuple>

// One value of the window: a half of a register, in hexadecimal or binary. Painted by itself on its own ground: SSR changes with
// every firing, and nothing else is to be painted for it.
class RegisterCell : public QWidget {
    Q_OBJECT

public:
    // Texts as they were drawn, for all cells of a window: by text, whether red, ground and width.
    using Drawn = std::map<std::tuple<QString, bool, QRgb, int>, QPixmap>;

    RegisterCell(QString text, QColor ground, Drawn& drawn, QWidget* parent);

    void show(const QString& text, bool red);
    const QString& text() const { return text_; }
    bool red() const { return red_; }

signals:
    void writeWanted();
    void moveWanted(int rows, int columns);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const QPixmap& drawnText();

    static constexpr std::size_t mostDrawn = 128;
    QString text_;
    QColor ground_;
    bool red_ = false;
    bool ring_ = false;
    Drawn& drawn_;
};

class frmRegister : public QWidget {
    Q_OBJECT

public:
    frmRegister(Machine& machine, QWidget* owner);

    // Brings the window up to date; nothing while it is hidden.
    void refreshRegisters();
    // Colours a row as the write dialog wants it.
    void markRow(int row, bool highRed, bool lowRed);

    // The four values of a row: lblValH, lblValL, lblBinH, lblBinL.
    enum Column : std::size_t { valHigh, valLow, binHigh, binLow };
    RegisterCell& cell(int row, std::size_t column) { return *cells_[static_cast<std::size_t>(row)][column]; }
    Timer& timRegister() { return timRegister_; }

signals:
    // A value was double-clicked: the register's name and row, the top of the cell in the window plus the top of the window's
    // frame on the screen, and the half.
    void registerWriteWanted(const QString& name, int row, int top, Half half);
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void makeRow(int row);
    void showRow(int row);

    Machine& machine_;
    RegisterView view_;
    RegisterCell::Drawn drawn_;
    std::array<std::array<RegisterCell*, 4>, registerRows + 1> cells_{};
    // What the cells show, to leave alone what didn't change.
    struct Shown {
        int value = -1;
        bool red = false;
    };
    std::array<std::array<Shown, 2>, registerRows + 1> shown_{};
    Timer timRegister_;
};
