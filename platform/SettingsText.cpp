// Reading and writing lines. Bytes that could not be read back from a line are written as \x and two hexadecimal
// digits.
#include "platform/SettingsText.h"

#include <algorithm>
#include <charconv>

namespace prismfall {

namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// `reserved` are the characters that would be misread there.
std::string Escaped(std::string_view text, std::string_view reserved) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool atEdge = i == 0 || i + 1 == text.size();
        const bool plain = byte >= 0x20 && byte < 0x7F && byte != '\\' && !(byte == ' ' && atEdge) &&
                           reserved.find(text[i]) == std::string_view::npos;
        if (plain) {
            result += text[i];
            continue;
        }
        result.append("\\x").append({kDigits[byte / 16], kDigits[byte % 16]});
    }
    return result;
}

std::optional<char> EscapedByte(std::string_view text) {
    if (text.size() < 4 || text.substr(0, 2) != "\\x") return std::nullopt;
    unsigned int byte = 0;
    const auto outcome = std::from_chars(text.data() + 2, text.data() + 4, byte, 16);
    if (outcome.ptr != text.data() + 4) return std::nullopt;
    return static_cast<char>(byte);
}

std::string Unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const std::optional<char> byte = EscapedByte(text.substr(i));
        result += byte.value_or(text[i]);
        i += byte ? 4 : 1;
    }
    return result;
}

constexpr std::string_view kReservedInSection = "[]";
constexpr std::string_view kReservedInKey = "=[#;";

}  // namespace

std::optional<std::string> FindSetting(const SettingsValues& values, std::string_view section, std::string_view key) {
    const auto found = values.find({std::string(section), std::string(key)});
    if (found == values.end()) return std::nullopt;
    return found->second;
}

std::string ChangedSettings(std::string text, const SettingsChange& change) {
    SettingsText settings(text);
    const SettingsValues stored = settings.Values();
    const std::vector<SettingValue> values =
        change([&stored](std::string_view section, std::string_view key) { return FindSetting(stored, section, key); });
    if (values.empty()) return text;
    for (const SettingValue& value : values) settings.Set(value.section, value.key, value.text);
    return settings.Text();
}

SettingsText::SettingsText(std::string_view text) {
    if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) text.remove_prefix(kByteOrderMark.size());
    std::string section;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(ReadLine(text.substr(0, end), section));
        if (lines.back().kind == LineKind::Section) section = lines.back().section;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

SettingsText::Line SettingsText::ReadLine(std::string_view raw, const std::string& section) {
    Line line;
    line.raw = raw;
    line.section = section;
    const std::string_view content = Trimmed(raw);
    if (content.empty() || content[0] == '#' || content[0] == ';') return line;
    if (content[0] == '[') {
        if (content.back() != ']') return line;
        line.kind = LineKind::Section;
        line.section = Unescaped(Trimmed(content.substr(1, content.size() - 2)));
        return line;
    }
    const std::size_t equals = content.find('=');
    if (equals == std::string_view::npos) return line;
    line.kind = LineKind::Value;
    line.key = Unescaped(Trimmed(content.substr(0, equals)));
    line.value = Unescaped(Trimmed(content.substr(equals + 1)));
    return line;
}

SettingsText::Line SettingsText::MakeValue(const std::string& section, const std::string& key,
                                           const std::string& value) {
    return {LineKind::Value, section, key, value, Escaped(key, kReservedInKey) + "=" + Escaped(value, "")};
}

SettingsValues SettingsText::Values() const {
    SettingsValues values;
    for (const Line& line : lines)
        if (line.kind == LineKind::Value) values[{line.section, line.key}] = line.value;
    return values;
}

void SettingsText::Set(const std::string& section, const std::string& key, const std::string& value) {
    std::optional<std::size_t> place;       // of the key's last line
    std::optional<std::size_t> sectionEnd;  // the section's last line that is not blank
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].section != section) continue;
        if (lines[i].kind == LineKind::Value && lines[i].key == key) place = i;
        if (lines[i].kind == LineKind::Section || !Trimmed(lines[i].raw).empty()) sectionEnd = i;
    }
    if (place) {
        if (lines[*place].value != value) lines[*place] = MakeValue(section, key, value);
        return;
    }
    if (!sectionEnd) {
        if (!lines.empty()) lines.push_back({});
        lines.push_back({LineKind::Section, section, {}, {}, '[' + Escaped(section, kReservedInSection).append("]")});
        sectionEnd = lines.size() - 1;
    }
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(*sectionEnd) + 1, MakeValue(section, key, value));
}

std::string SettingsText::Text() const {
    std::string text;
    for (const Line& line : lines) text += line.raw + "\n";
    return text;
}

}  // namespace prismfall
