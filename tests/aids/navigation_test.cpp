// SPDX-License-Identifier: Apache-2.0
#include "aids/navigation.h"

#include <gtest/gtest.h>

namespace {

using Runs = std::vector<TextRun>;
using enum TextColour;

TEST(Navigation, markers_colour_what_stands_behind_them) {
    EXPECT_EQ(markedRuns("青は#青&、赤は\\赤"), (Runs{{black, "青は"}, {blue, "青"}, {black, "、赤は"}, {red, "赤"}}));
    EXPECT_EQ(markedRuns("#\\WARN&"), (Runs{{red, "WARN"}}));
    EXPECT_EQ(markedRuns("plain"), (Runs{{black, "plain"}}));
    EXPECT_TRUE(markedRuns("").empty() && markedRuns("&#\\").empty());
    EXPECT_EQ(markedRuns(std::string(29999, 'x') + "赤")[0].text.size(), 29999U) << "no half character";
}

TEST(Navigation, a_tour_is_read_in_groups_of_three) {
    Tour tour = readTour("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n");
    EXPECT_EQ(tour.naviPages, 2) << "line 7 is never shown";
    EXPECT_FALSE(hasPageBefore(tour));
    turnPage(tour, -1);
    EXPECT_EQ(tour.naviPage, 1);
    turnPage(tour, 1);
    EXPECT_FALSE(hasPageBehind(tour));
    turnPage(tour, 1);
    EXPECT_EQ(tour.naviPage, 2);
    EXPECT_EQ(shownLine(tour, 0), "4");
    EXPECT_EQ(shownLine(tour, 1), "5");
    EXPECT_EQ(readTour("a\n\nc\n\n\n").naviPages, 1) << "an empty line is a line";
    EXPECT_EQ(readTour("a\n\nc\n\n\n\n").naviPages, 2);
    // Fewer lines than a page: what there is.
    const Tour oneLine = readTour("only");
    EXPECT_EQ(oneLine.naviPages, 0);
    EXPECT_FALSE(hasPageBehind(oneLine));
    EXPECT_EQ(shownLine(oneLine, 0), "only");
    EXPECT_EQ(shownLine(oneLine, 1), "");
    EXPECT_EQ(shownLine(readTour(""), 0), "");
    const Tour longest = readTour(std::string(4 << 20, '\n'));
    EXPECT_EQ(longest.naviPages, 32767) << "as many as the number can tell";
    EXPECT_EQ(longest.naviLines.size(), 32767U * 3);
}

TEST(Navigation, the_index_names_a_tour_a_line) {
    const auto index =
        readNaviIndex("; comment\tx\ty\r\nT1.txt\tFirst\tnote\tmore\r\ntwo\tfields\r\n\r\nT2.txt\t二番目\t\r\n;T3.txt\tThird\t\n",
                      [](const std::string& name) { return name == "T2.txt"; });
    ASSERT_EQ(index.size(), 3U);
    EXPECT_EQ(index[0].fileName + index[1].fileName + ":" + index[1].remark + ":" + index[2].title, "T1.txt:note\tmore:二番目");
    EXPECT_TRUE(!index[0].fileFound && !index[1].fileFound && index[2].fileFound);

    std::string many;
    for (int tour = 0; tour < 300000; ++tour) {
        many += "T\tT\t\n";
    }
    int asked = 0;
    EXPECT_EQ(readNaviIndex(many, [&asked](const std::string&) { return ++asked != 0; }).size(), 1U + 500);
    EXPECT_EQ(asked, 500);
}

}  // namespace
