// SPDX-License-Identifier: Apache-2.0
#include "config/profileFile.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace {

constexpr std::size_t longestValue = 255;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

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

// Places in the bytes of a file, counted from its begin.
struct Span {
    std::size_t begin = 0;
    std::size_t end = 0;
};

Span trimmed(std::string_view bytes, Span span) {
    while (span.begin < span.end && blanks.find(bytes[span.begin]) != std::string_view::npos) {
        ++span.begin;
    }
    while (span.begin < span.end && blanks.find(bytes[span.end - 1]) != std::string_view::npos) {
        --span.end;
    }
    return span;
}

bool quoted(std::string_view text) {
    return text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
}

// The value within what follows "=": without blanks, quotes and a comment behind it. Quotes hold a ";" together.
Span valueWithin(std::string_view bytes, Span right) {
    const auto text = [bytes](Span span) { return bytes.substr(span.begin, span.end - span.begin); };
    Span value = trimmed(bytes, right);
    const bool quote = text(value).starts_with('"') || text(value).starts_with('\'');
    Span before{value.begin, value.begin};  // what stands before `at`, without the blanks behind it
    for (std::size_t at = right.begin; at < right.end; ++at) {
        const bool blank = blanks.find(bytes[at]) != std::string_view::npos;
        const bool comment = bytes[at] == ';' && at > right.begin && blanks.find(bytes[at - 1]) != std::string_view::npos;
        if (comment && (!quote || quoted(text(before)))) {
            // No value at all keeps its blank before the comment.
            value = before.begin < before.end ? before : Span{right.begin, right.begin};
            break;
        }
        before.end = blank ? before.end : at + 1;
    }
    return quoted(text(value)) ? Span{value.begin + 1, value.end - 1} : value;
}

std::size_t bodyBegin(std::string_view bytes) {
    return bytes.substr(0, byteOrderMark.size()) == byteOrderMark ? byteOrderMark.size() : 0;
}

// The line that begins at `begin`, without its line end.
Span lineAt(std::string_view bytes, std::size_t begin) {
    return {begin, std::min(bytes.size(), bytes.find_first_of("\r\n", begin))};
}

std::size_t behindLineEnd(std::string_view bytes, std::size_t end) {
    return std::min(bytes.size(), end + (bytes.substr(end, 2) == "\r\n" ? 2 : 1));
}

// Where a key's value stands, and where a line of its section would be put: behind the last one of the section's first part.
struct Found {
    std::optional<Span> value;
    std::optional<Span> lastLine;
};

Found find(std::string_view bytes, std::string_view section, std::string_view key) {
    Found found;
    bool inSection = false;
    bool firstPart = true;
    for (std::size_t next = bodyBegin(bytes); next < bytes.size();) {
        const Span whole = lineAt(bytes, next);
        next = behindLineEnd(bytes, whole.end);
        const Span place = trimmed(bytes, whole);
        const std::string_view line = bytes.substr(place.begin, place.end - place.begin);
        if (line.empty() || line.front() == ';') {
            continue;
        }
        if (line.front() == '[') {
            firstPart = !found.lastLine.has_value();
            inSection = sameName(trimmed(line.substr(1, line.find(']') - 1)), section);
        }
        if (!inSection) {
            continue;
        }
        if (firstPart) {
            found.lastLine = whole;
        }
        const auto equals = line.find('=');
        if (line.front() != '[' && equals != std::string_view::npos && sameName(trimmed(line.substr(0, equals)), key)) {
            found.value = valueWithin(bytes, {place.begin + equals + 1, whole.end});
            return found;
        }
    }
    return found;
}

// The line end that a file has; that of the desktop it comes from for a file without any.
std::string lineEndOf(std::string_view bytes) {
    const std::size_t end = bytes.find_first_of("\r\n");
    return end == std::string_view::npos ? "\r\n" : std::string(bytes.substr(end, behindLineEnd(bytes, end) - end));
}

// --- UTF-16 ----------------------------------------------------------------------------------------------------------------

constexpr std::string_view markLittle = "\xFF\xFE";
constexpr std::string_view markBig = "\xFE\xFF";
constexpr unsigned tailBits = 6;
constexpr unsigned tailMask = 0x3F;

unsigned byteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

void appendByte(std::string& text, unsigned byte) {
    text += static_cast<char>(byte);
}

// One unit of UTF-16, as one to three bytes.
void appendUnit(std::string& text, unsigned unit) {
    if (unit < 0x80) {
        appendByte(text, unit);
    } else if (unit < 0x800) {
        appendByte(text, 0xC0 | unit >> tailBits);
        appendByte(text, 0x80 | (unit & tailMask));
    } else {
        appendByte(text, 0xE0 | unit >> (2 * tailBits));
        appendByte(text, 0x80 | (unit >> tailBits & tailMask));
        appendByte(text, 0x80 | (unit & tailMask));
    }
}

std::string textOfUnits(std::string_view bytes, bool big) {
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        appendUnit(text, byteAt(bytes, at + (big ? 0 : 1)) << 8 | byteAt(bytes, at + (big ? 1 : 0)));
    }
    return text;
}

std::string unitsOfText(std::string_view text, bool big) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const unsigned first = byteAt(text, at++);
        const int tails = first < 0x80 ? 0 : first < 0xE0 ? 1 : 2;
        unsigned unit = tails == 0 ? first : tails == 1 ? first & 0x1F : first & 0x0F;
        for (int tail = 0; tail < tails; ++tail) {
            unit = unit << tailBits | (byteAt(text, at++) & tailMask);
        }
        appendByte(bytes, big ? unit >> 8 : unit & 0xFF);
        appendByte(bytes, big ? unit & 0xFF : unit >> 8);
    }
    return bytes;
}

}  // namespace

ProfileFile::ProfileFile(std::string bytes) : text_(std::move(bytes)) {
    if (text_.starts_with(markLittle) || text_.starts_with(markBig)) {
        form_ = text_.starts_with(markBig) ? Form::utf16Big : Form::utf16Little;
        leftOver_ = text_.size() % 2 != 0 ? text_.substr(text_.size() - 1) : std::string();
        text_ = textOfUnits(text_, form_ == Form::utf16Big);  // its first character is the mark, here as there
    }
}

std::string ProfileFile::bytes() const {
    return form_ == Form::bytes ? text_ : unitsOfText(text_, form_ == Form::utf16Big) + leftOver_;
}

std::string_view ProfileFile::valueText(std::string_view section, std::string_view key) const {
    const std::string_view text = text_;
    const std::optional<Span> place = find(text, section, key).value;
    return place ? text.substr(place->begin, std::min(place->end - place->begin, longestValue)) : std::string_view();
}

std::int32_t ProfileFile::readProfileValue(std::string_view section, std::string_view key) const {
    return leadingNumber(valueText(section, key));
}

void ProfileFile::writeProfileValue(std::string_view section, std::string_view key, std::string_view value) {
    const Found found = find(text_, section, key);
    if (found.value) {
        text_.replace(found.value->begin, found.value->end - found.value->begin, value);
        return;
    }
    const std::string lineEnd = lineEndOf(text_);
    const std::string line = std::string(key) + "=" + std::string(value);
    if (!found.lastLine) {
        const bool openEnd = text_.size() > bodyBegin(text_) && text_.back() != '\r' && text_.back() != '\n';
        text_ += (openEnd ? lineEnd : "") + "[" + std::string(section) + "]" + lineEnd + line + lineEnd;
    } else {
        // A last line without a line end stays one.
        text_.insert(found.lastLine->end, lineEnd + line);
    }
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
