// The text that settings are kept as: sections in brackets, lines of a key, an equals sign and a value. Every text can
// be stored, whatever bytes it holds; a damaged line costs itself alone. Where the text is kept is another's concern.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace prismfall {

class SettingsText {
  public:
    explicit SettingsText(std::string_view text);

    // All values by section and key. Of several lines with the same key the last one counts.
    std::map<std::pair<std::string, std::string>, std::string> Values() const;
    // Puts a value in its place, or at the end of its section, or in a new section.
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
