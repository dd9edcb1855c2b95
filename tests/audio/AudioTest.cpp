// Which track plays when, and the sounds that the program carries.
#include <gtest/gtest.h>

#include <string>

#include "audio/Music.h"
#include "audio/SoundResources.h"
#include "tests/support/TestField.h"

namespace prismfall {
namespace {

TEST(Music, EveryNumberHasItsTrackAndOthersNone) {
    // From number 1 on; the tracks by what tells them apart in their names.
    constexpr std::string_view kTracks =
        "003 019 011 014 010 024 025 030 Oce 014 010 024 025 030 Oce 003 019 011 025 030 Oce 003 019 "
        "011 014 010 024 003 019 011 014 010 024 025 030 Oce 014 010 024 025 030 Oce 003 019 011 ";
    TestField field(kPuzzleGame);
    VMain& main = field.Main();
    main.Music = true;
    std::string tracks;
    for (std::int16_t number = -1; number <= 46; ++number) {
        PlayLevelMusic(main, number);
        const std::string printed = field.TakePrinted();
        const auto name = printed.find("Side_Scroller-");
        if (name != std::string::npos) tracks += printed.substr(name + 14, 3) + ' ';
        EXPECT_EQ(printed.ends_with(".mp3\"\nmusic volume 900\nmusic play\n"), number >= 1 && number <= 45) << number;
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
