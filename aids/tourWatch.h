// SPDX-License-Identifier: Apache-2.0
// The eye on one page of a tour: which of its promises have been seen. A promise that was seen once stays seen, so a learner who
// is slow or quick gets his sign all the same.
//
//   deed ; promise ; promise ; deed ; deed ; promise
//          └──── stage 0 ───┘                stage 1
//
// Deeds are not watched: only what there is to see counts, whatever way led to it. But promises keep their order: those behind a
// later deed wait until all before it have been seen, so that "hold ; dark X ; release ; lit X" wants X dark and then lit.
//
// How the promises that take time are seen: "moves" is another look than the one before; "still" is no other look for a while;
// "cycle" is all its values, one after the other; "says" is heard at the moment when it is said. "silent" isn't watched, since
// there is nothing to see in it.

#pragma once

#include "aids/tourLanguage.h"

// What the tour window shows: no sign for a page that is prose, promises nothing, or promises nothing that isn't there already.
enum class TourSign : std::uint8_t { none, open, done };

struct WatchedPromise {
    Statement statement;
    int stage = 0;
    bool seen = false;
    std::optional<std::string> last;  // what there was at the look before
    int course = 0;                   // still: milliseconds without a change; cycle: values walked through
};

struct TourWatch {
    std::vector<WatchedPromise> promises;  // none are left out but "silent"
    TourSign sign = TourSign::none;
};

// Longer than the slowest step of anything that moves, which is the belt at power 1: 999 ms.
inline constexpr int stillMilliseconds = 1100;

// Reads a page's third line and looks for the first time.
TourWatch watchPage(std::string_view line, const Machine& machine, const SeenByLearner& seen);

// Looks again. `milliseconds` have gone by since the look before that also told them; 0 for a look in between.
void lookAgain(TourWatch& watch, const Machine& machine, const SeenByLearner& seen, int milliseconds = 0);

// A popup or the message dialog says this text, in UTF-8.
void hear(TourWatch& watch, std::string_view text);
