#include "config/profileFile.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <limits>
#include <random>
#include <utility>

#ifdef _WIN32
#include <io.h>
#elif __has_include(<unistd.h>)
#define VRB_POSIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largestFile = std::uintmax_t{1} << 20;
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
    for (std::size_t at = right.begin + 1; at < right.end; ++at) {
        const bool comment = bytes[at] == ';' && blanks.find(bytes[at - 1]) != std::string_view::npos;
        const Span before = comment ? trimmed(bytes, {right.begin, at}) : value;
        if (comment && (!quote || quoted(text(before)))) {
            // No value at all keeps its blank before the comment.
            value = before.begin < before.end ? before : Span{right.begin, right.begin};
            break;
        }
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

std::error_code lastError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

// A file that is being written: made new, so that nobody else's is taken for it.
class NewFile {
public:
    explicit NewFile(const fs::path& path) {
        errno = 0;
#ifdef _WIN32
        file_ = _wfopen(path.c_str(), L"wbx");
#else
        file_ = std::fopen(path.c_str(), "wbx");
#endif
    }
    ~NewFile() {
        close();
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    bool isOpen() const {
        return file_ != nullptr;
    }
    std::error_code write(std::string_view block) {
        errno = 0;
        return std::fwrite(block.data(), 1, block.size(), file_) == block.size() ? std::error_code() : lastError();
    }
    // All that was written, onto the disk.
    std::error_code flush() {
        errno = 0;
        if (std::fflush(file_) != 0) {
            return lastError();
        }
#ifdef _WIN32
        return _commit(_fileno(file_)) == 0 ? std::error_code() : lastError();
#elif defined(VRB_POSIX)
        return fsync(fileno(file_)) == 0 ? std::error_code() : lastError();
#else
        return {};
#endif
    }
    std::error_code close() {
        errno = 0;
        std::FILE* file = std::exchange(file_, nullptr);
        return file == nullptr || std::fclose(file) == 0 ? std::error_code() : lastError();
    }

private:
    std::FILE* file_ = nullptr;
};

void settleFolder([[maybe_unused]] const fs::path& folder) {
#ifdef VRB_POSIX
    const int handle = ::open(folder.c_str(), O_RDONLY | O_CLOEXEC);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    if (handle >= 0) {
        fsync(handle);
        ::close(handle);
    }
#endif
}

// One save under way: the steps, and the first that fails ends it.
class Save {
public:
    Save(fs::path target, std::string_view bytes, const SaveFault& fault)
        : target_(std::move(target)), beside_(target_), bytes_(bytes), fault_(fault) {
        beside_ += "." + std::to_string(std::random_device{}()) + ".tmp";
    }

    std::error_code run() {
        std::error_code error = step(SaveStep::folder, [this] { return makeFolder(); });
        if (!error) {
            error = write();
        }
        if (!error) {
            error = step(SaveStep::permissions, [this] { return keepPermissions(); });
        }
        if (!error) {
            error = step(SaveStep::rename, [this] { return code([this](auto& e) { fs::rename(beside_, target_, e); }); });
        }
        if (error) {
            std::error_code ignored;
            fs::remove(beside_, ignored);
            return error;
        }
        if (!fault_ || !fault_(SaveStep::settle)) {
            settleFolder(target_.parent_path());
        }
        return {};
    }

private:
    template <class Action>
    static std::error_code code(Action action) {
        std::error_code error;
        action(error);
        return error;
    }

    template <class Action>
    std::error_code step(SaveStep which, Action action) {
        const std::error_code fault = fault_ ? fault_(which) : std::error_code();
        return fault ? fault : action();
    }

    std::error_code makeFolder() {
        return code([this](auto& error) {
            if (target_.has_parent_path()) {
                fs::create_directories(target_.parent_path(), error);
            }
        });
    }

    std::error_code write() {
        std::optional<NewFile> file;
        std::error_code error = step(SaveStep::create, [&] {
            file.emplace(beside_);
            return file->isOpen() ? std::error_code() : lastError();
        });
        for (std::size_t begin = 0; !error && begin < bytes_.size(); begin += blockSize) {
            error = step(SaveStep::write, [&] { return file->write(bytes_.substr(begin, blockSize)); });
        }
        if (!error) {
            error = step(SaveStep::flush, [&] { return file->flush(); });
        }
        if (!error) {
            error = step(SaveStep::close, [&] { return file->close(); });
        }
        return error;
    }

    std::error_code keepPermissions() {
        std::error_code error;
        const fs::file_status old = fs::status(target_, error);
        if (!fs::exists(old)) {
            return {};
        }
        fs::permissions(beside_, old.permissions(), error);
        return error;
    }

    static constexpr std::size_t blockSize = 4096;
    fs::path target_;
    fs::path beside_;
    std::string_view bytes_;
    const SaveFault& fault_;
};

// The new file takes the old one's place, and that would need the folder's permission alone. Whoever protects the file means the
// file. The bits count for an administrator too, whom the system itself would let pass.
bool writeProtected(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (!fs::exists(status)) {
        return false;
    }
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    bool writable = (status.permissions() & anyWrite) != fs::perms::none;
#ifdef VRB_POSIX
    writable = writable && faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) == 0;
#endif
    return !writable;
}

}  // namespace

