#include "backends/sdl/settings/SettingsFile.h"

#include "backends/sdl/settings/ReplaceFile.h"

namespace prismfall {

std::filesystem::path SettingsFile::UsersFile() {
    const std::filesystem::path folder = UsersSettingsFolder();
    return folder.empty() ? folder : folder / "settings.ini";
}

std::optional<std::string> SettingsFile::Read(std::string_view section, std::string_view key) {
    if (!values) values = SettingsText(ReadWholeFile(file)).Values();
    return FindSetting(*values, section, key);
}

std::string SettingsFile::Change(const SettingsChange& change) {
    values.reset();
    if (file.empty()) return "The settings cannot be saved: there is no home folder to save them in.";
    const std::string reason =
        ChangeFile(file, [&change](std::string old) { return ChangedSettings(std::move(old), change); });
    return reason.empty() ? reason : "The settings cannot be saved in " + file.string() + ": " + reason + ".";
}

}  // namespace prismfall
