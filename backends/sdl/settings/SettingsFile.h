// The settings store on disk: one readable INI file, read as a whole and replaced as a whole. What a setting means
// belongs to the game.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Platform.h"

namespace prismfall {

class SettingsFile {
  public:
    explicit SettingsFile(std::filesystem::path path) : file(std::move(path)) {}

    // prismfall/settings.ini in the user's folder for settings; empty if the user has no such folder.
    static std::filesystem::path UsersFile();

    // The stored text, or nothing. The file is read once; a write makes it be read again.
    std::optional<std::string> Read(std::string_view section, std::string_view key);
    // Stores the values and leaves everything else in the file as it is. The file is the old or the new one at any
    // moment, also for another copy of the game. Empty if it went well, else one sentence that tells why not.
    std::string Write(std::span<const SettingValue> values);

  private:
    using Name = std::pair<std::string, std::string>;

    void Load();

    std::filesystem::path file;
    std::optional<std::map<Name, std::string>> stored;
};

}  // namespace prismfall
