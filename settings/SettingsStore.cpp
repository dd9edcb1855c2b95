#include "settings/SettingsStore.h"

#include <algorithm>
#include <array>
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
constexpr std::string_view kExtras = "Extras";

// The defaults are those of Extras.
struct ExtraRow {
    std::string_view key;
    std::int16_t Extras::*value;
    std::array<std::int16_t, 4> allowed;
};

constexpr std::array<ExtraRow, 9> kExtraRows = {{
    {"Palette", &Extras::Palette, {0, 1}},
    {"Patterns", &Extras::Patterns, {0, 1}},
    {"Rings", &Extras::Rings, {0, 1}},
    {"Lively", &Extras::Lively, {0, 1}},
    {"Pace", &Extras::Pace, {100, 80, 60, 40}},
    {"PauseAway", &Extras::PauseAway, {0, 1}},
    {"MusicVolume", &Extras::MusicVolume, {100, 75, 50, 25}},
    {"EffectsVolume", &Extras::EffectsVolume, {100, 75, 50, 25}},
    {"Mute", &Extras::Mute, {0, 1}},
}};

// In the order of kActions.
constexpr std::array<std::string_view, kActions.size()> kKeyRows = {"KeyBend",     "KeyRun",  "KeyPause", "KeyRestart",
                                                                    "KeyPrevious", "KeyNext", "KeyMute"};

std::string KeyOf(std::string_view word, std::size_t number) { return std::string(word) + std::to_string(number); }

// --- Values as text.

std::string TextOf(std::int16_t number) { return std::to_string(number); }
std::string TextOf(bool value) { return value ? "True" : "False"; }

// A 16-bit integer: an optional sign and digits, nothing else.
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

// --- Reading.

// The text of a value, or `fallback` if there is none.
using TextReader = std::function<std::string(std::string_view section, std::string_view key, std::string fallback)>;

std::int16_t ReadNumber(const TextReader& read, std::string_view section, std::string_view key, std::int16_t fallback) {
    return ParseNumber(read(section, key, TextOf(fallback))).value_or(fallback);
}

