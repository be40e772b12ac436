// A profile file: sections in brackets, a line "key=value" each. Section and key names count in any case, blanks around names
// and values and one pair of quotes around a value don't count, a line beginning with ";" is a comment, and so is what
// follows a blank and ";" behind a value. Of doubled keys the first one counts. Lines end with CR LF, LF or CR. The bytes may
// be UTF-8, with or without byte order mark, or the Japanese code page: names and separators are ASCII in both, and no second
// byte of a character of the code page is "=" or ";".
//
// The file belongs to whoever edits it by hand: setting a value changes the bytes of that value and no other.
//
// Not handled: files in UTF-16. Of two programs that save at the same moment the later one's file stays, whole.

#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

class ProfileFile {
public:
    ProfileFile() = default;
    explicit ProfileFile(std::string bytes);

    // The value of a key, at most 255 bytes of it; empty when section or key are missing.
    std::string_view value(std::string_view section, std::string_view key) const;

    // Gives a key a value where it stands. A key that is missing comes behind the last line of its section, a section that
    // is missing at the end. `value`: no blanks, quotes or line ends.
    void setValue(std::string_view section, std::string_view key, std::string_view value);

    const std::string& bytes() const { return bytes_; }

private:
    std::string bytes_;
};

// A file that could not be read or written, and why.
struct FileError {
    std::filesystem::path file;
    std::error_code reason;
};

// Reads a whole file. A missing one is an empty profile without an error. One that is unreadable, a folder or larger than
// 1 MiB is an error: nothing that anybody wrote as settings is larger, and the start must not hang on it.
std::optional<FileError> readProfileFile(const std::filesystem::path& path, ProfileFile& profile);

// The same for whoever has no use for the error: the profile is then empty.
ProfileFile readProfileFile(const std::filesystem::path& path);

// The steps of a save, in their order. `write` comes once for each block of 4 KiB; `settle` brings the folder's new entry to the
// disk, and is the only one whose failure is none of the save: the file is there.
enum class SaveStep { folder, create, write, flush, close, permissions, rename, settle };

// Asked before each step of a save; an error that it returns makes the step fail. It is here for tests.
using SaveFault = std::function<std::error_code(SaveStep)>;

// Writes a profile as a file, with the folders that are missing. The bytes go to a new file beside it, which takes the place
// of the old one when it is whole and on the disk: whatever breaks in, `path` is the old file or the new one. A link stays
// a link, and the file keeps its permissions; one that is write-protected is left alone. After an error the old file is untouched
// and the new one gone; a kill may leave a file "<name>.<digits>.tmp" behind.
std::optional<FileError> saveProfileFile(const std::filesystem::path& path, const ProfileFile& profile,
                                         const SaveFault& fault = {});

// Whether files can be made in a folder; false for one that is missing.
bool folderWritable(const std::filesystem::path& folder);

// The number at the start of a text: blanks, a sign, digits and a decimal part; no exponent and no hexadecimal digits. A text
// that doesn't start with a number gives 0. The result is rounded to an integer, a tie to the even one, and stays within
// the range of 32 bits.
std::int32_t leadingNumber(std::string_view text);
