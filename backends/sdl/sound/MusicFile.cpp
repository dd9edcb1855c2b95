// Decoding by libmpg123.
#include "backends/sdl/sound/MusicFile.h"

#include <mpg123.h>

#include <cstdio>

namespace prismfall {

std::string MusicFile::Open(const std::string& path) {
    decoder.reset(mpg123_new(nullptr, nullptr));
    if (!decoder) return "Couldn't play " + path;
    mpg123_param(decoder.get(), MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_GAPLESS, 0);
    mpg123_format_none(decoder.get());
    mpg123_format2(decoder.get(), 0, MPG123_MONO | MPG123_STEREO, MPG123_ENC_SIGNED_16);
    if (mpg123_open(decoder.get(), path.c_str()) != MPG123_OK) {
        Close();
        return "Couldn't open " + path;
    }
    long samplesPerSecond = 0;
    int encoding = 0;
    if (mpg123_getformat(decoder.get(), &samplesPerSecond, &channels, &encoding) != MPG123_OK) {
        Close();
        return "Couldn't play " + path;
    }
    rate = static_cast<int>(samplesPerSecond);
    return {};
}

std::span<const std::byte> MusicFile::Read() {
    unsigned char* samples = nullptr;
    std::size_t bytes = 0;
    int result = MPG123_OK;
    while (bytes == 0 && (result == MPG123_OK || result == MPG123_NEW_FORMAT))
        result = mpg123_decode_frame(decoder.get(), nullptr, &samples, &bytes);
    return std::as_bytes(std::span(samples, bytes));
}

void MusicFile::Rewind() { mpg123_seek(decoder.get(), 0, SEEK_SET); }

void MusicFile::Free::operator()(mpg123_handle_struct* done) const { mpg123_delete(done); }

}  // namespace prismfall
