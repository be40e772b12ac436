// SPDX-License-Identifier: Apache-2.0
// The profile file: what is read from it, and under the pen: what a new value changes and what it leaves alone.

#include "config/profileFile.h"

#include <gtest/gtest.h>

#include <chrono>
#include <vector>

namespace {

// Latin text as UTF-16, by its byte order, with the mark.
std::string utf16(const std::string& text, bool big) {
    std::string bytes = big ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text) {
        bytes += big ? std::string{'\0', c} : std::string{c, '\0'};
    }
    return bytes;
}

struct Row {
    std::string before;
    int number;         // of KEY in section INIT
    std::string after;  // with KEY=42
};

std::vector<Row> rows() {
    const std::string codePage = "; \x83\x5c\x83\x5d\r\n\x83\x5c=\x83\x5b\r\n";  // second bytes that are ASCII letters
    const std::string half("\x3d\xd8\x00\x00\xe9\x07\x80\x00", 8);  // half a character, one that is 0, two of two bytes
    std::vector<Row> rows{
        // where it stands
        {"[INIT]\r\nA=1\r\nKEY=7\r\nB=2\r\n", 7, "[INIT]\r\nA=1\r\nKEY=42\r\nB=2\r\n"},
        {"\xEF\xBB\xBF; 設定\n[INIT]\n日本=1\nKEY=-7000", -7000, "\xEF\xBB\xBF; 設定\n[INIT]\n日本=1\nKEY=42"},
        {"[OTHER]\nKEY=1\n [init] \n;KEY=2\n\t key \t= \t3 \t\n[MORE]\nKEY=4\n", 3,
         "[OTHER]\nKEY=1\n [init] \n;KEY=2\n\t key \t= \t42 \t\n[MORE]\nKEY=4\n"},
        {"[INIT]\nKEY=1\nKEY=2\n", 1, "[INIT]\nKEY=42\nKEY=2\n"},
        {"[INIT]\nKE=1\nKEYS=1\nKEY=3=1\n", 3, "[INIT]\nKE=1\nKEYS=1\nKEY=42\n"},
        {"[\n[]\n]\n=\n[INIT]\n]\n=\n\nno equals sign\nKEY=3\n", 3, "[\n[]\n]\n=\n[INIT]\n]\n=\n\nno equals sign\nKEY=42\n"},
        {"[INIT]\nKEY=\n", 0, "[INIT]\nKEY=42\n"},
        {"[INIT]\rKEY = \"7\" \rA=1\r", 7, "[INIT]\rKEY = \"42\" \rA=1\r"},
        {"[INIT]\nKEY=7 ; seven\nA=';'\n", 7, "[INIT]\nKEY=42 ; seven\nA=';'\n"},
        {"[INIT]\nKEY='7'\t; 'seven'\n", 7, "[INIT]\nKEY='42'\t; 'seven'\n"},
        {"[INIT]\nKEY= ; none\n", 0, "[INIT]\nKEY=42 ; none\n"},
        {"[INIT]\nKEY=\" ;\"\n", 0, "[INIT]\nKEY=\"42\"\n"},
        {codePage + "[INIT]\r\n" + codePage + "KEY=7\r\n", 7, codePage + "[INIT]\r\n" + codePage + "KEY=42\r\n"},
        {std::string("[INIT]\n\0\0\nKEY=3\n\0", 18), 3, std::string("[INIT]\n\0\0\nKEY=42\n\0", 19)},
        // behind the last line of its section
        {"[INIT]\r\nA=1\r\n\r\n; more\r\n[MORE]\r\nKEY=1\r\n", 0, "[INIT]\r\nA=1\r\nKEY=42\r\n\r\n; more\r\n[MORE]\r\nKEY=1\r\n"},
        {"; alone\n[INIT]\n[MORE]\n[INIT]\nA=1\n", 0, "; alone\n[INIT]\nKEY=42\n[MORE]\n[INIT]\nA=1\n"},
        {"[INIT]\nA=1", 0, "[INIT]\nA=1\nKEY=42"},
        {"[INIT]", 0, "[INIT]\r\nKEY=42"},
        // with its section
        {"", 0, "[INIT]\r\nKEY=42\r\n"},
        {"\xEF\xBB\xBF", 0, "\xEF\xBB\xBF[INIT]\r\nKEY=42\r\n"},
        {"[INITIAL]\nKEY=1\n", 0, "[INITIAL]\nKEY=1\n[INIT]\nKEY=42\n"},
        {"KEY=1\n[MORE]", 0, "KEY=1\n[MORE]\n[INIT]\nKEY=42\n"},
    };
    for (const bool big : {false, true}) {
        rows.push_back({utf16("[INIT]\r\nKEY=7 ; 7\r\n", big) + half, 7, utf16("[INIT]\r\nKEY=42 ; 7\r\n", big) + half});
        rows.push_back({utf16("", big), 0, utf16("[INIT]\r\nKEY=42\r\n", big)});
        rows.push_back({utf16("[INIT]\nKEY=1", big) + "\n", 1, utf16("[INIT]\nKEY=42", big) + "\n"});  // an odd byte at its end
    }
    rows.push_back({utf16("; ", false) + "\x2D\x8A\x9A\x5B" + utf16("\n[INIT]\nKEY=7", false).substr(2), 7,
                    utf16("; ", false) + "\x2D\x8A\x9A\x5B" + utf16("\n[INIT]\nKEY=42", false).substr(2)});  // 設定
    return rows;
}

