// Noise at the settings file. Whatever the bytes: they are read within the table's limits, every setting can be saved into
// them and read again, a second save changes nothing, and what is not a setting keeps its value.

#include "config/settings.h"
#include "tests/fuzz/demand.h"

#include <array>

namespace {

constexpr std::array<std::pair<const char*, const char*>, 4> notOurs{
    {{"INIT", "CLOCK-QDA60"}, {"INIT", "MINE"}, {"MINE", "CPUTYPE"}, {"", "CPUTYPE"}}};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ProfileFile before(std::string(data, data + size));
    Machine machine;
    takeSettings(machine, before);
    const DialogValues shown = loadDialog(before);
    ProfileFile after = before;
    for (std::size_t row = 0; row < settings.size(); ++row) {
        const Setting& setting = settings[row];
        const int taken = setting.variable(machine);
        demand(setting.list.count == 0 || (taken >= 0 && taken < setting.list.count));
        demand(setting.control.empty() || shown[row] == (setting.list.count == 0 ? int{taken > 0} : taken));
        if (!setting.control.empty()) {
            after.setValue(settingsSection, setting.key, std::to_string(shown[row]));
        }
    }
    demand(loadDialog(after) == shown);
    for (const auto& [section, key] : notOurs) {
        demand(after.value(section, key) == before.value(section, key));
    }
    const std::string once = after.bytes();
    for (std::size_t row = 0; row < settings.size(); ++row) {
        if (!settings[row].control.empty()) {
            after.setValue(settingsSection, settings[row].key, std::to_string(shown[row]));
        }
    }
    demand(after.bytes() == once);
    return 0;
}
