#include "screens/SettingsStore.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace prismfall {

namespace {

constexpr std::string_view kApplication = "Tavelor";
constexpr std::string_view kGeneral = "General";
constexpr std::string_view kScores = "Scores";
constexpr std::string_view kSolvedPuzzles = "SolvedPuzzles";

std::string KeyOf(std::string_view word, std::size_t number) { return std::string(word) + std::to_string(number); }

// --- Values and their texts.

std::string TextOf(std::int16_t number) { return std::to_string(number); }
std::string TextOf(Boolean value) { return value ? "True" : "False"; }

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

std::optional<Boolean> ParseBoolean(std::string_view text) {
    if (IsSameWithoutCase(text, "true")) return true;
    if (IsSameWithoutCase(text, "false")) return false;
    return std::nullopt;
}

// --- Reading.

// The text of a value, or `fallback` if there is none.
using TextReader = std::function<std::string(std::string_view section, std::string_view key, std::string fallback)>;

std::int16_t ReadNumber(const TextReader& read, std::string_view section, std::string_view key, std::int16_t fallback) {
    return ParseNumber(read(section, key, TextOf(fallback))).value_or(fallback);
}

Boolean ReadBoolean(const TextReader& read, std::string_view section, std::string_view key, Boolean fallback) {
    return ParseBoolean(read(section, key, TextOf(fallback))).value_or(fallback);
}

ScoreTable ReadScores(const TextReader& read) {
    ScoreTable table;
    for (std::size_t i = 0; i < kScoreRows; ++i) {
        ScoreRow& row = table[i];
        row.score = ReadNumber(read, kScores, KeyOf("Score", i + 1), row.score);
        row.startLevel = ReadNumber(read, kScores, KeyOf("Level", i + 1), row.startLevel);
        row.endLevel = ReadNumber(read, kScores, KeyOf("EndLevel", i + 1), row.endLevel);
    }
    return table;
}

// Reads for the state, and remembers what was read.
TextReader ReaderFor(VMain& main) {
    return [&main](std::string_view section, std::string_view key, const std::string& fallback) {
        std::string text = main.platform.ReadSetting(kApplication, section, key, fallback);
        main.Stored.texts[{std::string(section), std::string(key)}] = text;
        return text;
    };
}

// --- Saving.

void AddScores(std::vector<SettingValue>& values, const ScoreTable& table) {
    for (std::size_t i = 0; i < kScoreRows; ++i) {
        values.push_back({std::string(kScores), KeyOf("Score", i + 1), TextOf(table[i].score)});
        values.push_back({std::string(kScores), KeyOf("Level", i + 1), TextOf(table[i].startLevel)});
        values.push_back({std::string(kScores), KeyOf("EndLevel", i + 1), TextOf(table[i].endLevel)});
    }
}

// All 79, in the order in which they are written.
std::vector<SettingValue> AllValues(const VMain& main, const ScoreTable& scores) {
    std::vector<SettingValue> values = {{std::string(kGeneral), "PlayFirstTime", TextOf(main.PlayFirstTime)},
                                        {std::string(kGeneral), "StartLevel", TextOf(main.StartLevel)},
                                        {std::string(kGeneral), "Music", TextOf(main.Music)},
                                        {std::string(kGeneral), "SoundEffects", TextOf(main.SoundEffects)}};
    AddScores(values, scores);
    for (std::size_t i = 0; i < kPuzzleCount; ++i)
        values.push_back({std::string(kSolvedPuzzles), KeyOf("Puzzle", i + 1), TextOf(main.SolvedPuzzles[i])});
    return values;
}

// What this run last read or saved, or nothing.
std::optional<std::string> KnownText(const VMain& main, const std::string& section, const std::string& key) {
    const auto known = main.Stored.texts.find({section, key});
    if (known == main.Stored.texts.end()) return std::nullopt;
    return known->second;
}

bool IsTableAsKnown(const VMain& main, const SettingsReader& stored) {
    std::vector<SettingValue> names;
    AddScores(names, {});
    return std::ranges::all_of(names, [&](const SettingValue& name) {
        const std::optional<std::string> text = stored(name.section, name.key);
        return !text || text == KnownText(main, name.section, name.key);
    });
}

// The table that is to stand in the store.
ScoreTable MergedScores(const VMain& main, const SettingsReader& stored) {
    if (IsTableAsKnown(main, stored)) return main.Scores;
    ScoreTable table;
    if (main.Stored.scoresCleared) {
        table.fill(kClearedRow);
    } else {
        table = ReadScores([&stored](std::string_view section, std::string_view key, const std::string& fallback) {
            return stored(section, key).value_or(fallback);
        });
    }
    for (const ScoreRow& game : main.Stored.gamesEntered) EnterScore(table, game);
    return table;
}

// The score table has been merged with what the store holds, so that is what it is compared with.
bool IsToBeWritten(const VMain& main, const SettingValue& value, const SettingsReader& stored) {
    const std::optional<std::string> text = stored(value.section, value.key);
    if (!text) return true;
    return value.text != (value.section == kScores ? text : KnownText(main, value.section, value.key));
}

void RememberSaved(VMain& main, const ScoreTable& scores) {
    main.Scores = scores;
    for (SettingValue& value : AllValues(main, scores))
        main.Stored.texts[{std::move(value.section), std::move(value.key)}] = std::move(value.text);
    main.Stored.scoresCleared = false;
    main.Stored.gamesEntered.clear();
}

}  // namespace

void ReadStartSettings(VMain& main) {
    const TextReader read = ReaderFor(main);
    main.PlayFirstTime = ReadBoolean(read, kGeneral, "PlayFirstTime", true);
    main.StartLevel = ReadNumber(read, kGeneral, "StartLevel", 1);
    main.Scores = ReadScores(read);
}

void ReadAudioSettings(VMain& main) {
    const TextReader read = ReaderFor(main);
    main.Music = ReadBoolean(read, kGeneral, "Music", true);
    main.SoundEffects = ReadBoolean(read, kGeneral, "SoundEffects", true);
}

void ReadSolvedPuzzles(VMain& main) {
    const TextReader read = ReaderFor(main);
    for (std::size_t i = 0; i < kPuzzleCount; ++i)
        main.SolvedPuzzles[i] = ReadBoolean(read, kSolvedPuzzles, KeyOf("Puzzle", i + 1), false);
}

void SaveSettings(VMain& main) {
    ScoreTable scores;
    const bool isSaved = main.platform.ChangeSettings(kApplication, [&](const SettingsReader& stored) {
        scores = MergedScores(main, stored);
        std::vector<SettingValue> values = AllValues(main, scores);
        std::erase_if(values, [&](const SettingValue& value) { return !IsToBeWritten(main, value, stored); });
        return values;
    });
    if (isSaved) RememberSaved(main, scores);
}

}  // namespace prismfall
