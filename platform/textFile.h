// SPDX-License-Identifier: Apache-2.0
// Text files that lie beside the program: UTF-8, with or without byte order mark, UTF-16 with it, or the Japanese code page.

#pragma once

#include <filesystem>
#include <optional>
#include <string>

// The whole file in UTF-8, without its mark. Nothing when it is missing, can't be read, is no plain file or is larger than
// 4 MiB, which no text for a learner is. Bytes that are of none of the encodings come as replacement characters.
std::optional<std::string> readTextFile(const std::filesystem::path& path);
