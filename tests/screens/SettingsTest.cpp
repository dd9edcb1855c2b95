// How the texts of the store are read.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "screens/SettingsStore.h"
#include "tests/support/TestField.h"

namespace prismfall {
namespace {

TEST(Settings, NumbersAreAnOptionalSignAndDigitsAndBooleansHaveNoCase) {
    std::map<std::string, int> levels = {{"7", 7},   {"+5", 5},        {"-5", -5},        {"0", 0},
                                         {"007", 7}, {"32767", 32767}, {"-32768", -32768}};
    for (const char* bad : {"32768", "-32769", "99999", "",     " 5",    "5 ",    "5x",    "5.0",    "+",      "+-5",
                            "-+5",   "++5",    "0x5",   "True", "false", "FALSE", "fAlSe", "Falsee", " False", "no"})
        levels[bad] = 1;  // as if it were missing
    for (const auto& [text, startLevel] : levels) {
        TestField field(kMainMenu);
        for (const char* key : {"StartLevel", "Music"}) field.Machine().PutSetting("General", key, text);
        ReadStartSettings(field.Main());
        ReadAudioSettings(field.Main());
        EXPECT_EQ(field.Main().StartLevel, startLevel) << '"' << text << '"';
        EXPECT_EQ(field.Main().Music, text != "false" && text != "FALSE" && text != "fAlSe") << '"' << text << '"';
    }
}

}  // namespace
}  // namespace prismfall
