#include "aids/circuitDiagrams.h"
#include "aids/hintPages.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

TEST(CircuitDiagram, follows_every_setting_that_it_shows) {
    struct Row {
        int index, cpuType, duplex;
        bool cascade;
        Diagram files;
    };
    const std::initializer_list<Row> rows{
        {0, 0, 16, true, {"QDA60_FULL_16BIT.BMP", ""}},
        {0, 1, 16, true, {"QDA60_FULL_8BIT.BMP", ""}},
        {0, 2, 0, true, {"QDA60_HALF_16BIT.BMP", ""}},
        {0, 3, 0, true, {"QDA60_HALF_8BIT.BMP", ""}},
        {1, 0, 16, true, {"QDA41_FULL_NEST.BMP", ""}},
        {1, 0, 0, true, {"QDA41_FULL_NEST.BMP", "QDA41_ADD_HALF.BMP"}},
        {1, 0, 16, false, {"QDA41_FULL.BMP", ""}},
        {1, 1, 0, false, {"QDA41_FULL.BMP", "QDA41_ADD_HALF.BMP"}},
        {2, 0, 0, true, {"QDA41_NEST.BMP", ""}},
        {3, 0, 16, true, {"QDA73_FULL.BMP", ""}},
        {3, 0, 0, true, {"QDA73_HALF.BMP", ""}},
        {5, 0, 16, true, {"", ""}},
        {-1, 0, 16, true, {"", ""}},
    };
    Machine machine = makersMachine();
    for (const Row& row : rows) {
        machine.cpuType = static_cast<std::int16_t>(row.cpuType);
        machine.duplexBit = static_cast<std::uint8_t>(row.duplex);
        machine.picBridge.visible = row.cascade;
        EXPECT_EQ(diagramFor(machine, row.index), row.files) << row.index << " " << row.files.picture;
    }
    for (std::int16_t mode = 0; mode < 8; ++mode) {
        machine.ios52 = mode;
        const std::string picture = "QDA52_IOS_" + std::to_string(mode) + ".BMP";
        machine.duplexBit = 16;
        EXPECT_EQ(diagramFor(machine, 4), (Diagram{picture, ""}));
        machine.duplexBit = 0;
        EXPECT_EQ(diagramFor(machine, 4), (Diagram{picture, "Qda52_add_half.bmp"}));
    }
}

TEST(HintPages, are_the_lines_that_are_no_comment) {
    const std::vector<HintPage> pages{{"scr.bmp", "SCR"},       {"no tab", ""},       {"", ""},
                                      {"c.bmp", " C1CR C2CR "}, {"int.bmp", "INT0R"}, {"e.bmp", ""}};
    EXPECT_EQ(
        readHintList("scr.bmp\tSCR\tignored\r\n;no.bmp\tno page\r\nno tab\r\n\r\nc.bmp\t C1CR C2CR \nint.bmp\tINT0R\re.bmp\t"),
        pages);
    EXPECT_TRUE(readHintList("").empty());
    EXPECT_EQ(readHintList(";\n" + std::string(4 << 20, '\n')).size(), 99U);
    EXPECT_EQ(readHintList(std::string(999, 'x') + "試\t" + std::string(2000, 'y'))[0],
              (HintPage{std::string(999, 'x'), std::string(1000, 'y')}))
        << "no half character";
    EXPECT_EQ(pageFor(pages, "C2CR"), 3U) << "a part of a caption";
    EXPECT_EQ(pageFor({{"a", "xSCRx"}, {"b", "SCR"}}, "SCR"), 0U) << "the first match wins";
    EXPECT_EQ(pageFor(pages, "BCR"), std::nullopt);
}

}  // namespace
