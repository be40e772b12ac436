#include "config/settings.h"

namespace {

std::int16_t within(const Setting& setting, std::int32_t number) {
    return number < setting.least || number > setting.most ? std::int16_t{0} : static_cast<std::int16_t>(number);
}

// One setting rules the duplex of all boards.
void copyTransfer(Machine& machine) {
    machine.transferDefault.fill(machine.transferDefault[0]);
}

}  // namespace

void readSettings(Machine& machine, const std::filesystem::path& folder) {
    clearBoardState(machine);
    const std::filesystem::path path = folder / settingsFileName;
    const std::u8string name = path.u8string();  // in UTF-8 on every desktop
    machine.iniPath.assign(name.begin(), name.end());
    takeSettings(machine, readProfileFile(path));
}

void takeSettings(Machine& machine, const ProfileFile& profile) {
    for (const Setting& setting : settings) {
        setting.variable(machine) = within(setting, leadingNumber(profile.value(settingsSection, setting.key)));
    }
    copyTransfer(machine);
}

void Mdef_Set(Machine& machine) {
    for (const Setting& setting : settings) {
        setting.variable(machine) = setting.makersValue;
    }
    copyTransfer(machine);
}
