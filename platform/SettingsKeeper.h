// Keeps texts by application, section and key, for this user, that outlast the run.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Facet.h"

namespace prismfall {

struct SettingValue {
    std::string section;
    std::string key;
    std::string text;
};

// The text that a store holds, or nothing.
using SettingsReader = std::function<std::optional<std::string>(std::string_view section, std::string_view key)>;
using SettingsChange = std::function<std::vector<SettingValue>(const SettingsReader& stored)>;

class SettingsKeeper : public Facet {
  public:
    virtual std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                    std::string_view fallback) = 0;
    // Changes the store in one step that no other run of the program can come between: `change` is handed a way to read
    // what the store holds now, whoever wrote it, and returns the values to write; it may be called again if the store
    // has changed meanwhile. All of them are stored or none: whatever happens, the old store or the new one is found
    // afterwards. False if nothing could be stored; the backend tells the player.
    virtual bool ChangeSettings(std::string_view application, const SettingsChange& change) = 0;
};

}  // namespace prismfall
