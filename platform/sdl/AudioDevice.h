// The sound device: opened when there is something to play, closed when nothing has played for a while, so that a
// silent game is woken by nothing. Used on the audio thread alone.
#pragma once

#include <chrono>
#include <optional>

namespace prismfall {

class AudioDevice {
  public:
    // Opens the device if it is closed. Without a usable one the answer is false, and for a few seconds it is not asked
    // for again.
    bool Open();
    void Close();
    bool IsOpen() const { return open; }

  private:
    bool open = false;
    std::optional<std::chrono::steady_clock::time_point> failedAt;
};

}  // namespace prismfall
