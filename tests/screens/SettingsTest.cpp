// How the texts of the store are read.
#include <gtest/gtest.h>

#include "screens/SettingsStore.h"
#include "tests/support/TestField.h"

namespace prismfall {
namespace {

TEST(Settings, NumbersAreAnOptionalSignAndDigitsAndBooleansHaveNoCase) {
    struct Case {
        const char* text;
        int startLevel;  // 1 stands for a text that counts as missing, here and for the music
        bool music;
    };
    for (const Case& row : {Case{"7", 7, true},           Case{"+5", 5, true},     Case{"-5", -5, true},
                            Case{"0", 0, true},           Case{"007", 7, true},    Case{"32767", 32767, true},
                            Case{"-32768", -32768, true}, Case{"32768", 1, true},  Case{"-32769", 1, true},
                            Case{"99999", 1, true},       Case{"", 1, true},       Case{" 5", 1, true},
                            Case{"5 ", 1, true},          Case{"5x", 1, true},     Case{"5.0", 1, true},
                            Case{"+", 1, true},           Case{"+-5", 1, true},    Case{"-+5", 1, true},
                            Case{"++5", 1, true},         Case{"0x5", 1, true},    Case{"True", 1, true},
                            Case{"false", 1, false},      Case{"FALSE", 1, false}, Case{"fAlSe", 1, false},
                            Case{"Falsee", 1, true},      Case{" False", 1, true}, Case{"no", 1, true}}) {
        TestField field(kMainMenu);
        for (const char* key : {"StartLevel", "Music"}) field.Machine().PutSetting("General", key, row.text);
        ReadStartSettings(field.Main());
        ReadAudioSettings(field.Main());
        EXPECT_EQ(field.Main().StartLevel, row.startLevel) << '"' << row.text << '"';
        EXPECT_EQ(field.Main().Music, row.music) << '"' << row.text << '"';
    }
}

}  // namespace
}  // namespace prismfall
