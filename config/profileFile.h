// SPDX-License-Identifier: Apache-2.0
// A profile file: sections in brackets, a line "key=value" each. Section and key names count in any case, blanks around names
// and values and one pair of quotes around a value don't count, a line beginning with ";" is a comment, and so is what
// follows a blank and ";" behind a value. Of doubled keys the first one counts. Lines end with CR LF, LF or CR. The bytes may
// be UTF-8, with or without byte order mark, the Japanese code page (names and separators are ASCII in both, and no second
// byte of a character of the code page is "=" or ";"), or UTF-16 of either byte order with its mark.
//
// The file belongs to whoever edits it by hand: writing a value changes the bytes of that value and no other.
//
// Not handled: UTF-16 without its mark. Reading takes time in proportion to the length of the file.

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

class ProfileFile {
public:
    ProfileFile() = default;
    explicit ProfileFile(std::string bytes);

    // The value's text, at most 255 bytes of it; empty when section or key are missing.
    std::string_view valueText(std::string_view section, std::string_view key) const;

    // The number that the value's text begins with; 0 when there is none.
    std::int32_t readProfileValue(std::string_view section, std::string_view key) const;

    // Gives a key a value where it stands. A key that is missing comes behind the last line of its section, a section that
    // is missing at the end. All three are ASCII; `value` without blanks, quotes or line ends.
    void writeProfileValue(std::string_view section, std::string_view key, std::string_view value);

    // The file as it is to be written.
    std::string bytes() const;

private:
    enum class Form : std::uint8_t { bytes, utf16Little, utf16Big };

    Form form_ = Form::bytes;
    std::string text_;      // of UTF-16 every unit by itself in UTF-8, so that even half a character comes back as it was
    std::string leftOver_;  // the odd byte at the end of such a file
};

// The number at the start of a text: blanks, a sign, digits and a decimal part; no exponent and no hexadecimal digits. A text
// that doesn't start with a number gives 0. The result is rounded to an integer, a tie to the even one, and stays within
// the range of 32 bits.
std::int32_t leadingNumber(std::string_view text);
