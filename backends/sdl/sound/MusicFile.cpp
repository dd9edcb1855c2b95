#include "backends/sdl/sound/MusicFile.h"

#include <mpg123.h>

#include <algorithm>
#include <cstdio>

namespace prismfall {

std::string MusicFile::Open(const std::string& path) {
    const auto failure = [&path](const char* reason) { return "Couldn't play " + path + ": " + reason; };
    int error = MPG123_OK;
    block = {};
    decoder.reset(mpg123_new(nullptr, &error));
    if (!decoder) return failure(mpg123_plain_strerror(error));
    mpg123_param(decoder.get(), MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_GAPLESS, 0);
    mpg123_format_none(decoder.get());
    mpg123_format2(decoder.get(), 0, MPG123_MONO | MPG123_STEREO, MPG123_ENC_SIGNED_16);
    long samplesPerSecond = 0;
    int encoding = 0;
    if (mpg123_open(decoder.get(), path.c_str()) != MPG123_OK ||
        mpg123_getformat(decoder.get(), &samplesPerSecond, &channels, &encoding) != MPG123_OK) {
        std::string told = failure(mpg123_strerror(decoder.get()));
        Close();
        return told;
    }
    rate = static_cast<int>(samplesPerSecond);
    // Later changes of the rate or the number of channels are converted to those at the beginning.
    mpg123_format_none(decoder.get());
    mpg123_format(decoder.get(), samplesPerSecond, channels, MPG123_ENC_SIGNED_16);
    return {};
}

std::span<const std::byte> MusicFile::Read() {
    unsigned char* samples = nullptr;
    std::size_t bytes = 0;
    int result = MPG123_OK;
    while (bytes == 0 && (result == MPG123_OK || result == MPG123_NEW_FORMAT))
        result = mpg123_decode_frame(decoder.get(), nullptr, &samples, &bytes);
    block = std::as_bytes(std::span(samples, bytes));
    return block;
}

void MusicFile::Rewind() { Seek(0); }

// The decoder's position is the beginning of its last block.
void MusicFile::StepBack(int samples) {
    constexpr std::int64_t kBytes = sizeof(std::int16_t);
    const std::int64_t bytesOfOne = channels * kBytes;
    const std::int64_t given = static_cast<std::int64_t>(block.size()) / bytesOfOne;
    std::int64_t place = mpg123_tell(decoder.get()) + given - samples;
    if (place < 0) place += mpg123_length(decoder.get());
    Seek(std::max<std::int64_t>(place, 0));
}

void MusicFile::Seek(std::int64_t sample) {
    mpg123_seek(decoder.get(), static_cast<off_t>(sample), SEEK_SET);
    block = {};
}

void MusicFile::Free::operator()(mpg123_handle_struct* done) const { mpg123_delete(done); }

}  // namespace prismfall
