// How stored texts are parsed, and where a game enters the score table.
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "backends/headless/HeadlessPlatform.h"
#include "settings/SettingsStore.h"

namespace prismfall {
namespace {

TEST(Settings, NumbersAreAnOptionalSignAndDigitsAndBooleansHaveNoCase) {
    std::map<std::string, int> levels = {{"7", 7},   {"+5", 5},        {"-5", -5},        {"0", 0},
                                         {"007", 7}, {"32767", 32767}, {"-32768", -32768}};
    for (const char* bad : {"32768", "-32769", "99999", "",     " 5",    "5 ",    "5x",    "5.0",    "+",      "+-5",
                            "-+5",   "++5",    "0x5",   "True", "false", "FALSE", "fAlSe", "Falsee", " False", "no"})
        levels[bad] = 1;  // as if it were missing
    for (const auto& [text, startLevel] : levels) {
        std::ostringstream nowhere;
        HeadlessPlatform machine(nowhere);
        for (const char* key : {"StartLevel", "Music"}) machine.PutSetting("General", key, text);
        Settings settings;
        ReadSettings(settings, machine);
        EXPECT_EQ(settings.StartLevel, startLevel) << '"' << text << '"';
        EXPECT_EQ(settings.Music, text != "false" && text != "FALSE" && text != "fAlSe") << '"' << text << '"';
    }
}

TEST(EnterScore, BelowOlderEqualOnesAndTheLastRowDrops) {
    ScoreTable table;
    for (const int score : {90, 100, 0, 80, 70, 60, 50, 40, 30, 20, 10, 10, 100, 32767})
        EnterScore(table, {static_cast<std::int16_t>(score), static_cast<std::int16_t>(score / 10), 5});
    EXPECT_FALSE(EnterScore(table, {20, 9, 9})) << "equal to the last one";
    EXPECT_TRUE(EnterScore(table, {100, 7, 8}));
    std::string rows;
    for (const auto& row : table) rows += std::to_string(row.score) + ':' + std::to_string(row.startLevel) + ' ';
    EXPECT_EQ(rows, "32767:3276 100:10 100:10 100:7 90:9 80:8 70:7 60:6 50:5 40:4 ");
}

}  // namespace
}  // namespace prismfall
