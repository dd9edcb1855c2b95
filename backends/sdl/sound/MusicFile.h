// An MP3 file that is being decoded, block by block, without the silence that encoders put around a track.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

struct mpg123_handle_struct;

namespace prismfall {

class MusicFile {
  public:
    // Returns nothing if the file can be played, else its path and the decoder's reason. Closes the previous file.
    std::string Open(const std::string& path);
    void Close() { decoder.reset(); }
    bool IsOpen() const { return decoder != nullptr; }

    // The track's next samples, 16-bit, interleaved, valid until the next call. Rate and channels are always those at
    // its beginning. Empty at its end, and from where the file can no longer be read.
    std::span<const std::byte> Read();
    void Rewind();
    // Rereads the last samples (of each channel), across the beginning if the track has looped.
    void StepBack(int samples);

    int Rate() const { return rate; }  // samples per second
    int Channels() const { return channels; }

  private:
    struct Free {
        void operator()(mpg123_handle_struct* done) const;
    };

    std::unique_ptr<mpg123_handle_struct, Free> decoder;
    int lastRead = 0;  // samples of each channel, which the decoder still takes for unread
    int rate = 0;
    int channels = 0;
};

}  // namespace prismfall
