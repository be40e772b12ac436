#include "config/profileFile.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <system_error>

namespace {

constexpr std::uintmax_t largestFile = std::uintmax_t{1} << 20;
constexpr std::size_t longestValue = 255;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return lowered(x) == lowered(y); });
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view unquoted(std::string_view text) {
    const bool quoted = text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

// Takes the first line off `rest`.
std::string_view takeLine(std::string_view& rest) {
    const std::string_view line = rest.substr(0, rest.find_first_of("\r\n"));
    rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    return line;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

ProfileFile::ProfileFile(std::string bytes) : bytes_(std::move(bytes)) {}

std::string_view ProfileFile::value(std::string_view section, std::string_view key) const {
    std::string_view rest = bytes_;
    if (rest.substr(0, byteOrderMark.size()) == byteOrderMark) {
        rest.remove_prefix(byteOrderMark.size());
    }
    bool inSection = false;
    while (!rest.empty()) {
        const std::string_view line = trimmed(takeLine(rest));
        if (line.empty() || line.front() == ';') {
            continue;
        }
        if (line.front() == '[') {
            inSection = sameName(trimmed(line.substr(1, line.find(']') - 1)), section);
            continue;
        }
        const auto equals = line.find('=');
        if (inSection && equals != std::string_view::npos && sameName(trimmed(line.substr(0, equals)), key)) {
            return unquoted(trimmed(line.substr(equals + 1))).substr(0, longestValue);
        }
    }
    return {};
}

ProfileFile readProfileFile(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return {};
    }
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > largestFile) {
        return {};
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    std::ifstream file(path, std::ios::binary);
    // A read that fails half way leaves no settings rather than half of them.
    if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
        return {};
    }
    return ProfileFile(std::move(bytes));
}

std::int32_t leadingNumber(std::string_view text) {
    text = trimmed(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        text = trimmed(text.substr(1));
    }
    double number = 0;
    double place = 1;
    bool fraction = false;
    for (const char c : text) {
        if (c == '.' && !fraction) {
            fraction = true;
        } else if (!isDigit(c)) {
            break;
        } else if (fraction) {
            place /= 10;
            number += place * (c - '0');
        } else {
            number = number * 10 + (c - '0');
        }
    }
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    const double rounded = std::nearbyint(std::min(number, largest));
    return static_cast<std::int32_t>(negative ? -rounded : rounded);
}
