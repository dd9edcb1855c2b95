#include "backends/sdl/settings/SettingsFile.h"

#include <vector>

#include "backends/sdl/settings/ReplaceFile.h"
#include "platform/SettingsText.h"

namespace prismfall {

namespace {

std::optional<std::string> Find(const std::map<std::pair<std::string, std::string>, std::string>& values,
                                std::string_view section, std::string_view key) {
    const auto found = values.find({std::string(section), std::string(key)});
    if (found == values.end()) return std::nullopt;
    return found->second;
}

// A text with the values that a change of it asks for.
std::string Changed(std::string old, const SettingsChange& change) {
    SettingsText text(old);
    const auto stored = text.Values();
    const std::vector<SettingValue> values =
        change([&stored](std::string_view section, std::string_view key) { return Find(stored, section, key); });
    if (values.empty()) return old;
    for (const SettingValue& value : values) text.Set(value.section, value.key, value.text);
    return text.Text();
}

}  // namespace

std::filesystem::path SettingsFile::UsersFile() {
    const std::filesystem::path folder = UsersSettingsFolder();
    return folder.empty() ? folder : folder / "settings.ini";
}

std::optional<std::string> SettingsFile::Read(std::string_view section, std::string_view key) {
    if (!values) values = SettingsText(ReadWholeFile(file)).Values();
    return Find(*values, section, key);
}

std::string SettingsFile::Change(const SettingsChange& change) {
    values.reset();
    if (file.empty()) return "The settings cannot be saved: there is no home folder to save them in.";
    const std::string reason = ChangeFile(file, [&change](std::string old) { return Changed(std::move(old), change); });
    return reason.empty() ? reason : "The settings cannot be saved in " + file.string() + ": " + reason + ".";
}

}  // namespace prismfall
