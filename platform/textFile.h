// Text files that lie beside the program: UTF-8, with or without byte order mark, or the Japanese code page.

#pragma once

#include <filesystem>
#include <optional>
#include <string>

// The whole file in UTF-8, without its mark. Nothing when it is missing, can't be read or is larger than 4 MiB, which no text
// for a learner is. Bytes that are neither encoding come as replacement characters.
std::optional<std::string> readTextFile(const std::filesystem::path& path);
