// SPDX-License-Identifier: Apache-2.0
// Files that are read and written as a whole, and never without a bound: whoever wrote them, a start or a gesture must not hang
// on one.

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>

// Reads a file to its end, however long it was said to be. Errors: what the system says; a file of more than `limit` bytes is
// file_too_large, a folder is_a_directory, a device or a pipe, also behind a link, invalid_argument; one that is missing
// no_such_file_or_directory. `bytes` is empty after an error.
std::error_code readWholeFile(const std::filesystem::path& path, std::size_t limit, std::string& bytes);

// Writes a file, with the folders that are missing. The bytes go to a new file beside it, which takes the place of the old one
// when it is whole and on the disk: whatever breaks in, `path` is the old file or the new one. A link stays a link; the file
// keeps its permissions, and its owner and group where the system allows; one that is write-protected is left alone
// (permission_denied), also for an administrator. After an error the old file is untouched and the new one gone.
//
// A kill leaves nothing behind where the system has files without a name (Linux on its own disks). Elsewhere it may leave
// "<name>.<six letters>", which nobody removes: a person's "<name>.backup" has the same form.
//
// In a browser its storage keeps the bytes under the file's path, and readWholeFile hands them out from there.
std::error_code saveWholeFile(const std::filesystem::path& path, const std::string& bytes);

// Whether files can be made in a folder; false for one that is missing.
bool folderWritable(const std::filesystem::path& folder);
