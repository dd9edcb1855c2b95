// Which track plays when, and the sounds embedded in the program.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "audio/Music.h"
#include "audio/SoundResources.h"
#include "backends/headless/HeadlessPlatform.h"

namespace prismfall {
namespace {

TEST(Music, EveryNumberHasItsTrackAndOthersNone) {
    // From number 1 on, each track as the distinctive part of its name.
    constexpr std::string_view kTracks =
        "003 019 011 014 010 024 025 030 Oce 014 010 024 025 030 Oce 003 019 011 025 030 Oce 003 019 "
        "011 014 010 024 003 019 011 014 010 024 025 030 Oce 014 010 024 025 030 Oce 003 019 011 ";
    std::ostringstream printed;
    HeadlessPlatform machine(printed);
    Settings settings;
    settings.Music = true;
    const Audio audio{machine, machine, settings};
    std::string tracks;
    for (std::int16_t number = -1; number <= 46; ++number) {
        PlayLevelMusic(audio, number);
        const std::string lines = printed.str();
        printed.str({});
        const auto name = lines.find("Side_Scroller-");
        if (name != std::string::npos) tracks += lines.substr(name + 14, 3) + ' ';
        EXPECT_EQ(lines.ends_with(".mp3\"\nmusic volume 900\nmusic play\n"), number >= 1 && number <= 45) << number;
    }
    EXPECT_EQ(tracks, kTracks);
}

TEST(Sounds, EachIdHasItsOwn) {
    constexpr std::size_t kSizes[] = {2206, 10980, 7542, 19140, 89126, 36908, 1368};  // of the files 102 to 108
    for (int id = 102; id <= 108; ++id) EXPECT_EQ(LoadSoundResource(id).size(), kSizes[id - 102]) << id;
    for (const int id : {-1, 0, 1, 101, 109}) EXPECT_TRUE(LoadSoundResource(id).empty()) << id;
}

}  // namespace
}  // namespace prismfall
