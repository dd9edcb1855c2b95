// The six timers on a clock that moves only when it is told to. They keep their rhythm exactly.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/Platform.h"

namespace prismfall {

class VirtualTimers {
  public:
    std::int64_t Now() const { return now; }
    // Never back.
    void MoveTo(std::int64_t time) { now = time > now ? time : now; }

    void Start(Timer timer);
    void Stop(Timer timer) { At(timer).isOn = false; }
    void SetInterval(Timer timer, int milliseconds);
    void StopAll();

    bool IsOn(Timer timer) const { return At(timer).isOn; }
    int Interval(Timer timer) const { return At(timer).interval; }

    // The timer that is due next, at `until` at the latest; of those due together the first in the order of Timer.
    std::optional<Timer> NextDue(std::int64_t until) const;
    // Moves the clock to the timer's due time and sets the next one.
    void TakeDue(Timer timer);

    // A handler that runs keeps its timer from falling due until it has ended.
    class Running {
      public:
        Running(VirtualTimers& owner, Timer timer) : depth(owner.At(timer).handlersRunning) { ++depth; }
        ~Running() { --depth; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

      private:
        int& depth;
    };

  private:
    struct State {
        bool isOn = false;
        int interval = 0;  // milliseconds; with 0 it never falls due
        std::int64_t due = 0;
        int handlersRunning = 0;
    };

    State& At(Timer timer) { return states[static_cast<std::size_t>(timer)]; }
    const State& At(Timer timer) const { return states[static_cast<std::size_t>(timer)]; }

    std::array<State, kTimerCount> states;
    std::int64_t now = 0;
};

}  // namespace prismfall
