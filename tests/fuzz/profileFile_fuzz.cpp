// SPDX-License-Identifier: Apache-2.0
// Noise at the settings file. Whatever the bytes: they are read within the table's limits, every setting can be saved into
// them and read again, a second save changes nothing, what is not a setting keeps its value, and unchanged bytes stay.

#include "config/settings.h"
#include "tests/fuzz/demand.h"

#include <array>

namespace {

constexpr std::array<std::pair<const char*, const char*>, 4> notOurs{
    {{"INIT", "CLOCK-QDA60"}, {"INIT", "MINE"}, {"MINE", "CPUTYPE"}, {"", "CPUTYPE"}}};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const ProfileFile before(bytes);
    demand(before.bytes() == bytes);
    Machine machine;
    readSettings(machine, before);
    const DialogValues shown = loadDialog(before);
    ProfileFile after = before;
    for (std::size_t row = 0; row < settings.size(); ++row) {
        const Setting& setting = settings[row];
        const int taken = setting.variable(machine);
        demand(setting.list.count == 0 || (taken >= 0 && taken < setting.list.count));
        demand(setting.control.empty() || shown[row] == (setting.list.count == 0 ? int{taken > 0} : taken));
    }
    saveDialog(after, shown);
    demand(loadDialog(after) == shown && loadDialog(ProfileFile(after.bytes())) == shown);
    for (const auto& [section, key] : notOurs) {
        demand(after.valueText(section, key) == before.valueText(section, key));
    }
    const std::string once = after.bytes();
    saveDialog(after, shown);
    demand(after.bytes() == once);
    return 0;
}
