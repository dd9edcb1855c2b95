// The length of a sound, which the game waits for by the clock: for sound files and for what only looks like one.
#include <gtest/gtest.h>

#include <string>

#include "backends/sdl/sound/SdlAudio.h"

namespace prismfall {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

std::string Number(std::uint32_t value) {
    std::string bytes;
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
}

std::string Chunk(const std::string& tag, const std::string& content) {
    return tag + Number(static_cast<std::uint32_t>(content.size())) + content + (content.size() % 2 != 0 ? "\0"s : ""s);
}

std::string Wave(const std::string& chunks) { return "RIFF" + Number(0) + "WAVE" + chunks; }

// The format of 16-bit stereo sound at 1000 Hz: 4000 bytes a second.
const std::string kFormat = Chunk("fmt ", "\1\0\2\0"s + Number(1000) + Number(4000) + "\4\0\20\0"s);

TEST(WaveLengthTest, GoesByTheSamplesAndNoFurtherThanTheBytes) {
    const std::string samples(2000, 'x');
    const std::string overstated = "data" + Number(0xFFFFFFF0) + samples;
    struct Case {
        std::string bytes;
        std::chrono::nanoseconds length;
    };
    const Case cases[] = {
        {Wave(kFormat + Chunk("data", samples)), 500ms},
        {Wave(Chunk("LIST", "odd") + kFormat + Chunk("fact", "four") + Chunk("data", samples)), 500ms},
        {Wave(kFormat + overstated), 500ms},
        {Wave(kFormat), 0ms},
        {Wave(Chunk("data", samples)), 0ms},
        {"RIFF", 0ms},
        {"", 0ms},
        {Wave("fmt "), 0ms},
        {Wave("fmt " + Number(0xFFFFFFFF)), 0ms},
    };
    for (const Case& c : cases) EXPECT_EQ(WaveLength(std::as_bytes(std::span(c.bytes))), c.length) << c.bytes;
}

}  // namespace
}  // namespace prismfall
