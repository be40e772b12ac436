// SPDX-License-Identifier: Apache-2.0
// What a rule has to say to the learner. A rule never shows anything: it returns its words, and the window says them.

#pragma once

#include <string>
#include <variant>

// A short refusal or notice that goes away by itself.
struct Popup {
    std::string text;
    bool operator==(const Popup&) const = default;
};

// What must be read: a modal dialog.
struct Warning {
    enum class Kind { okOnly, okCancel };

    std::string text;
    std::string title = "   警 告";
    Kind kind = Kind::okOnly;
    bool operator==(const Warning&) const = default;
};

// Nothing to say, a popup or a warning.
using Answer = std::variant<std::monostate, Popup, Warning>;

inline bool saysAnything(const Answer& answer) {
    return !std::holds_alternative<std::monostate>(answer);
}
