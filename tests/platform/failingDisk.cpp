// SPDX-License-Identifier: Apache-2.0
#include "tests/platform/failingDisk.h"

#ifdef __linux__

#include <cerrno>
#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/types.h>

namespace failingDisk {

std::function<int(const char* call)> before;

namespace {

bool onDisk(int file) {
    struct stat status {};
    return fstat(file, &status) == 0 && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

template <class Result, class... Arguments>
Result pass(const char* call, bool ask, Arguments... arguments) {
    if (const int error = ask && before ? before(call) : 0) {
        errno = error;
        return -1;
    }
    return reinterpret_cast<Result (*)(Arguments...)>(dlsym(RTLD_NEXT, call))(arguments...);
}

}  // namespace
}  // namespace failingDisk

using failingDisk::onDisk;
using failingDisk::pass;

extern "C" {
ssize_t write(int file, const void* bytes, size_t count) {
    return pass<ssize_t>("write", failingDisk::before && onDisk(file), file, bytes, count);
}
int fsync(int file) {
    return pass<int>("fsync", onDisk(file), file);
}
int fdatasync(int file) {
    return pass<int>("fdatasync", onDisk(file), file);
}
int fchmod(int file, mode_t mode) noexcept {
    return pass<int>("fchmod", true, file, mode);
}
int linkat(int from, const char* old, int to, const char* name, int flags) noexcept {
    return pass<int>("linkat", true, from, old, to, name, flags);
}
int rename(const char* old, const char* name) noexcept {
    return pass<int>("rename", true, old, name);
}
}

#endif
