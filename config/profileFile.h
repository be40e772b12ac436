// A profile file: sections in brackets, a line "key=value" each. Section and key names count in any case, blanks around names
// and values and one pair of quotes around a value don't count, a line beginning with ";" is a comment, and of doubled keys
// the first one counts. Lines end with CR LF, LF or CR. The bytes may be UTF-8, with or without byte order mark, or the
// Japanese code page: names and separators are ASCII in both, and no second byte of a character of the code page is "=".

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

class ProfileFile {
public:
    ProfileFile() = default;
    explicit ProfileFile(std::string bytes);

    // The value of a key, at most 255 bytes of it; empty when section or key are missing.
    std::string_view value(std::string_view section, std::string_view key) const;

private:
    std::string bytes_;
};

// Reads a whole file. One that is missing, unreadable, a folder or larger than 1 MiB reads as an empty one: nothing that
// anybody wrote as settings is larger, and the start must not hang on it.
ProfileFile readProfileFile(const std::filesystem::path& path);

// The number at the start of a text: blanks, a sign, digits and a decimal part; no exponent and no hexadecimal digits. A text
// that doesn't start with a number gives 0. The result is rounded to an integer, a tie to the even one, and stays within
// the range of 32 bits.
std::int32_t leadingNumber(std::string_view text);
