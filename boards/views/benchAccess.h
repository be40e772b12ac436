// SPDX-License-Identifier: Apache-2.0
// The bench for those who hear it: each part as a child of the view, with its name, its state and its action. The picture
// alone tells a screen reader nothing.

#pragma once

// Makes views of the bench and their parts known to assistive technology; once for the program.
void makeBenchAccessible();
