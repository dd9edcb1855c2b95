// What the sound device is given to play: music, exact to the sample, across loops, pauses and its end, from good and
// bad files, and the single voice for sounds. The device is SDL's dummy, and the test reads the samples instead.
#include <gtest/gtest.h>
#include <mpg123.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <thread>

#include "audio/SoundResources.h"
#include "backends/sdl/sound/SdlAudio.h"
#include "backends/sdl/sound/SdlMusic.h"
#include "backends/sdl/sound/SdlSound.h"

namespace prismfall {
namespace {

namespace fs = std::filesystem;
using Samples = std::vector<std::int16_t>;  // left and right alternating

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
    EXPECT_FALSE(music.IsSounding()) << "it has finished";

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
    music.Release();
    device.Close();
    music.Resume();
    const Samples rest = Take(music, size);
    EXPECT_TRUE(std::equal(rest.begin(), rest.end() - static_cast<std::ptrdiff_t>(place),
                           track.begin() + static_cast<std::ptrdiff_t>(place)));
    EXPECT_FALSE(music.IsSounding()) << "resumed music stops at the end of the track";

    music.PlayLooping();
    Take(music, size - 100);
    music.Resume();
    const Samples end = Take(music, kChunk);
    EXPECT_TRUE(std::equal(end.begin(), end.begin() + 100, track.end() - 100));
    EXPECT_TRUE(IsSilence({end.begin() + 100, end.end()})) << "it must not loop";