TEST(ProfileFile, is_read_in_every_form_and_a_new_value_changes_the_bytes_of_the_old_one_and_no_other) {
    for (const Row& row : rows()) {
        ProfileFile profile(row.before);
        EXPECT_EQ(profile.bytes(), row.before);
        EXPECT_EQ(profile.readProfileValue("INIT", "KEY"), row.number) << row.before;
        profile.writeProfileValue("INIT", "KEY", "42");
        EXPECT_EQ(profile.bytes(), row.after);
        EXPECT_EQ(profile.readProfileValue("INIT", "KEY"), 42) << row.before;
    }
}

TEST(ProfileFile, is_read_at_once_however_long_its_lines_are) {
    constexpr int much = 1 << 18;
    std::string comments;
    for (int pair = 0; pair < much; ++pair) {
        comments += " ;";
    }
    const std::string blanks(much, ' ');
    const auto before = std::chrono::steady_clock::now();
    using Line = std::pair<std::string, int>;
    for (const auto& [line, number] :
         {Line{"KEY=" + blanks + "\"" + comments, 0}, Line{"KEY=" + blanks + "3" + comments, 3}, Line{"KEY=3" + blanks, 3},
          Line{blanks + "KEY" + blanks + "=3", 3}, Line{std::string(much, '[') + "\nKEY=3", 0},
          Line{std::string(much, '\n') + "KEY=3", 3}, Line{"KEY=" + std::string(254, '0') + "3", 3},
          Line{"KEY=" + std::string(255, '0') + "3", 0}}) {
        EXPECT_EQ(ProfileFile("[INIT]\n" + line).readProfileValue("INIT", "KEY"), number) << line.substr(0, 40);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(2));
}

TEST(ProfileFile, a_number_is_what_the_text_begins_with) {
    using Number = std::pair<const char*, int>;
    for (const auto& [text, number] :
         {Number{"", 0}, Number{"abc", 0}, Number{"--1", 0}, Number{"-", 0}, Number{" \t5 ", 5}, Number{"+7", 7},
          Number{"007", 7}, Number{"1e3", 1}, Number{"1,9", 1}, Number{"0.51", 1}, Number{"1.5", 2}, Number{"2.5", 2},
          Number{"2.51", 3}, Number{"-1.5", -2}, Number{"-2.5", -2}, Number{".9", 1}, Number{"2.5.1", 2},
          Number{"32767.4", 32767}, Number{"4294967297", 2147483647}}) {
        EXPECT_EQ(leadingNumber(text), number) << "\"" << text << "\"";
    }
    EXPECT_EQ(leadingNumber("-99999999999999999999"), -2147483647);
}

}  // namespace
