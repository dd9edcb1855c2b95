// Game time: the machine's clock minus all stalls. A stall is a period in which the game could not or should not run.
// Leaving out stalls makes the game as a whole take longer, but nothing is lost and nothing speeds up to catch up. For
// players who want more time, all of it can be slowed down.
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

    Nanoseconds Now() const { return (freezes > 0 ? stoppedAt : Paced()) - stalls; }
    // How much game time passes in 100 ns of the machine's clock from now on, in ns, 1 to 100.
    void SetPace(int newPercent) {
        if (newPercent == percent) return;
        paced = Paced();
        pacedFrom = clock();
        percent = newPercent;
    }
    // How long a period of game time takes by the machine's clock.
    Nanoseconds ByClock(Nanoseconds length) const { return length * 100 / percent; }
    // Leaves out a period that has just passed. `length` is 0 or more.
    void Stall(Nanoseconds length) { stalls += length; }

    bool IsFrozen() const { return freezes > 0; }
    // Game time is frozen while one of these exists: while the game waits for a sound, or while an error box is
    // open.
    class Freeze {
      public:
        explicit Freeze(GameTime& gameTime) : time(gameTime) {
            if (time.freezes++ == 0) time.stoppedAt = time.Paced();
        }
        ~Freeze() {
            if (--time.freezes == 0) time.Stall(time.Paced() - time.stoppedAt);
        }
        Freeze(const Freeze&) = delete;
        Freeze& operator=(const Freeze&) = delete;

      private:
        GameTime& time;
    };

  private:
    // Including stalls.
    Nanoseconds Paced() const { return paced + (clock() - pacedFrom) * percent / 100; }

    std::function<Nanoseconds()> clock;
    int percent = 100;
    Nanoseconds paced{0};      // what had passed when the pace was last set,
    Nanoseconds pacedFrom{0};  // and when that was
    Nanoseconds stalls{0};
    Nanoseconds stoppedAt{0};
    int freezes = 0;
};

}  // namespace prismfall