    music.PlayLooping();
    Take(music, kChunk);
    music.Stop();
    EXPECT_TRUE(IsSilence(Take(music, kChunk)));
}

TEST_F(PlayingTest, MusicPlaysToItsEndOnADeviceOfAnotherRate) {
    setenv("SDL_AUDIO_FREQUENCY", "22050", 1);
    EXPECT_NEAR(static_cast<double>(WholeTrack().size()), kTrackSize / 2, 50);
    unsetenv("SDL_AUDIO_FREQUENCY");
}

TEST_F(PlayingTest, VolumeScalesTheTracksOwn) {
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
    EXPECT_EQ(energy(-5), 0);
}

TEST_F(PlayingTest, AFileThatIsNotMusicIsReportedAndSilent) {
    const fs::path folder = fs::path(testing::TempDir()) / "no-music";
    fs::create_directories(folder);
    std::ofstream(folder / "empty.mp3").flush();
    std::ofstream(folder / "text.mp3") << "These are words, and words are no music.\n";
    for (const char* name : {"missing.mp3", "empty.mp3", "text.mp3", ""}) {
        const std::string path = (folder / name).string();
        EXPECT_NE(music.Open(path).find(path + ": "), std::string::npos) << path;
        music.PlayLooping();
        music.Resume();
        EXPECT_FALSE(music.IsSounding());
        EXPECT_TRUE(IsSilence(Take(music, kChunk)));
    }
    EXPECT_NE(music.Open("missing.mp3").find(mpg123_plain_strerror(MPG123_BAD_FILE)), std::string::npos);
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

// Frames of silence, 128 kbit/s.
std::string Frames(int count, int rate, int rateBits, bool isMono) {
    std::string frame(static_cast<std::size_t>(144 * 128000 / rate), '\0');
    frame.replace(0, 4,
                  {'\xFF', '\xFB', static_cast<char>(0x90 | rateBits << 2), static_cast<char>(isMono ? 0xC0 : 0)});
    std::string frames;
    while (count-- > 0) frames += frame;
    return frames;
}

TEST_F(PlayingTest, AFileThatChangesItsRateAndChannelsKeepsItsLength) {
    const fs::path path = fs::path(testing::TempDir()) / "changing.mp3";
    std::ofstream(path, std::ios::binary) << Frames(50, 44100, 0, false) + Frames(100, 32000, 2, true) +
                                                 Frames(50, 48000, 1, false) + Frames(100, 32000, 2, false);
    ASSERT_EQ(music.Open(path), "");
    music.Resume();
    double length = 0;  // in samples of 44.1 kHz
    for (; music.IsSounding(); length += kChunk / 2) Take(music, kChunk);
    EXPECT_NEAR(length, 1152 * (50 + 200 * 44.1 / 32 + 50 * 44.1 / 48), kChunk);
}

// What a device of SDL's disk driver has played. Until playback starts, it writes chunks of silence.
Samples ReadSamples(const fs::path& file) {
    Samples samples(fs::file_size(file) / 2);
    std::ifstream(file, std::ios::binary)
        .read(reinterpret_cast<char*>(samples.data()), static_cast<std::streamsize>(samples.size() * 2));
    const auto sound = std::ranges::find_if(samples, [](std::int16_t sample) { return sample != 0; });
    samples.erase(samples.begin(), sound - (sound - samples.begin()) % 2048);
    return samples;
}

bool WaitFor(const std::function<bool()>& holds) {
    for (int i = 0; i < 1000 && !holds(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return holds();
}

// SDL's disk driver stands in for a device that can be unplugged: its device disappears when the file reaches its size
// limit.
TEST_F(PlayingTest, MusicWaitsForADeviceAndResumesInTheFormatOfTheNext) {
    SDL_version linked;
    SDL_GetVersion(&linked);
    if (linked.patch >= 50) GTEST_SKIP() << "SDL2 over SDL3, which finds another device itself and tells of none";
    const Samples track = WholeTrack();
    const fs::path folder = fs::path(testing::TempDir()) / ("devices-" + std::to_string(getpid()));
    fs::create_directories(folder);
    const fs::path first = folder / "first", second = folder / "second";
    const auto size = [](const fs::path& file) { return fs::exists(file) ? fs::file_size(file) : 0; };
    device.Close();
    SDL_InitSubSystem(SDL_INIT_EVENTS);
    signal(SIGXFSZ, SIG_IGN);
    rlimit room{};
    getrlimit(RLIMIT_FSIZE, &room);
    const rlimit little{1'000'000, room.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    setenv("SDL_DISKAUDIODELAY", "15", 1);  // milliseconds per chunk, to leave time before the file is full
    setenv("SDL_DISKAUDIOFILE", first.c_str(), 1);

    SdlAudio audio;
    setenv("SDL_AUDIODRIVER", "bogus", 1);
    EXPECT_EQ(audio.MusicOpen(kTrack), 0);
    audio.DoWithMusic([](SdlMusic& player) { player.PlayLooping(); });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    setenv("SDL_AUDIODRIVER", "disk", 1);
    ASSERT_TRUE(WaitFor([&] { return size(first) > 300'000; })) << "a device has come";
    audio.DeviceLost();  // but that was a different one
    ASSERT_TRUE(WaitFor([] {
        SDL_PumpEvents();
        return SDL_HasEvent(SDL_AUDIODEVICEREMOVED) == SDL_TRUE;
    }));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    setenv("SDL_DISKAUDIOFILE", second.c_str(), 1);
    setenv("SDL_AUDIO_FREQUENCY", "88200", 1);
    setenv("SDL_AUDIO_CHANNELS", "1", 1);
    audio.DeviceLost();
    ASSERT_TRUE(WaitFor([&] { return size(second) > 100'000; }));
    audio.Finish();
    setrlimit(RLIMIT_FSIZE, &room);
    unsetenv("SDL_AUDIO_FREQUENCY");
    unsetenv("SDL_AUDIO_CHANNELS");

    const Samples before = ReadSamples(first), after = ReadSamples(second);
    fs::remove_all(folder);
    EXPECT_TRUE(std::equal(before.begin(), before.end(), track.begin()));
    const auto difference = [&](std::size_t frame) {
        double sum = 0;
        for (std::size_t i = 1000; i < 3000; ++i)
            sum += std::abs((track[2 * (frame + i)] + track[2 * (frame + i) + 1]) / 2 - after[2 * i]);
        return sum;
    };
    std::size_t place = before.size() / 2 - 10'000;
    for (std::size_t frame = place; frame < before.size() / 2 + 30'000; ++frame)
        if (difference(frame) < difference(place)) place = frame;
    EXPECT_NEAR(static_cast<double>(place), static_cast<double>(before.size() / 2), 3 * 2048);
    EXPECT_LT(difference(place), difference(place + 20) / 4)
        << "it resumes at that place of the track, at the right pitch";
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
    double length = kChunk / 88200.0;  // in seconds
    for (; sound.IsSounding(); length += 0.001) Take(sound, 88);
    EXPECT_NEAR(std::chrono::duration<double>(WaveLength(second)).count(), length, 0.01);
    const std::span noSound = std::as_bytes(std::span("no sound"));
    sound.Play(noSound);
    EXPECT_FALSE(sound.IsSounding());
    EXPECT_EQ(WaveLength(noSound).count(), 0);
}

}  // namespace
}  // namespace prismfall