bool ReadBoolean(const TextReader& read, std::string_view section, std::string_view key, bool fallback) {
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

// Keys that cannot be chosen, or serve twice, count as missing.
KeyMap ReadKeys(const TextReader& read) {
    KeyMap map;
    for (std::size_t i = 0; i < kActions.size(); ++i) {
        const auto usual = static_cast<std::int16_t>(kActions[i]);
        const auto key = static_cast<Key>(ReadNumber(read, kExtras, kKeyRows[i], usual));
        if (CanBeChosen(key)) map.keys[i] = key;
    }
    for (const Key key : map.keys)
        if (std::ranges::count(map.keys, key) > 1) return {};
    return map;
}

// A value that the game does not know counts as missing.
Extras ReadExtras(const TextReader& read) {
    Extras extras;
    for (const ExtraRow& row : kExtraRows) {
        const std::int16_t number = ReadNumber(read, kExtras, row.key, extras.*row.value);
        if (std::ranges::find(row.allowed, number) != row.allowed.end()) extras.*row.value = number;
    }
    extras.Keys = ReadKeys(read);
    return extras;
}

// Reads from the store and remembers what was read.
TextReader ReaderOf(SettingsKeeper& store, StoreMemory& memory) {
    return [&](std::string_view section, std::string_view key, const std::string& fallback) {
        std::string text = store.ReadSetting(kApplication, section, key, fallback);
        memory.texts[{std::string(section), std::string(key)}] = text;
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

void AddExtras(std::vector<SettingValue>& values, const Extras& extras) {
    for (const ExtraRow& row : kExtraRows)
        values.push_back({std::string(kExtras), std::string(row.key), TextOf(extras.*row.value)});
    for (std::size_t i = 0; i < kActions.size(); ++i)
        values.push_back(
            {std::string(kExtras), std::string(kKeyRows[i]), TextOf(static_cast<std::int16_t>(extras.Keys.keys[i]))});
}

// The 79 values that the store should contain, and the extras, in the order in which they are written.
std::vector<SettingValue> AllValues(const Settings& settings, const ScoreTable& scores) {
    std::vector<SettingValue> values = {{std::string(kGeneral), "PlayFirstTime", TextOf(settings.PlayFirstTime)},
                                        {std::string(kGeneral), "StartLevel", TextOf(settings.StartLevel)},
                                        {std::string(kGeneral), "Music", TextOf(settings.Music)},
                                        {std::string(kGeneral), "SoundEffects", TextOf(settings.SoundEffects)}};
    AddScores(values, scores);
    for (std::size_t i = 0; i < kPuzzleCount; ++i)
        values.push_back({std::string(kSolvedPuzzles), KeyOf("Puzzle", i + 1), TextOf(settings.SolvedPuzzles[i])});
    AddExtras(values, settings.extras);
    return values;
}

// What this run last read or saved, or nothing.
std::optional<std::string> KnownText(const StoreMemory& memory, const std::string& section, const std::string& key) {
    const auto known = memory.texts.find({section, key});
    if (known == memory.texts.end()) return std::nullopt;
    return known->second;
}

bool IsTableAsKnown(const StoreMemory& memory, const SettingsReader& stored) {
    std::vector<SettingValue> names;
    AddScores(names, {});
    return std::ranges::all_of(names, [&](const SettingValue& name) {
        const std::optional<std::string> text = stored(name.section, name.key);
        return !text || text == KnownText(memory, name.section, name.key);
    });
}

// The table to be stored.
ScoreTable MergedScores(const Settings& settings, const SettingsReader& stored) {
    if (IsTableAsKnown(settings.Stored, stored)) return settings.Scores;
    ScoreTable table;
    if (settings.Stored.scoresCleared) {
        table.fill(kClearedRow);
    } else {
        table = ReadScores([&stored](std::string_view section, std::string_view key, const std::string& fallback) {
            return stored(section, key).value_or(fallback);
        });
    }
    for (const ScoreRow& game : settings.Stored.gamesEntered) EnterScore(table, game);
    return table;
}

// The score table has been merged with the stored one, so it is compared with that.
bool IsToBeWritten(const StoreMemory& memory, const SettingValue& value, const SettingsReader& stored) {
    const std::optional<std::string> text = stored(value.section, value.key);
    if (!text && value.section != kExtras) return true;
    return value.text != (value.section == kScores ? text : KnownText(memory, value.section, value.key));
}

void RememberSaved(Settings& settings, const ScoreTable& scores) {
    settings.Scores = scores;
    StoreMemory& memory = settings.Stored;
    for (SettingValue& value : AllValues(settings, scores))
        memory.texts[{std::move(value.section), std::move(value.key)}] = std::move(value.text);
    memory.scoresCleared = false;
    memory.gamesEntered.clear();
}

}  // namespace

void ReadSettings(Settings& settings, SettingsKeeper& store) {
    const TextReader read = ReaderOf(store, settings.Stored);
    settings.PlayFirstTime = ReadBoolean(read, kGeneral, "PlayFirstTime", true);
    settings.StartLevel = ReadNumber(read, kGeneral, "StartLevel", 1);
    settings.Scores = ReadScores(read);
    settings.Music = ReadBoolean(read, kGeneral, "Music", true);
    settings.SoundEffects = ReadBoolean(read, kGeneral, "SoundEffects", true);
    for (std::size_t i = 0; i < kPuzzleCount; ++i)
        settings.SolvedPuzzles[i] = ReadBoolean(read, kSolvedPuzzles, KeyOf("Puzzle", i + 1), false);
    settings.extras = ReadExtras(read);
}

void SaveSettings(Settings& settings, SettingsKeeper& store) {
    ScoreTable scores;
    const bool isSaved = store.ChangeSettings(kApplication, [&](const SettingsReader& stored) {
        scores = MergedScores(settings, stored);
        std::vector<SettingValue> values = AllValues(settings, scores);
        std::erase_if(values,
                      [&](const SettingValue& value) { return !IsToBeWritten(settings.Stored, value, stored); });
        return values;
    });
    if (isSaved) RememberSaved(settings, scores);
}

}  // namespace prismfall
