// Keeps the six timers: which run, when each is due, and in which order they tick. Time is handed in from outside, so
// it knows no clock; waiting and calling the tick handler belong to the loop.
#pragma once

#include <array>
#include <chrono>
#include <optional>

#include "platform/Platform.h"

namespace prismfall {

using Nanoseconds = std::chrono::nanoseconds;

class TimerWheel {
  public:
    void Start(Timer timer, Nanoseconds now);
    void Stop(Timer timer);
    void SetInterval(Timer timer, int milliseconds, Nanoseconds now);

    // The earliest moment at which a timer is due that may tick, if there is one.
    std::optional<Nanoseconds> NextDue() const;
    // Takes the timer that is due first at `now`, if one is, and moves it on to its next due moment: its rhythm stays,
    // what it has missed is skipped. It does not come again before Finish is called for it.
    std::optional<Timer> TakeDue(Nanoseconds now);
    void Finish(Timer timer);

  private:
    struct State {
        bool running = false;
        bool ticking = false;
        Nanoseconds interval{0};
        Nanoseconds due{0};

        bool MayTick() const { return running && !ticking && interval.count() > 0; }
    };

    State& Of(Timer timer) { return states[static_cast<std::size_t>(timer)]; }
    std::optional<std::size_t> First() const;

    std::array<State, kTimerCount> states;
};

}  // namespace prismfall
