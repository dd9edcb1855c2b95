// The settings store on disk: one readable INI file, always read and replaced as a whole.
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

    // prismfall/settings.ini in the user's settings folder; empty if the user has no such folder.
    static std::filesystem::path UsersFile();

    // The stored text, or nothing. The file is read once, and again after a change.
    std::optional<std::string> Read(std::string_view section, std::string_view key);
    // Stores the values that `change` returns for the file's current contents, and leaves everything else in it alone,
    // atomically with respect to other copies of the game. Returns an empty string, or on failure one sentence that
    // says why nothing was stored.
    std::string Change(const SettingsChange& change);

  private:
    std::filesystem::path file;
    std::optional<SettingsValues> values;
};

}  // namespace prismfall
