// An MP3 file being decoded, block by block, without the silence that encoders add around a track.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

struct mpg123_handle_struct;

namespace prismfall {

class MusicFile {
  public:
    // Returns nothing if the file can be played, otherwise its path and the decoder's reason. Closes the previous file.
    std::string Open(const std::string& path);
    void Close() { decoder.reset(); }
    bool IsOpen() const { return decoder != nullptr; }

    // The track's next samples, 16-bit, interleaved, valid until the next call. Rate and channels are always those at
    // its beginning. Empty at the end of the track, and once the file can no longer be read.
    std::span<const std::byte> Read();
    void Rewind();
    // Rereads the last samples (of each channel), across the beginning if the track has looped.
    void StepBack(int samples);

    int Rate() const { return rate; }  // samples per second
    int Channels() const { return channels; }

  private:
    void Seek(std::int64_t sample);

    struct Free {
        void operator()(mpg123_handle_struct* done) const;
    };

    std::unique_ptr<mpg123_handle_struct, Free> decoder;
    std::span<const std::byte> block;  // the last block read
    int rate = 0;
    int channels = 0;
};

}  // namespace prismfall
