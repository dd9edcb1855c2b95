// The settings store on disk: one readable INI file, read as a whole and replaced as a whole.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/SettingsText.h"

namespace prismfall {

class SettingsFile {
  public:
    explicit SettingsFile(std::filesystem::path path) : file(std::move(path)) {}

    // prismfall/settings.ini in the user's folder for settings; empty if the user has no such folder.
    static std::filesystem::path UsersFile();

    // The stored text, or nothing. The file is read once; a change makes it be read again.
    std::optional<std::string> Read(std::string_view section, std::string_view key);
    // Stores what `change` makes of the values that the file holds now, and leaves everything else in it as it is. No
    // other copy of the game comes between. Empty if it went well, else one sentence that tells why nothing is stored.
    std::string Change(const SettingsChange& change);

  private:
    std::filesystem::path file;
    std::optional<SettingsValues> values;
};

}  // namespace prismfall
