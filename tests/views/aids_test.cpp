#include "aids/circuitDiagrams.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmKAIROZU.h"
#include "boards/network.h"
#include "boards/views/frmHard.h"
#include "memwin/views/DumpGrid.h"
#include "memwin/views/MemoryWindows.h"
#include "platform/pictureFile.h"
#include "platform/textFile.h"
#include "tests/views/startedProgram.h"

#include <QDir>
#include <QImage>

#include <set>

namespace {

const std::string withoutHints =
    "[INIT]\r\nCABLECONNECTION=1\r\nMEMORYCLEAR=1\r\nSA-QDA41=1\r\nSA-QDA52=3\r\nCASCADE-QDA41=1\r\nIOS-QDA52=5\r\n"
    "OPENWINDOW1=1\r\nOPENWINDOW3=1\r\n";
const std::string withHints = withoutHints + "OPENWINDOW2=1\r\n";

class Aids : public StartedProgram {
protected:
    void makeFile(const QString& name, const QByteArray& bytes) {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    // A picture whose width tells it from the others.
    void makePicture(const QString& name, int width, Qt::GlobalColor colour = Qt::white) {
        makeFile(name, {});
        QImage picture(width, 40, QImage::Format_RGB32);
        picture.fill(colour);
        ASSERT_TRUE(picture.save(folder.filePath(name), "BMP"));
    }
    frmKAIROZU& diagram() { return *program->aids().circuitDiagram(); }
    frmHint& hint() { return *program->aids().hints(); }
    void changeDuplex() {
        program->bench().bench()->changed(picJumper_Answered(machine(), true));
        for (int index = 0; index < 6; ++index) {
            emit program->bench().bench()->diagramChanged(index);
        }
    }
};

TEST_F(Aids, the_diagram_on_show_follows_its_settings) {
    makePicture("Kairozu/QDA73_FULL.BMP", 300);
    makePicture("Kairozu/qda73_half.bmp", 310);
    makePicture("Kairozu/QDA52_IOS_5.BMP", 320);
    makePicture("Kairozu/QDA52_IOS_7.BMP", 330);
    makePicture("Kairozu/QDA52_ADD_HALF.BMP", 100, Qt::red);
    start(withoutHints);
    frmHard& bench = *program->bench().bench();
    emit bench.diagramChanged(3);
    EXPECT_EQ(program->aids().circuitDiagram(), nullptr) << "nothing is on show";
    emit bench.diagramWanted(3);
    EXPECT_TRUE(diagram().isVisible());
    EXPECT_EQ(diagram().widget()->width(), 300);
    changeDuplex();
    EXPECT_EQ(diagram().widget()->width(), 310) << "a learner's own file is found in any case";
    emit bench.diagramWanted(4);
    EXPECT_EQ(diagram().widget()->width(), 320);
    EXPECT_EQ(diagram().picHalf().width(), 100);
    EXPECT_EQ(diagram().widget()->grab().toImage().pixelColor(50, 20), QColor(Qt::red));
    machine().ios52 = 7;
    emit bench.diagramChanged(0);
    EXPECT_EQ(diagram().widget()->width(), 320) << "another board's setting";
    emit bench.diagramChanged(4);
    EXPECT_EQ(diagram().widget()->width(), 330);
    changeDuplex();
    EXPECT_TRUE(diagram().picHalf().isNull());
    emit bench.diagramGone();
    EXPECT_FALSE(diagram().isVisible());
    emit bench.diagramChanged(4);
    EXPECT_FALSE(diagram().isVisible());
}

TEST_F(Aids, a_picture_that_cannot_be_shown_says_why) {
    makeFile("Kairozu/QDA41_NEST.BMP", "no picture at all");
    makePicture("Kairozu/QDA73_FULL.BMP", 5000);
    start(withHints);
    for (const auto& [index, reason] : {std::pair{0, "QDA60_FULL_16BIT.BMP が見つかりません。"},
                                        {2, "QDA41_NEST.BMP は BMP 形式の画像として読めません。"},
                                        {3, "QDA73_FULL.BMP は大きすぎます。"}}) {
        emit program->bench().bench()->diagramWanted(index);
        EXPECT_TRUE(diagram().isVisible());
        EXPECT_TRUE(diagram().picKAIROZU().isNull());
        EXPECT_EQ(diagram().message(), reason);
    }
    EXPECT_TRUE(hint().isVisible());
    hint().showHintFor("SCR");
    EXPECT_EQ(hint().page(), 0) << "a book without a list has one empty page";
}

TEST_F(Aids, hints_turn_to_what_the_learner_looks_at) {
    // In the Japanese code page: ";" and "コントロール".
    QByteArray list("; \x83\x52\r\n");
    for (const char* name : {"SCR", "SSR", "HPR", "INT0R", "INT1R", "C1CR C2CR"}) {
        list += QByteArray(name) + ".bmp\t" + name + "\r\n";
    }
    list += "cw.bmp\t\x83\x52\x83\x93\x83\x67\x83\x8d\x81\x5b\x83\x8b\r\nBCR.bmp\tBCR\r\n";
    makeFile("HintData/RegsterHint.TXT", list);
    makePicture("HintData/SCR.BMP", 700);
    makePicture("HintData/cw.bmp", 710);
    start(withHints);
    EXPECT_TRUE(hint().isVisible());
    EXPECT_EQ(main().label(Tool::registerHint).cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(hint().pageCount(), 8);
    EXPECT_EQ(hint().page(), 0);
    EXPECT_EQ(hint().picHint().width(), 700);
    EXPECT_EQ(hint().findChild<QAbstractButton*>("tabHint6")->text(), "コントロール");
    EXPECT_EQ(hint().findChild<QAbstractButton*>("tabHint3")->y(), hint().findChild<QAbstractButton*>("tabHint5")->y());
    open(8, 0);
    EXPECT_EQ(hint().page(), 7) << "BCR";
    EXPECT_TRUE(hint().picHint().isNull()) << "its picture is missing";
    QTest::keyClick(&dialog(), Qt::Key_Escape);
    emit program->memory().controlWordPointed();
    EXPECT_EQ(hint().picHint().width(), 710);
    QTest::mouseClick(hint().findChild<QAbstractButton*>("tabHint0"), Qt::LeftButton);
    EXPECT_EQ(hint().picHint().width(), 700);
    hint().close();
    EXPECT_FALSE(hint().isVisible());
    EXPECT_EQ(main().label(Tool::registerHint).cursor().shape(), Qt::BitmapCursor);
    open(8, 0);
    QTest::keyClick(&dialog(), Qt::Key_Escape);
    QTest::mouseClick(&main().label(Tool::registerHint), Qt::LeftButton);
    EXPECT_TRUE(hint().isVisible());
    EXPECT_EQ(hint().page(), 0) << "it stays where it was while it is hidden";
}

// What the build puts beside the program: every picture that the tables name, in the size that its window is made for.
TEST(ThePicturesBesideTheProgram, are_all_there) {
    const std::filesystem::path bin = VRB_BIN;
    Machine machine;
    const auto readable = [&](const char* folder, const std::string& name, qreal ratio) {
        const auto [picture, reason] = loadPicture(bin / folder, QString::fromStdString(name), ratio);
        EXPECT_FALSE(picture.isNull()) << reason.toStdString();
        EXPECT_EQ(picture.devicePixelRatio(), ratio) << name;
        EXPECT_TRUE(std::filesystem::exists(bin / folder / name)) << name << " in exactly these letters";
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
    const auto pages = readHintList(readTextFile(bin / "HintData" / "RegsterHint.TXT").value_or(""));
    ASSERT_EQ(pages.size(), 12U);
    for (const HintPage& page : pages) {
        EXPECT_EQ(readable("HintData", page.picture, 1), QSizeF(620, 460));
    }
    for (const RegisterRow& row : registerTable) {
        const auto page = pageFor(pages, row.name);
        EXPECT_EQ(page.has_value(), row.name != "CC") << row.name;
    }
    EXPECT_NE(pages[controlWordPage].caption.find("コントロールワード"), std::string::npos);
}

}  // namespace
