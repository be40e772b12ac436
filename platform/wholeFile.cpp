// SPDX-License-Identifier: Apache-2.0
#include "platform/wholeFile.h"

#include "platform/browser.h"
#include "platform/paths.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <memory>
#include <thread>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// Takes a step, on Windows some more times while somebody stands in its way who has the file open just now: another copy of the
// program that reads or saves it, or a scanner. The step returns whether it was in anybody's way.
template <class Step>
void whileInUse(Step step) {
#ifdef Q_OS_WIN
    constexpr auto pause = std::chrono::milliseconds(10);
    for (int left = 30; step() && left > 0; --left) {
        std::this_thread::sleep_for(pause);
    }
#else
    step();
#endif
}

File openToRead(const fs::path& path) {
#ifdef Q_OS_WIN
    File file;
    whileInUse([&] {
        file.reset(_wfopen(path.c_str(), L"rb"));
        return file == nullptr && errno == EACCES;
    });
    return file;
#else
    return File(std::fopen(path.c_str(), "rb"));
#endif
}

std::error_code lastError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

// Why a save failed. Where the system's own number is not to be had, the kind of step that failed tells the most likely reason.
std::error_code reasonOf([[maybe_unused]] const QSaveFile& file) {
#ifdef Q_OS_WIN
    switch (file.error()) {
        case QFileDevice::ResourceError: return std::make_error_code(std::errc::no_space_on_device);
        case QFileDevice::OpenError:
        case QFileDevice::PermissionsError:
        case QFileDevice::RenameError: return std::make_error_code(std::errc::permission_denied);
        default: return std::make_error_code(std::errc::io_error);
    }
#else
    return lastError();
#endif
}

// The new file takes the old one's place, and that would need the folder's permission alone. Whoever protects the file means the
// file. The bits count for an administrator too, whom the system itself would let pass.
bool writeProtected(const QFileInfo& file) {
    return file.exists() &&
           (!file.isWritable() ||
            !(file.permissions() & (QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther)));
}

// A program that runs as an administrator must not take a learner's file away from him.
void keepOwner([[maybe_unused]] QSaveFile& file, [[maybe_unused]] const fs::path& old) {
#ifdef Q_OS_UNIX
    struct stat was {};
    struct stat is {};
    if (stat(old.c_str(), &was) != 0 || fstat(file.handle(), &is) != 0 || (was.st_uid == is.st_uid && was.st_gid == is.st_gid)) {
        return;
    }
    // Without the right to give a file away, its group alone; without that, it stays the saver's.
    if (fchown(file.handle(), was.st_uid, was.st_gid) == 0 || fchown(file.handle(), is.st_uid, was.st_gid) == 0) {
        fchmod(file.handle(), was.st_mode & 07777U);  // a new owner takes some of them away
    }
#endif
}

// Onto the disk, before the new file takes the old one's place: the file writer asks the disk too, but not whether it could.
bool settled([[maybe_unused]] QSaveFile& file) {
    if (!file.flush()) {
        return false;
    }
#ifdef Q_OS_UNIX
    return fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOSYS;  // a disk that can't be asked
#else
    return true;
#endif
}

// The folder's new entry, too. The file is there whatever comes of it.
void settleFolder([[maybe_unused]] const fs::path& folder) {
#ifdef Q_OS_UNIX
    const int handle = ::open(folder.c_str(), O_RDONLY | O_CLOEXEC);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    if (handle >= 0) {
        fsync(handle);
        ::close(handle);
    }
#endif
}

std::error_code replace(QSaveFile& file, const fs::path& target, const std::string& bytes) {
    errno = 0;
    if (!file.open(QIODevice::WriteOnly)) {
        return reasonOf(file);
    }
    keepOwner(file, target);
    errno = 0;
    if (file.write(bytes.data(), static_cast<qint64>(bytes.size())) < 0 || !settled(file) || !file.commit()) {
        return reasonOf(file);
    }
    settleFolder(target.parent_path());
    return {};
}

std::error_code saveAt(const fs::path& target, const std::string& bytes) {
    std::error_code error;
    if (target.has_parent_path() && !fs::is_directory(target.parent_path(), error)) {
        fs::create_directories(target.parent_path(), error);
    }
    if (error) {
        return error;
    }
    if (fs::is_directory(target, error)) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    if (writeProtected(QFileInfo(textOfPath(target)))) {
        return std::make_error_code(std::errc::permission_denied);
    }
    whileInUse([&] {
        QSaveFile file(textOfPath(target));
        error = replace(file, target, bytes);
        return file.error() == QFileDevice::RenameError;
    });
    return error;
}

}  // namespace

std::error_code readWholeFile(const fs::path& path, std::size_t limit, std::string& bytes) {
    bytes.clear();
    if constexpr (inBrowser) {
        if (std::optional<std::string> kept = page::keptFile(path)) {
            if (kept->size() > limit) {
                return std::make_error_code(std::errc::file_too_large);
            }
            bytes = std::move(*kept);
            return {};
        }
    }
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::status_known(status) || !fs::exists(status)) {
        return error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
    }
    if (!fs::is_regular_file(status)) {
        return std::make_error_code(fs::is_directory(status) ? std::errc::is_a_directory : std::errc::invalid_argument);
    }
    // Its length is a hint: another program may just be writing it, and some files of the system have none.
    const std::uintmax_t length = fs::file_size(path, error);
    if (!error && length > limit) {
        return std::make_error_code(std::errc::file_too_large);
    }
    errno = 0;
    const File file = openToRead(path);
    if (file == nullptr) {
        return lastError();
    }
    bytes.reserve(error ? 0 : static_cast<std::size_t>(length));
    std::array<char, std::size_t{1} << 16> block{};
    while (const std::size_t read = std::fread(block.data(), 1, block.size(), file.get())) {
        bytes.append(block.data(), read);
        if (bytes.size() > limit) {
            bytes.clear();
            return std::make_error_code(std::errc::file_too_large);
        }
    }
    if (std::ferror(file.get()) != 0) {
        const std::error_code reason = lastError();
        bytes.clear();  // nothing rather than half of it
        return reason;
    }
    return {};
}

std::error_code saveWholeFile(const fs::path& path, const std::string& bytes) {
    if constexpr (inBrowser) {
        return page::keepFile(path, bytes);  // a page's files are gone with it
    }
    std::error_code error;
    if (!fs::is_symlink(path, error)) {
        return saveAt(path, bytes);
    }
    const fs::path target = fs::weakly_canonical(path, error);
    return error ? error : saveAt(target, bytes);
}

bool folderWritable(const fs::path& folder) {
    std::error_code error;
    // Only trying it tells, on some systems.
    return fs::is_directory(folder, error) && QTemporaryFile(textOfPath(folder / "vrbts.XXXXXX")).open();
}
