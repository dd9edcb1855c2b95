// The text format of the settings: sections in brackets, then lines of a key, an equals sign and a value. Any value can
// be stored, whatever bytes it contains; a damaged line is skipped. Storage is the backend's job.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/SettingsKeeper.h"

namespace prismfall {

// Texts by section and key.
using SettingsValues = std::map<std::pair<std::string, std::string>, std::string>;

// The text stored under a section and key, or nothing.
std::optional<std::string> FindSetting(const SettingsValues& values, std::string_view section, std::string_view key);

// The settings text after a change of its values. A change that writes nothing leaves every byte as it was.
std::string ChangedSettings(std::string text, const SettingsChange& change);

class SettingsText {
  public:
    explicit SettingsText(std::string_view text);

    // All values. If several lines have the same key, the last one counts.
    SettingsValues Values() const;
    // Replaces a value, or inserts it at the end of its section or in a new section.
    void Set(const std::string& section, const std::string& key, const std::string& value);
    std::string Text() const;

  private:
    enum class LineKind { Section, Value, Other };  // Other: blank lines, comments, and what cannot be read

    struct Line {
        LineKind kind = LineKind::Other;
        std::string section;
        std::string key;
        std::string value;
        std::string raw;
    };

    static Line ReadLine(std::string_view raw, const std::string& section);
    static Line MakeValue(const std::string& section, const std::string& key, const std::string& value);

    std::vector<Line> lines;
};

}  // namespace prismfall
