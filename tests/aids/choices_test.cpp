// SPDX-License-Identifier: Apache-2.0
#include "aids/hintPages.h"
#include "aids/progressLine.h"
#include "tests/machines.h"

#include <gtest/gtest.h>

namespace {

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

TEST(ProgressLine, brings_a_message_to_the_middle_and_the_bar_over_it_in_eight_steps) {
    // Half a place goes to the even number.
    for (const auto& [length, blanks] :
         Rows<2>{{1, 16}, {2, 16}, {4, 14}, {9, 12}, {30, 2}, {31, 1}, {32, 0}, {33, 0}, {34, 0}, {60, 0}}) {
        const std::u16string text(static_cast<std::size_t>(length), u'中');
        EXPECT_EQ(progressLine(text), std::u16string(static_cast<std::size_t>(blanks), u'　') + text) << "length " << length;
    }
    int step = 0;
    for (const int width : {0, 50, 100, 150, 200, 250, 300, 350, 400, 400}) {
        EXPECT_EQ(progressBarWidth(400, step), width);
        step = nextProgressStep(step);
    }
}

}  // namespace
