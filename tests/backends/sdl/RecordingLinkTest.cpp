// Links to recordings: what comes out of them, and what strangers may have done to them.
#include "backends/sdl/recordings/RecordingLink.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace prismfall {
namespace {

constexpr std::size_t kMost = 2'000'000;

TEST(RecordingLink, HoldsAnyTextAndAThreeMinuteGameIn2000Characters) {
    std::mt19937 random(1);
    for (std::size_t length = 0; length < 300; ++length) {
        std::string text(length, '\0');
        for (char& letter : text) letter = static_cast<char>(random());
        const LinkContents contents = ReadRecordingLink(LinkTo("https://a.example/#2.x/", text) + "\n", kMost);
        EXPECT_EQ(contents.fault, "");
        EXPECT_EQ(contents.text, text);
    }
    std::string game = "recording 1\nprogram 1.1.0\narcade level 3 high 1230\nseed 4628530184847360\n";
    for (int i = 0; i < 150; ++i) {
        const std::string moment = std::to_string(1200 * i + static_cast<int>(random() % 1200));
        game += "at " + moment + " press " + std::to_string(1 + random() % 2) + ' ' + std::to_string(random() % 660) +
                ' ' + std::to_string(random() % 580) + '\n';
    }
    EXPECT_LT(LinkTo({}, game).size(), 2000U);
}

TEST(RecordingLink, SaysWhatIsWrongWithIt) {
    const std::string good = LinkTo("", "recording 1");
    const std::string bomb = LinkTo("", std::string(64 << 20, 'a'));
    for (const auto& [link, fault] : {std::pair{std::string("#1."), "damaged"},
                                      {"#1.A", "damaged"},
                                      {good.substr(0, good.size() - 2), "damaged"},
                                      {good + "AAAA", "damaged"},
                                      {good + "=", "damaged"},
                                      {"#2." + good.substr(3), "format 2"},
                                      {"#10." + good.substr(3), "format 10"},
                                      {bomb, "too long"}})
        EXPECT_NE(ReadRecordingLink(link, kMost).fault.find(fault), std::string::npos) << link.substr(0, 40);
    for (const char* words : {"", "#", "#1", "game.prismfall", "#x.AA", "game #1 of mine.prismfall", "#1.AA#"})
        EXPECT_FALSE(IsRecordingLink(words)) << words;
}

}  // namespace
}  // namespace prismfall
