#include "screens/SettingsStore.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace prismfall {

namespace {

constexpr std::string_view kApplication = "Tavelor";
constexpr std::string_view kGeneral = "General";
constexpr std::string_view kScores = "Scores";
constexpr std::string_view kSolvedPuzzles = "SolvedPuzzles";

// What each row of the score table holds when the store has nothing for it.
constexpr std::int16_t kNoScore = 0;
constexpr std::int16_t kFirstLevel = 1;

std::string KeyOf(std::string_view word, std::size_t number) { return std::string(word) + std::to_string(number); }

// An optional sign and digits, nothing else, within 16 bits.
std::optional<std::int16_t> ParseNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    std::int16_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

bool IsSameWithoutCase(std::string_view text, std::string_view lower) {
    return std::ranges::equal(text, lower, {}, [](unsigned char letter) { return std::tolower(letter); });
}

std::optional<bool> ParseBoolean(std::string_view text) {
    if (IsSameWithoutCase(text, "true")) return true;
    if (IsSameWithoutCase(text, "false")) return false;
    return std::nullopt;
}

std::string Read(VMain& main, std::string_view section, std::string_view key) {
    return main.platform.ReadSetting(kApplication, section, key, "");
}

std::int16_t ReadNumber(VMain& main, std::string_view section, std::string_view key, std::int16_t fallback) {
    return ParseNumber(Read(main, section, key)).value_or(fallback);
}

bool ReadBoolean(VMain& main, std::string_view section, std::string_view key, bool fallback) {
    return ParseBoolean(Read(main, section, key)).value_or(fallback);
}

// The values of a save, in the order in which they are written.
class Sheet {
  public:
    void Add(std::string_view section, std::string key, Boolean value) {
        values.push_back({std::string(section), std::move(key), value ? "True" : "False"});
    }
    void Add(std::string_view section, std::string key, std::int16_t value) {
        values.push_back({std::string(section), std::move(key), std::to_string(value)});
    }
    const std::vector<SettingValue>& Values() const { return values; }

  private:
    std::vector<SettingValue> values;
};

}  // namespace

void ReadStartSettings(VMain& main) {
    main.PlayFirstTime = ReadBoolean(main, kGeneral, "PlayFirstTime", true);
    main.StartLevel = ReadNumber(main, kGeneral, "StartLevel", kFirstLevel);
    for (std::size_t row = 1; row <= kScoreRows; ++row) {
        main.RowScore[row] = ReadNumber(main, kScores, KeyOf("Score", row), kNoScore);
        main.RowLevel[row] = ReadNumber(main, kScores, KeyOf("Level", row), kFirstLevel);
        main.RowEndLevel[row] = ReadNumber(main, kScores, KeyOf("EndLevel", row), kFirstLevel);
    }
}

void ReadAudioSettings(VMain& main) {
    main.Music = ReadBoolean(main, kGeneral, "Music", true);
    main.SoundEffects = ReadBoolean(main, kGeneral, "SoundEffects", true);
}

void ReadSolvedPuzzles(VMain& main) {
    for (std::size_t puzzle = 1; puzzle <= kPuzzleCount; ++puzzle)
        main.SolvedPuzzles[puzzle - 1] = ReadBoolean(main, kSolvedPuzzles, KeyOf("Puzzle", puzzle), false);
}

void SaveSettings(VMain& main) {
    Sheet sheet;
    sheet.Add(kGeneral, "PlayFirstTime", main.PlayFirstTime);
    sheet.Add(kGeneral, "StartLevel", main.StartLevel);
    sheet.Add(kGeneral, "Music", main.Music);
    sheet.Add(kGeneral, "SoundEffects", main.SoundEffects);
    for (std::size_t row = 1; row <= kScoreRows; ++row) {
        sheet.Add(kScores, KeyOf("Score", row), main.RowScore[row]);
        sheet.Add(kScores, KeyOf("Level", row), main.RowLevel[row]);
        sheet.Add(kScores, KeyOf("EndLevel", row), main.RowEndLevel[row]);
    }
    for (std::size_t puzzle = 1; puzzle <= kPuzzleCount; ++puzzle)
        sheet.Add(kSolvedPuzzles, KeyOf("Puzzle", puzzle), main.SolvedPuzzles[puzzle - 1]);
    main.platform.ChangeSettings(kApplication, [&sheet](const SettingsReader&) { return sheet.Values(); });
}

}  // namespace prismfall
