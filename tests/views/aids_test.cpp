// SPDX-License-Identifier: Apache-2.0
// The pictures that help the learner: circuit diagrams and the hint book, from files of a learner's own and from those that come
// with the program.

#include "aids/circuitDiagrams.h"
#include "aids/views/frmKAIROZU.h"
#include "platform/pictureFile.h"
#include "platform/textFile.h"
#include "tests/views/desk.h"

namespace {

class Aids : public Desk {
protected:
    // A picture whose width tells it from the others.
    void makePicture(const char* name, int width, Qt::GlobalColor colour = Qt::white) {
        makeFile(name, "");
        QImage picture(width, 40, QImage::Format_RGB32);
        picture.fill(colour);
        ASSERT_TRUE(picture.save(QString::fromStdString((folder / name).string()), "BMP"));
    }
    frmKAIROZU& diagram() { return *program->aids().circuitDiagram(); }
    frmHint& hint() { return *program->aids().hints(); }
};

TEST_F(Aids, a_learners_own_diagram_follows_its_settings) {
    makePicture("Kairozu/qda52_ios_5.bmp", 320);
    makePicture("Kairozu/QDA52_IOS_7.BMP", 330);
    makePicture("Kairozu/QDA52_ADD_HALF.BMP", 100, Qt::red);
    startAtBench();
    emit bench().diagramChanged(4);
    EXPECT_EQ(program->aids().circuitDiagram(), nullptr) << "nothing is on show";
    play("dblclick picQDA 4");
    EXPECT_EQ(diagram().widget()->width(), 320) << "found in any case";
    play("write SCR 0000 ; wait 1 ; dblclick picJumper 0 ; ok ; ok");
    EXPECT_EQ(diagram().widget()->grab().toImage().pixelColor(50, 20), QColor(Qt::red));
    machine().ios52 = 7;
    emit bench().diagramChanged(0);
    EXPECT_EQ(diagram().widget()->width(), 320) << "another board's setting";
    emit bench().diagramChanged(4);
    EXPECT_EQ(diagram().widget()->width(), 330);
    play("dblclick picJumper 0 ; ok");
    EXPECT_TRUE(diagram().picHalf().isNull());
}

TEST_F(Aids, a_picture_that_cannot_be_shown_says_why) {
    makeFile("Kairozu/QDA41_NEST.BMP", "no picture at all");
    makePicture("Kairozu/QDA73_FULL.BMP", 5000);
    makePicture("HintData/SCR.BMP", 700);
    // In the Japanese code page: ";" and "コントロール".
    makeFile("HintData/RegsterHint.TXT",
             "; \x83\x52\r\nscr.bmp\tSCR\r\nssr.bmp\t\x83\x52\x83\x93\x83\x67\x83\x8d\x81\x5b\x83\x8b\r\nBCR.bmp\tBCR\r\n");
    startAtBench(withHintsAndDump);
    for (const auto& [index, reason] : {std::pair{0, "QDA60_FULL_16BIT.BMP が見つかりません。"},
                                        {2, "QDA41_NEST.BMP は BMP 形式の画像として読めません。"},
                                        {3, "QDA73_FULL.BMP は大きすぎます。"}}) {
        emit bench().diagramWanted(index);
        EXPECT_TRUE(diagram().isVisible() && diagram().picKAIROZU().isNull());
        EXPECT_EQ(diagram().message(), reason);
    }
    EXPECT_EQ(hint().pageCount(), 3);
    EXPECT_EQ(hint().picHint().width(), 700);
    play("press hint = コントロール");
    EXPECT_TRUE(hint().page() == 1 && hint().picHint().isNull()) << "its picture is missing";
}

// What the build puts beside the program: every picture that the tables name, in the size that its window is made for.
TEST_F(Aids, the_pictures_beside_the_program_are_all_there) {
    const fs::path bin = VRB_BIN;
    Machine machine;
    const auto readable = [&](const char* of, const std::string& name, qreal ratio) {
        const auto [picture, reason] = loadPicture(bin / of, QString::fromStdString(name), ratio);
        EXPECT_FALSE(picture.isNull()) << reason.toStdString();
        EXPECT_EQ(picture.devicePixelRatio(), ratio) << name;
        EXPECT_TRUE(fs::exists(bin / of / name)) << name << " in exactly these letters";
        return picture.deviceIndependentSize();
    };
    std::set<std::string> seen;
    for (int setting = 0; setting < 5 * 2 * 2 * 2 * 8; ++setting) {
        machine.duplexBit = setting & 1 ? 16 : 0;
        machine.cpuType = static_cast<std::int16_t>(setting >> 1 & 1);
        machine.picBridge.visible = (setting >> 2 & 1) != 0;
        machine.ios52 = static_cast<std::int16_t>(setting >> 3 & 7);
        const Diagram diagram = diagramFor(machine, setting >> 6);
        if (!seen.insert(diagram.picture + diagram.overlay).second) {
            continue;
        }
        const QSizeF size = readable("Kairozu", diagram.picture, 1);
        EXPECT_EQ(readable("Kairozu", diagram.picture, 2), size);
        if (!diagram.overlay.empty()) {
            const QSizeF overlay = readable("Kairozu", diagram.overlay, 1);
            EXPECT_TRUE(overlay.width() < size.width() && overlay.height() < size.height()) << "it covers a corner";
        }
    }
    EXPECT_EQ(seen.size(), 4U + 4 + 1 + 2 + 16);
    giveFolder(bin / "HintData");
    startAtBench(withHintsAndDump);
    const auto pages = readHintList(readTextFile(bin / "HintData" / "RegsterHint.TXT").value_or(""));
    for (std::size_t page = 0; page < pages.size(); ++page) {
        EXPECT_EQ(readable("HintData", pages[page].picture, 1), QSizeF(620, 460));
        const auto* tab = hint().findChild<QPushButton*>(QStringLiteral("tabHint%1").arg(page));
        EXPECT_EQ(tab->text().remove('&').toStdString(), pages[page].caption) << "cut off";
    }
    for (const RegisterRow& row : registerTable) {
        EXPECT_TRUE(pageFor(pages, row.name)) << row.name;
    }
    EXPECT_NE(pages.at(controlWordPage).caption.find("コントロールワード"), std::string::npos);
}

}  // namespace
