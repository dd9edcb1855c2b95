// An MP3 file that is being decoded, block by block, without the silence that encoders put around a track.
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
    // Nothing if the file can be played, else its path and the decoder's reason. A file that was open is closed.
    std::string Open(const std::string& path);
    void Close() { decoder.reset(); }
    bool IsOpen() const { return decoder != nullptr; }

    // The track's next samples, 16-bit, the channels side by side; they stay until the next call. Rate and channels are
    // those of its beginning throughout. Nothing at its end, and from where the file cannot be read any more.
    std::span<const std::byte> Read();
    void Rewind();
    // Reads the last samples (of each channel) again, across the beginning if the track has come round.
    void StepBack(int samples);

    int Rate() const { return rate; }  // samples a second
    int Channels() const { return channels; }

  private:
    void Seek(std::int64_t sample);

    struct Free {
        void operator()(mpg123_handle_struct* done) const;
    };

    std::unique_ptr<mpg123_handle_struct, Free> decoder;
    std::span<const std::byte> block;  // what the last reading has given
    int rate = 0;
    int channels = 0;
};

}  // namespace prismfall
