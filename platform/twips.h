// SPDX-License-Identifier: Apache-2.0
// Lengths in twips, in which the windows are laid out: 15 twips are one device-independent pixel.

#pragma once

constexpr int twips(int length) {
    return length / 15;
}
