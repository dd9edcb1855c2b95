// Stores texts by application, section and key, for this user, from one run to the next.
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

// The stored text, or nothing.
using SettingsReader = std::function<std::optional<std::string>(std::string_view section, std::string_view key)>;
using SettingsChange = std::function<std::vector<SettingValue>(const SettingsReader& stored)>;

class SettingsKeeper : public Facet {
  public:
    virtual std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                    std::string_view fallback) = 0;
    // Changes the store atomically, even if other copies of the program write to it: `change` is given a way to read
    // what the store contains now, whoever wrote it, and returns the values to write; it may be called again if the
    // store has changed in the meantime. Either all values are stored or none. Returns false if nothing could be
    // stored; the backend tells the player.
    virtual bool ChangeSettings(std::string_view application, const SettingsChange& change) = 0;
};

}  // namespace prismfall
