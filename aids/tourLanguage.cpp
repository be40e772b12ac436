#include "aids/tourLanguage.h"

#include "access/hexText.h"
#include "access/memoryAccess.h"
#include "access/registers.h"
#include "core/runControl.h"

#include <algorithm>
#include <charconv>
#include <sstream>

namespace {

using Words = std::vector<std::string>;

Words wordsOf(std::string_view text) {
    std::istringstream stream{std::string(text)};
    Words words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

std::string joined(std::span<const std::string> words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

std::optional<std::size_t> numberOf(std::string_view digits) {
    std::size_t number = 0;
    const char* end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, number);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

// --- lamps -------------------------------------------------------------------------------------------------------------------

// A pin that is an input has no lamp.
struct Lamp {
    std::string_view name;
    std::size_t count;
    std::optional<bool> (*lit)(const Machine& machine, std::size_t index);
};

template <auto member>
std::optional<bool> litOne(const Machine& machine, std::size_t /*index*/) {
    return (machine.*member).lit;
}

template <auto member>
std::optional<bool> litOf(const Machine& machine, std::size_t index) {
    return (machine.*member)[index].lit;
}

constexpr std::array<Lamp, 8> lamps{{
    {"picScanLed", 1, litOne<&Machine::picScanLed>},
    {"picChkLED", 2, litOf<&Machine::picChkLED>},
    {"picMON_LED73", 1, litOne<&Machine::picMON_LED73>},
    {"picMON_LED52", 1, litOne<&Machine::picMON_LED52>},
    {"picSE", 2, litOf<&Machine::picSE>},
    {"picPower", 6, litOf<&Machine::picPower>},
    {"picPO", 64, [](const Machine& machine, std::size_t index) { return std::optional(machine.picPO[index].level); }},
    {"picPI", 80,
     [](const Machine& machine, std::size_t index) {
         const Pin& pin = machine.picPI[index];
         return pin.output ? std::optional(pin.level) : std::nullopt;
     }},
}};

const Lamp* lampNamed(std::string_view name) {
    const auto* found = std::find_if(lamps.begin(), lamps.end(), [name](const Lamp& lamp) { return lamp.name == name; });
    return found == lamps.end() ? nullptr : found;
}

// --- what there is to see ------------------------------------------------------------------------------------------------------

constexpr std::string_view hiddenText = "hidden";

std::optional<std::string> memory(const Statement& s, const Machine& machine, const SeenByLearner& /*seen*/) {
    const int place = s.place.value_or(0);
    const int value = s.digits == 4 ? memoryWord(machine, place) : machine.chipMemory[static_cast<std::size_t>(place)];
    return hexText(static_cast<unsigned>(value), s.digits);
}

std::optional<std::string> visibility(const Statement& s, const Machine& /*machine*/, const SeenByLearner& seen) {
    const std::optional<bool> shown = seen.shown(s.name, s.index);
    return shown ? std::optional(std::string(*shown ? "shown" : hiddenText)) : std::nullopt;
}

// What is hidden shows nothing else.
template <Present visible>
std::optional<std::string> unlessHidden(const Statement& s, const Machine& machine, const SeenByLearner& seen) {
    const std::optional<std::string> shown = visibility(s, machine, seen);
    return !shown || *shown == hiddenText ? shown : visible(s, machine, seen);
}

std::optional<std::string> lampOf(const Statement& s, const Machine& machine, const SeenByLearner& /*seen*/) {
    const std::optional<bool> lit = lampNamed(s.name)->lit(machine, s.index);
    return lit ? *lit ? "lit" : "dark" : "no lamp";
}

std::optional<std::string> picture(const Statement& s, const Machine& /*machine*/, const SeenByLearner& seen) {
    const std::optional<int> number = seen.picture(s.name, s.index);
    return number ? std::optional(std::to_string(*number)) : std::nullopt;
}

std::optional<std::string> label(const Statement& s, const Machine& /*machine*/, const SeenByLearner& seen) {
    const std::optional<std::string> text = seen.label(s.name, s.index);
    return text ? std::optional(plainText(*text)) : std::nullopt;
}

std::optional<std::string> thing(const Statement& s, const Machine& machine, const SeenByLearner& seen) {
    return s.place ? memory(s, machine, seen) : unlessHidden<picture>(s, machine, seen);
}

// Board-3 has no switches and follows Board-2.
std::optional<std::string> stationAddress(const Statement& s, const Machine& machine, const SeenByLearner& /*seen*/) {
    constexpr std::array<BoardIndex, 4> boards{saQDA73, saQDA41, saQDA41, saQDA52};
    const bool cascade = s.index == 3;
    if (cascade && !machine.picBridge.visible) {
        return std::string(hiddenText);
    }
    const int address = machine.cmbSA[boards[s.index - 1]].listIndex + (cascade ? 2 : 1);
    return hexText(static_cast<unsigned>(address), 2);
}

std::optional<std::string> busType(const Statement& /*s*/, const Machine& machine, const SeenByLearner& /*seen*/) {
    return plainText(cpuTypeNames[static_cast<std::size_t>(machine.cpuType)]);
}

std::optional<std::string> readValue(const Statement& /*s*/, const Machine& /*machine*/, const SeenByLearner& seen) {
    return seen.readValue();
}

// --- the words -----------------------------------------------------------------------------------------------------------------

constexpr auto aDeed = WordKind::deed;
constexpr auto aPromise = WordKind::promise;

constexpr std::array<TourWord, 37> vocabulary{{
    {"click", "PART", aDeed},
    {"dblclick", "PART", aDeed},
    {"hold", "PART", aDeed},
    {"release", "", aDeed},
    {"pick", "PART = TEXT", aDeed},
    {"mode", "MODE", aDeed},
    {"open", "WINDOW", aDeed},
    {"close", "WINDOW", aDeed},
    {"front", "ANYWINDOW", aDeed},
    {"drag", "WINDOW NUMBER NUMBER", aDeed},
    {"top", "DUMP", aDeed},
    {"write", "REG VALUE", aDeed},
    {"set", "ADDRESS VALUE", aDeed},
    {"read", "ADDRESS", aDeed},
    {"serial", "I WORD", aDeed},
    {"ok", "", aDeed},
    {"cancel", "", aDeed},
    {"point", "REG", aDeed},
    {"double", "ADDRESS", aDeed},
    {"wait", "SECONDS", WordKind::pause},
    {"reg", "REG VALUE", aPromise, memory},
    {"mem", "ADDRESS VALUE", aPromise, memory},
    {"differs", "REG VALUE", aPromise, memory, Keeping::different},
    {"lit", "LAMP", aPromise, unlessHidden<lampOf>, Keeping::same, "lit"},
    {"dark", "LAMP", aPromise, unlessHidden<lampOf>, Keeping::same, "dark"},
    {"image", "PART = NUMBER", aPromise, unlessHidden<picture>},
    {"shown", "PART", aPromise, visibility, Keeping::same, "shown"},
    {"hidden", "PART", aPromise, visibility, Keeping::same, hiddenText},
    {"label", "PART = TEXT", aPromise, unlessHidden<label>},
    {"sa", "BOARD BYTE", aPromise, stationAddress},
    {"bus", "TEXT", aPromise, busType},
    {"got", "BYTE", aPromise, readValue},
    {"says", "TEXT", aPromise, nullptr, Keeping::said},
    {"silent", "", aPromise, nullptr, Keeping::silent},
    {"moves", "THING", aPromise, thing, Keeping::moving},
    {"still", "THING", aPromise, thing, Keeping::still},
    {"cycle", "REG VALUES", aPromise, memory, Keeping::walking},
}};

// --- reading -------------------------------------------------------------------------------------------------------------------

using Rest = std::span<const std::string>;

// The next word, if the test holds; it is taken.
template <typename Test>
bool takeIf(Rest& rest, Test&& test) {
    const bool taken = !rest.empty() && test(rest.front());
    rest = rest.subspan(taken ? 1 : 0);
    return taken;
}

bool takeIndex(Rest& rest, Statement& s) {
    return takeIf(rest, [&s](const std::string& word) {
        const std::optional<std::size_t> number = numberOf(word);
        s.index = number.value_or(0);
        return number.has_value();
    });
}

bool takePart(Rest& rest, Statement& s) {
    const bool named = takeIf(rest, [&s](const std::string& word) {
        s.name = word;
        return true;
    });
    takeIndex(rest, s);
    return named;
}

bool takeLamp(Rest& rest, Statement& s) {
    const bool named = takePart(rest, s);
    const Lamp* lamp = lampNamed(s.name);
    return named && lamp != nullptr && s.index < lamp->count;
}

// A register by its name, with the half behind a point.
bool takeRegister(Rest& rest, Statement& s) {
    return takeIf(rest, [&s](const std::string& word) {
        const std::string name = word.substr(0, word.find('.'));
        const std::string half = word.substr(name.size());
        const std::string_view address = regAddress(name);
        if (address.empty() || (!half.empty() && half != ".H" && half != ".L")) {
            return false;
        }
        s.name = name;
        s.place = *hexValue(address) + (half == ".H" ? 1 : 0);
        s.digits = half.empty() ? 4 : 2;
        return true;
    });
}

bool takeThing(Rest& rest, Statement& s) {
    return takeRegister(rest, s) || takePart(rest, s);
}

bool takeAddress(Rest& rest, Statement& s) {
    return takeIf(rest, [&s](const std::string& word) {
        const std::optional<std::uint16_t> place = hexValue(word);
        s.place = place.value_or(0);
        return place && word.size() == 3 && *place < memorySize;
    });
}

// A byte or a word, as wide as what was named before it; a word has its low byte at an even address.
bool takeValue(Rest& rest, Statement& s) {
    return takeIf(rest, [&s](const std::string& word) {
        const auto length = static_cast<int>(word.size());
        const std::optional<std::uint16_t> value = hexValue(word);
        s.digits = s.digits == 0 ? length : s.digits;
        if (!value || length != s.digits || (length != 2 && (length != 4 || s.place.value_or(0) % 2 != 0))) {
            return false;
        }
        s.values.push_back(hexText(*value, length));
        return true;
    });
}

template <int digits>
bool takeDigits(Rest& rest, Statement& s) {
    s.digits = digits;
    return takeValue(rest, s);
}

bool takeValues(Rest& rest, Statement& s) {
    while (takeValue(rest, s)) {
    }
    return s.values.size() > 1;
}

bool takeNumber(Rest& rest, Statement& s) {
    return takeIf(rest, [&s](const std::string& word) {
        s.values.push_back(word);
        return numberOf(word).has_value();
    });
}

// Tenths are as fine as it gets.
bool takeSeconds(Rest& rest, Statement& s) {
    return takeIf(rest, [&s](const std::string& word) {
        s.values.push_back(word);
        const auto point = std::min(word.find('.'), word.size() - 1);
        return numberOf(word) || (numberOf(word.substr(0, point)) && numberOf(word.substr(point + 1)));
    });
}

bool takeText(Rest& rest, Statement& s) {
    s.values.push_back(joined(rest));
    rest = {};
    return !s.values.front().empty();
}

bool takeBoard(Rest& rest, Statement& s) {
    return takeIndex(rest, s) && s.index >= 1 && s.index <= 4;
}

bool takeMode(Rest& rest, Statement& s) {
    return takePart(rest, s) &&
           std::any_of(runModes.begin(), runModes.end(), [&s](const RunMode& mode) { return plainText(mode.caption) == s.name; });
}

// The windows by what can be done to them: dumps can be kept on top; the bench neither opens nor closes.
constexpr std::array<std::string_view, 7> windows{"control", "c1c7", "drc", "read", "register", "hint", "bench"};
constexpr std::ptrdiff_t dumps = 3;
constexpr std::ptrdiff_t closable = 6;

template <std::ptrdiff_t count>
bool takeWindow(Rest& rest, Statement& s) {
    const auto* end = windows.begin() + count;
    return takeIf(rest, [&s, end](const std::string& word) {
        s.name = word;
        return std::find(windows.begin(), end, word) != end;
    });
}

struct Slot {
    std::string_view name;
    bool (*take)(Rest& rest, Statement& s);
};

// What stands in the forms of the words.
constexpr std::array<Slot, 18> slots{{
    {"PART", takePart},
    {"LAMP", takeLamp},
    {"REG", takeRegister},
    {"THING", takeThing},
    {"ADDRESS", takeAddress},
    {"VALUE", takeValue},
    {"VALUES", takeValues},
    {"BYTE", takeDigits<2>},
    {"WORD", takeDigits<4>},
    {"NUMBER", takeNumber},
    {"SECONDS", takeSeconds},
    {"TEXT", takeText},
    {"I", takeIndex},
    {"BOARD", takeBoard},
    {"MODE", takeMode},
    {"WINDOW", takeWindow<closable>},
    {"ANYWINDOW", takeWindow<windows.size()>},
    {"DUMP", takeWindow<dumps>},
}};

bool takeSlot(std::string_view name, Rest& rest, Statement& s) {
    const auto* slot = std::find_if(slots.begin(), slots.end(), [name](const Slot& row) { return row.name == name; });
    return slot != slots.end() ? slot->take(rest, s) : takeIf(rest, [name](const std::string& word) { return word == name; });
}

std::optional<Statement> readStatement(const std::string& text) {
    const Words written = wordsOf(text);
    const auto* word =
        std::find_if(vocabulary.begin(), vocabulary.end(), [&written](const TourWord& row) { return row.verb == written[0]; });
    if (word == vocabulary.end()) {
        return std::nullopt;
    }
    Statement statement;
    statement.word = word;
    statement.text = text;
    Rest rest = Rest(written).subspan(1);
    const Words form = wordsOf(word->form);
    const bool fits =
        std::all_of(form.begin(), form.end(), [&](const std::string& slot) { return takeSlot(slot, rest, statement); });
    if (!word->wanted.empty()) {
        statement.values.emplace_back(word->wanted);
    }
    return fits && rest.empty() ? std::optional(statement) : std::nullopt;
}

}  // namespace

std::span<const TourWord> tourWords() {
    return vocabulary;
}

Script readScript(std::string_view line) {
    constexpr std::string_view separator = " ; ";
    Script script;
    for (std::size_t from = 0; from <= line.size() && script.wrong.empty();) {
        const std::size_t end = std::min(line.find(separator, from), line.size());
        const std::string text = plainText(line.substr(from, end - from));
        from = end + separator.size();
        if (text.empty()) {
            continue;
        }
        if (std::optional<Statement> statement = readStatement(text)) {
            script.statements.push_back(std::move(*statement));
        } else {
            script.wrong = text;
        }
    }
    return script;
}

std::optional<std::string> present(const Statement& promise, const Machine& machine, const SeenByLearner& seen) {
    return promise.word->present == nullptr ? std::nullopt : promise.word->present(promise, machine, seen);
}

std::string plainText(std::string_view text) {
    return joined(wordsOf(text));
}
