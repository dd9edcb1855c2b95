// The text of the settings: what is kept of it, where values are inserted, and that any text survives.
#include "platform/SettingsText.h"

#include <gtest/gtest.h>

#include <random>

namespace prismfall {
namespace {

using namespace std::string_literals;

TEST(SettingsText, KeepsWhatItDoesNotKnowAndLosesOnlyDamagedLines) {
    SettingsText text(
        "; mine\n[General\nMu=1\n[General]\n===\nMusic = True\nColour=green\nnonsense\n\xff\xfe\nSt\n\n[Else]\nx=1\n[");
    const auto values = text.Values();
    EXPECT_FALSE(values.contains({"General", "Mu"}) || values.contains({"General", "St"}));
    EXPECT_EQ(values.at({"General", "Music"}) + values.at({"General", "Colour"}) + values.at({"Else", "x"}),
              "Truegreen1");
    text.Set("General", "Music", "False");
    text.Set("General", "Level", " 2");
    text.Set("New [one]", "a=b", "c#");
    EXPECT_EQ(
        text.Text(),
        "; mine\n[General\nMu=1\n[General]\n===\nMusic=False\nColour=green\nnonsense\n\xff\xfe\nSt\nLevel=\\x202\n"
        "\n[Else]\nx=1\n[\n\n[New \\x5Bone\\x5D]\na\\x3Db=c#\n");
    text.Set("General", "Music", "False");
    EXPECT_EQ(SettingsText(text.Text()).Values().at({"New [one]", "a=b"}), "c#");
}

TEST(SettingsText, AnyTextSurvives) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string letters = "ab=[]#;\\\"' \t\n\r\0\x80\xff%"s;
    const auto any = [&] {
        std::string result;
        for (auto length = random() % 8; length > 0; --length) result += letters[random() % letters.size()];
        return result;
    };
    SettingsText text("");
    SettingsValues values;
    for (int round = 0; round < 500; ++round) {
        const std::string section = any() + "s", key = any() + "k", value = any();
        text.Set(section, key, value);
        values[{section, key}] = value;
    }
    EXPECT_EQ(SettingsText(text.Text()).Values(), values);
}

}  // namespace
}  // namespace prismfall
