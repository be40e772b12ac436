#include "aids/progressLine.h"

#include <gtest/gtest.h>

namespace {

TEST(ProgressLine, brings_a_message_to_the_middle_of_33_places) {
    struct Row {
        std::size_t length, blanks;
    };
    // Half a place goes to the even number.
    for (const Row& row : {Row{1, 16}, Row{2, 16}, Row{4, 14}, Row{9, 12}, Row{30, 2}, Row{31, 1}, Row{32, 0}, Row{33, 0},
                           Row{34, 0}, Row{60, 0}}) {
        const std::u16string text(row.length, u'中');
        EXPECT_EQ(progressLine(text), std::u16string(row.blanks, u'　') + text) << "length " << row.length;
    }
}

}  // namespace
