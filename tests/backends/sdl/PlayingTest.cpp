// What the sound device is given to play: music to the sample, over loops, pauses and its end, from files good and bad,
// and the one voice of the sounds. The device is SDL's dummy, and the test takes the samples in its place.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include "audio/SoundResources.h"
#include "backends/sdl/sound/SdlMusic.h"
#include "backends/sdl/sound/SdlSound.h"

namespace prismfall {
namespace {

namespace fs = std::filesystem;
using Samples = std::vector<std::int16_t>;  // left and right in turn

constexpr std::size_t kChunk = 4096;  // samples
const std::string kTrack = PRISMFALL_ASSETS "/music/Side_Scroller-Ocean.mp3";
constexpr std::size_t kTrackSize = 4064256U * 2;

class PlayingTest : public testing::Test {
  protected:
    PlayingTest() { setenv("SDL_AUDIODRIVER", "dummy", 1); }

    template <typename Voice>
    static Samples Take(Voice& voice, std::size_t count) {
        Samples taken(count);
        for (std::size_t at = 0; at < count; at += kChunk) {
            const std::span chunk = std::span(taken).subspan(at, std::min(kChunk, count - at));
            voice.MixInto({reinterpret_cast<std::uint8_t*>(chunk.data()), chunk.size_bytes()});
        }
        return taken;
    }

    // The track from its beginning to its end.
    Samples WholeTrack() {
        EXPECT_EQ(music.Open(kTrack), "");
        music.Resume();
        Samples track;
        while (music.IsSounding()) {
            const Samples chunk = Take(music, kChunk);
            track.insert(track.end(), chunk.begin(), chunk.end());
        }
        while (!track.empty() && track.back() == 0) track.pop_back();
        track.resize(track.size() + track.size() % 2);
        return track;
    }

    static bool IsSilence(const Samples& samples) {
        return std::ranges::all_of(samples, [](std::int16_t sample) { return sample == 0; });
    }

    AudioDevice device{[](std::span<std::uint8_t>) {}};
    SdlMusic music{device};
    SdlSound sound{device};
};

TEST_F(PlayingTest, MusicLoopsWithoutASeamAndPlaysOnFromWhereItPaused) {
    const Samples track = WholeTrack();
    constexpr std::size_t size = kTrackSize;
    ASSERT_EQ(track.size(), size);
    EXPECT_TRUE(IsSilence(Take(music, kChunk))) << "it plays once";
    music.Resume();
    EXPECT_FALSE(music.IsSounding()) << "it has been played";

    music.PlayLooping();
    Samples twice = track;
    twice.insert(twice.end(), track.begin(), track.end());
    const Samples looped = Take(music, 2 * size);
    EXPECT_EQ(std::ranges::mismatch(looped, twice).in1 - looped.begin(), static_cast<std::ptrdiff_t>(2 * size));

    const std::size_t place = size / 2 + 2;
    Take(music, place);
    music.Pause();
    EXPECT_TRUE(IsSilence(Take(music, kChunk)));
    EXPECT_FALSE(music.IsSounding());
    device.Close();
    music.Resume();
    const Samples rest = Take(music, size);
    EXPECT_TRUE(std::equal(rest.begin(), rest.end() - static_cast<std::ptrdiff_t>(place),
                           track.begin() + static_cast<std::ptrdiff_t>(place)));
    EXPECT_FALSE(music.IsSounding()) << "resumed music ends with the track";

    music.PlayLooping();
    Take(music, size - 100);
    music.Resume();
    const Samples end = Take(music, kChunk);
    EXPECT_TRUE(std::equal(end.begin(), end.begin() + 100, track.end() - 100));
    EXPECT_TRUE(IsSilence({end.begin() + 100, end.end()})) << "the beginning must not come again";

    music.PlayLooping();
    Take(music, kChunk);
    music.Stop();
    EXPECT_TRUE(IsSilence(Take(music, kChunk)));
    music.PlayLooping();
    EXPECT_EQ(Take(music, kChunk), Samples(track.begin(), track.begin() + kChunk));
}

TEST_F(PlayingTest, VolumeIsAShareOfTheTracksOwn) {
    ASSERT_EQ(music.Open(kTrack), "");
    const auto energy = [&](int volume) {
        music.SetVolume(volume);
        music.PlayLooping();
        double sum = 0;
        for (const std::int16_t sample : Take(music, 88200 * 4)) sum += std::abs(sample);
        return sum;
    };
    const double full = energy(1000);
    EXPECT_NEAR(energy(500) / full, 0.5, 0.01);
    EXPECT_EQ(energy(2000), full);
    EXPECT_EQ(energy(0), 0);
    EXPECT_EQ(energy(-5), 0);
}

TEST_F(PlayingTest, AFileThatIsNoMusicIsToldAndSilent) {
    const fs::path folder = fs::path(testing::TempDir()) / "no-music";
    fs::create_directories(folder);
    std::ofstream(folder / "empty.mp3").flush();
    std::ofstream(folder / "text.mp3") << "These are words, and words are no music.\n";
    for (const char* name : {"missing.mp3", "empty.mp3", "text.mp3", ""}) {
        const std::string path = (folder / name).string();
        EXPECT_NE(music.Open(path).find(path), std::string::npos) << path;
        music.PlayLooping();
        music.Resume();
        EXPECT_FALSE(music.IsSounding());
        EXPECT_TRUE(IsSilence(Take(music, kChunk)));
    }
    EXPECT_EQ(music.Open(kTrack), "") << "a good file after bad ones";
}

TEST_F(PlayingTest, ADamagedFilePlaysAsFarAsItCan) {
    std::string bytes(200'000, ' ');
    std::ifstream(kTrack, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    std::mt19937 random(4);
    for (int i = 0; i < 2000; ++i) bytes[1000 + random() % (bytes.size() - 1000)] = static_cast<char>(random());
    const fs::path path = fs::path(testing::TempDir()) / "damaged.mp3";
    std::ofstream(path, std::ios::binary) << bytes;
    ASSERT_EQ(music.Open(path), "");
    music.PlayLooping();
    EXPECT_FALSE(IsSilence(Take(music, 88200 * 40))) << "its 16 seconds, more than twice";
    music.Resume();
    Take(music, 88200 * 20);
    EXPECT_FALSE(music.IsSounding());
}

TEST_F(PlayingTest, ANewSoundCutsOffTheOld) {
    const std::span<const std::byte> first = LoadSoundResource(102), second = LoadSoundResource(103);
    sound.Play(second);
    const Samples alone = Take(sound, kChunk);
    EXPECT_FALSE(IsSilence(alone));
    sound.Play(first);
    Take(sound, 1000);
    sound.Play(second);
    EXPECT_EQ(Take(sound, kChunk), alone);
    Take(sound, 88200 * 10);
    EXPECT_FALSE(sound.IsSounding());
    sound.Play(std::as_bytes(std::span("no sound")));
    EXPECT_FALSE(sound.IsSounding());
}

}  // namespace
}  // namespace prismfall
