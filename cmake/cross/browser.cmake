# SPDX-License-Identifier: Apache-2.0
# Debian's Emscripten. Its linker wants a parser of JavaScript that Debian has in a folder of its own: NODE_PATH says where, and
# EMSDK where Qt looks for the compiler's version; whoever builds sets both (the preset, or cmake/cross/qt).
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
