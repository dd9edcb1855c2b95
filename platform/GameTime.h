// Game time: the machine's clock minus all stalls. A stall is a period in which the game could not or should not go on.
// Leaving out stalls makes the game as a whole take longer, but nothing is lost and nothing speeds up to catch up.
#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace prismfall {

using Nanoseconds = std::chrono::nanoseconds;

class GameTime {
  public:
    // `machineClock` returns the time since some fixed moment and never runs backwards.
    explicit GameTime(std::function<Nanoseconds()> machineClock) : clock(std::move(machineClock)) {}

    Nanoseconds Now() const { return (standstills > 0 ? stoppedAt : clock()) - stalls; }
    // Leaves out a period that has just passed. `length` is 0 or more.
    void Stall(Nanoseconds length) { stalls += length; }

    bool StandsStill() const { return standstills > 0; }
    // Game time stops while one of these exists: while the game waits for a sound, or while an error box is open.
    class Standstill {
      public:
        explicit Standstill(GameTime& gameTime) : time(gameTime) {
            if (time.standstills++ == 0) time.stoppedAt = time.clock();
        }
        ~Standstill() {
            if (--time.standstills == 0) time.Stall(time.clock() - time.stoppedAt);
        }
        Standstill(const Standstill&) = delete;
        Standstill& operator=(const Standstill&) = delete;

      private:
        GameTime& time;
    };

  private:
    std::function<Nanoseconds()> clock;
    Nanoseconds stalls{0};
    Nanoseconds stoppedAt{0};
    int standstills = 0;
};

}  // namespace prismfall
