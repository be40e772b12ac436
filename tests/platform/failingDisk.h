// SPDX-License-Identifier: Apache-2.0
// The calls with which a save reaches the disk, in the hands of a test. Linux alone: there the program's own definition of a call
// goes before the system's.

#pragma once

#ifdef __linux__

#include <functional>

namespace failingDisk {

// Asked before each such call: an error number makes the call fail with it, 0 lets it through. Calls about anything but plain
// files and folders pass unasked. Called on the thread that saves.
extern std::function<int(const char* call)> before;

}  // namespace failingDisk

#endif
