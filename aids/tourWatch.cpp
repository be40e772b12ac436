// SPDX-License-Identifier: Apache-2.0
#include "aids/tourWatch.h"

#include <algorithm>

namespace {

// One more value of the walk, or the walk's beginning.
int walked(const WatchedPromise& promise, const std::string& now) {
    const std::vector<std::string>& values = promise.statement.values;
    const auto at = std::find(values.begin(), values.end(), now);
    if (at == values.end()) {
        return 0;
    }
    return promise.last == (at == values.begin() ? values.back() : *(at - 1)) ? promise.course + 1 : 1;
}

bool keeps(WatchedPromise& promise, const std::string& now, int milliseconds) {
    const std::vector<std::string>& values = promise.statement.values;
    const bool changed = promise.last != now;
    switch (promise.statement.word->keeping) {
        case Keeping::same: return now == values.front();
        case Keeping::different: return now != values.front();
        case Keeping::moving: return promise.last && changed;
        case Keeping::still:
            promise.course = changed ? 0 : promise.course + milliseconds;
            return promise.course >= stillMilliseconds;
        case Keeping::walking:
            promise.course = changed ? walked(promise, now) : promise.course;
            return promise.course >= static_cast<int>(values.size());
        case Keeping::said:
        case Keeping::silent: break;
    }
    return false;
}

// Lets the promises whose turn it is be seen, in their order.
template <typename Sees>
void advance(TourWatch& watch, Sees&& sees) {
    int stage = 0;
    bool open = false;
    for (WatchedPromise& promise : watch.promises) {
        if (open && promise.stage != stage) {
            break;
        }
        stage = promise.stage;
        promise.seen = promise.seen || sees(promise);
        open = open || !promise.seen;
    }
    watch.sign = open ? TourSign::open : TourSign::done;
}

}  // namespace

TourWatch watchPage(std::string_view line, const Machine& machine, const SeenByLearner& seen) {
    TourWatch watch;
    const Script script = readScript(line);
    if (!script.wrong.empty()) {
        return watch;
    }
    int stage = 0;
    for (const Statement& statement : script.statements) {
        const Keeping keeping = statement.word->keeping;
        if (statement.word->kind == WordKind::deed) {
            ++stage;
        } else if (statement.word->kind == WordKind::promise && keeping != Keeping::silent) {
            if (keeping != Keeping::said && !present(statement, machine, seen)) {
                return {};  // the name of no part: a slip, like a wrong word
            }
            watch.promises.push_back({statement, stage, false, std::nullopt, 0});
        }
    }
    watch.sign = TourSign::open;
    lookAgain(watch, machine, seen);
    if (watch.sign == TourSign::done) {
        watch.sign = TourSign::none;
    }
    return watch;
}

void lookAgain(TourWatch& watch, const Machine& machine, const SeenByLearner& seen, int milliseconds) {
    if (watch.sign != TourSign::open) {
        return;
    }
    advance(watch, [&](WatchedPromise& promise) {
        const std::optional<std::string> now = present(promise.statement, machine, seen);
        const bool kept = now && keeps(promise, *now, milliseconds);
        promise.last = now;
        return kept;
    });
}

void hear(TourWatch& watch, std::string_view text) {
    if (watch.sign != TourSign::open) {
        return;
    }
    const std::string plain = plainText(text);
    advance(watch, [&plain](const WatchedPromise& promise) {
        return promise.statement.word->keeping == Keeping::said &&
               plain.find(promise.statement.values.front()) != std::string::npos;
    });
}
