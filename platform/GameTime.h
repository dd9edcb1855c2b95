// Game time: the machine's clock less all stalls. A stall is a stretch in which the game could not or should not go on;
// leaving it out stretches the game as a whole, so that nothing in it is lost and nothing comes in a rush.
#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace prismfall {

using Nanoseconds = std::chrono::nanoseconds;

class GameTime {
  public:
    // `machineClock` tells the time since some fixed moment and never runs backwards.
    explicit GameTime(std::function<Nanoseconds()> machineClock) : clock(std::move(machineClock)) {}

    Nanoseconds Now() const { return (standstills > 0 ? stoodAt : clock()) - stalls; }
    // Leaves out a stretch that has just passed. `length` is 0 or more.
    void Stall(Nanoseconds length) { stalls += length; }

    bool StandsStill() const { return standstills > 0; }
    // Game time stands still as long as one of these lives: while a sound is waited for, or an error box stands.
    class Standstill {
      public:
        explicit Standstill(GameTime& gameTime) : time(gameTime) {
            if (time.standstills++ == 0) time.stoodAt = time.clock();
        }
        ~Standstill() {
            if (--time.standstills == 0) time.Stall(time.clock() - time.stoodAt);
        }
        Standstill(const Standstill&) = delete;
        Standstill& operator=(const Standstill&) = delete;

      private:
        GameTime& time;
    };

  private:
    std::function<Nanoseconds()> clock;
    Nanoseconds stalls{0};
    Nanoseconds stoodAt{0};
    int standstills = 0;
};

}  // namespace prismfall
