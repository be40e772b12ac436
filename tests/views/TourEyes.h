// SPDX-License-Identifier: Apache-2.0
// The eyes of the player of tours: what a promise speaks of lies uncovered, and this is what there is to see.

#pragma once

#include "access/hexText.h"
#include "access/memoryAccess.h"
#include "access/registers.h"
#include "access/views/frmRegister.h"
#include "aids/views/frmDialog.h"
#include "aids/views/frmMessage.h"
#include "memwin/views/frmDump.h"
#include "tests/views/LearnersScreen.h"
#include "tests/views/TourPlayer.h"
#include "tests/views/hands.h"

#include <QLabel>
#include <QMdiSubWindow>

#include <algorithm>
#include <stdexcept>

inline bool isOfArea(const QWidget* window) {
    return qobject_cast<const QMdiSubWindow*>(window) != nullptr;
}

class TourEyes {
public:
    TourEyes(Program& program, Eyes eyes)
        : program_(program), sight_(program.sight()), screen_(eyes == Eyes::open), eyes_(eyes) {}

    // What keeps the learner from seeing it fails.
    void see(const QWidget& widget, const QRect& rect) {
        if (eyes_ == Eyes::open) {
            EXPECT_EQ(screen_.over(widget, rect), "") << "lies over it";
        }
    }
    void see(const QWidget& widget) { see(widget, widget.rect()); }

    // What a promise speaks of is not covered. What is said comes up in front.
    void look(const Statement& promise) {
        constexpr std::array<std::size_t, 4> switchesOf{2, 0, 0, 4};  // Board-3 has none and follows Board-2
        const std::string_view verb = promise.word->verb;
        if (promise.place && !promise.name.empty()) {
            lookAtRegister(promise);
        } else if (promise.word->present == nullptr || promise.name == "keyboard" || eyes_ == Eyes::closed) {
            return;
        } else if (promise.place) {
            lookAtMemory(promise);
        } else if (verb == "sa") {
            lookAtBench("picSA", switchesOf[promise.index - 1]);
            lookAtBench("picSA", switchesOf[promise.index - 1] + 1);
        } else if (verb == "bus") {
            see(*sight_.window("control")->findChild<QLabel*>("lblCPUType"));
        } else if (verb == "got") {
            see(*sight_.window("read")->findChild<QLabel*>("lblData"));
        } else if (promise.name == tourBench || std::count(tourWindows.begin(), tourWindows.end(), promise.name) != 0) {
            lookAtWindow(promise.name);
        } else {
            lookAtBench(promise.name, promise.index);
        }
    }

    // What there is where a promise looks.
    std::string now(const Statement& promise) {
        const std::optional<std::string> there = present(promise, program_.machine(), sight_);
        EXPECT_TRUE(there.has_value()) << "no such part";
        return there.value_or("");
    }

    std::string said() const {
        const frmMessage* popup = program_.aids().message();
        const frmDialog* dialog = program_.aids().dialog();
        const QString text = isUp(dialog)  ? dialog->findChild<QLabel*>("lblMessage")->text()
                             : isUp(popup) ? popup->text()
                                           : QString();
        return plainText(text.toStdString());
    }

    // With its frame: a window of the area has its title and its box on that.
    QWidget* window(const std::string& name) {
        QWidget* found = name == tourBench ? program_.bench().bench() : sight_.window(name);
        return found != nullptr && isOfArea(found->parentWidget()) ? found->parentWidget() : found;
    }

    // A piece of its title that can be seen, as a point of the screen.
    std::optional<QPoint> titleOf(const QWidget& window) const { return screen_.titleOf(window); }
    bool closeBoxSeen(const QWidget& window) const {
        return eyes_ == Eyes::closed || screen_.titleSeen(window, LearnersScreen::closeBoxOf(window).x(), 1);
    }

    static const DumpArea& areaOf(int place) {
        return *std::find_if(dumpAreas.begin(), dumpAreas.end(), [place](const DumpArea& area) {
            return place >= area.firstByte && place < area.firstByte + area.cells;
        });
    }
    frmDump& dumpOf(int place) {
        frmDump* dump = program_.memory().window(areaOf(place).area);
        if (!isUp(dump)) {
            throw std::runtime_error("its dump window is shut");  // what follows can't be played
        }
        return *dump;
    }
    QRect cellOf(int place) {
        const int offset = busToMemoryIndex(program_.machine(), place) - areaOf(place).firstByte;
        return dumpOf(place).grid().cellRect(addressToLabel(program_.machine(), offset), DumpGrid::Side::data);
    }

private:
    // By its title or a good piece of its face, or as a whole where it has no title; one that is shut is not to be seen.
    void lookAtWindow(const std::string& name) {
        const QWidget* open = window(name);
        if (!isUp(open)) {
            return;
        }
        const bool titled = (open->isWindow() || isOfArea(open)) && !(open->windowFlags() & Qt::FramelessWindowHint);
        if (titled) {
            const QRect piece(open->rect().center(), QSize(open->width() / 4, 30));
            EXPECT_TRUE(screen_.titleOf(*open).has_value() || screen_.over(*open, piece).empty()) << "title and face are covered";
        } else {
            see(*open);
        }
    }

    // Where a part or label is, or would be.
    void lookAtBench(const std::string& name, std::size_t index) {
        frmHard& bench = *program_.bench().bench();
        const QGraphicsItem* item = bench.part(name, index);
        item = item != nullptr ? item : bench.label(name, index);
        ASSERT_NE(item, nullptr) << "no such part";
        QWidget& viewport = *bench.view().viewport();
        const QRect rect = bench.view().mapFromScene(item->mapRectToScene(item->shape().boundingRect())).boundingRect();
        // The bench grows narrower with the last part of its right column.
        if (item->isVisible() || viewport.rect().contains(rect)) {
            see(viewport, rect);
        }
    }

    void lookAtMemory(const Statement& s) {
        for (int place = *s.place; place < *s.place + s.digits / 2; ++place) {
            see(dumpOf(place).grid(), cellOf(place));
        }
    }

    // Its cells can be seen, and show what the machine has.
    void lookAtRegister(const Statement& s) {
        frmRegister* window = program_.registers().window();
        ASSERT_TRUE(isUp(window)) << "the register window is shut";
        const int row = (*s.place - registerBase) / 2 + 1;
        const bool low = s.digits == 4 || *s.place % 2 == 0;
        std::string shown;
        for (const auto column : {frmRegister::valHigh, frmRegister::valLow}) {
            if (s.digits == 4 || low == (column == frmRegister::valLow)) {
                see(window->cell(row, column));
                shown += window->cell(row, column).text().toStdString();
            }
        }
        EXPECT_EQ(shown, now(s));
    }

    Program& program_;
    const TourSight& sight_;
    LearnersScreen screen_;
    Eyes eyes_;
};