ProfileFile::ProfileFile(std::string bytes) : bytes_(std::move(bytes)) {}

std::string_view ProfileFile::value(std::string_view section, std::string_view key) const {
    const std::string_view bytes = bytes_;
    const std::optional<Span> place = find(bytes, section, key).value;
    return place ? bytes.substr(place->begin, std::min(place->end - place->begin, longestValue)) : std::string_view();
}

void ProfileFile::setValue(std::string_view section, std::string_view key, std::string_view value) {
    const Found found = find(bytes_, section, key);
    if (found.value) {
        bytes_.replace(found.value->begin, found.value->end - found.value->begin, value);
        return;
    }
    const std::string lineEnd = lineEndOf(bytes_);
    const std::string line = std::string(key) + "=" + std::string(value);
    if (!found.lastLine) {
        const bool openEnd = bytes_.size() > bodyBegin(bytes_) && bytes_.back() != '\r' && bytes_.back() != '\n';
        bytes_ += (openEnd ? lineEnd : "") + "[" + std::string(section) + "]" + lineEnd + line + lineEnd;
    } else {
        // A last line without a line end stays one.
        bytes_.insert(found.lastLine->end, lineEnd + line);
    }
}

std::optional<FileError> readProfileFile(const fs::path& path, ProfileFile& profile) {
    profile = {};
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        return {};
    }
    if (status.type() == fs::file_type::directory) {
        return FileError{path, std::make_error_code(std::errc::is_a_directory)};
    }
    if (status.type() != fs::file_type::regular) {
        return FileError{path, error ? error : std::make_error_code(std::errc::invalid_argument)};
    }
    const std::uintmax_t size = fs::file_size(path, error);
    if (error) {
        return FileError{path, error};
    }
    if (size > largestFile) {
        return FileError{path, std::make_error_code(std::errc::file_too_large)};
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    // A read that fails half way leaves no settings rather than half of them.
    if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
        return FileError{path, lastError()};
    }
    profile = ProfileFile(std::move(bytes));
    return {};
}

ProfileFile readProfileFile(const fs::path& path) {
    ProfileFile profile;
    readProfileFile(path, profile);
    return profile;
}

std::optional<FileError> saveProfileFile(const fs::path& path, const ProfileFile& profile, const SaveFault& fault) {
    if (profile.bytes().size() > largestFile) {  // it could not be read again
        return FileError{path, std::make_error_code(std::errc::file_too_large)};
    }
    std::error_code error;
    const fs::path linked = fs::is_symlink(path, error) ? fs::weakly_canonical(path, error) : path;
    const fs::path target = linked.empty() ? path : linked;
    error =
        writeProtected(target) ? std::make_error_code(std::errc::permission_denied) : Save(target, profile.bytes(), fault).run();
    return error ? std::optional(FileError{path, error}) : std::nullopt;
}

bool folderWritable(const fs::path& folder) {
    std::error_code error;
    if (!fs::is_directory(folder, error)) {
        return false;
    }
#ifdef VRB_POSIX
    return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
#else
    // Only trying it tells.
    const fs::path trial = folder / ("vrbts." + std::to_string(std::random_device{}()) + ".tmp");
    const bool made = NewFile(trial).isOpen();
    fs::remove(trial, error);
    return made;
#endif
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
