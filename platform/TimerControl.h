// The six repeating timers of the game; each calls the one tick handler with its name. TimerWheel.h says what moment a
// handler has, and what happens to late ticks.
#pragma once

#include <cstddef>
#include <functional>

#include "platform/Facet.h"

namespace prismfall {

// The timers, in the order in which they fire if due at the same moment.
enum class Timer { LineDeleter, LineExtender, LineCreator, TimerMulti, TimerA, TimerPlayIntro };
constexpr std::size_t kTimerCount = 6;

class TimerControl : public Facet {
  public:
    virtual void SetTickHandler(std::function<void(Timer)> handler) = 0;

    // "From now" means from the moment of the running handler: timers that it starts together fall due together.

    // Starting a running timer changes nothing; a stopped one is due one interval from now.
    virtual void StartTimer(Timer timer) = 0;
    virtual void StopTimer(Timer timer) = 0;
    // A different interval makes a running timer due one new interval from now; the same interval changes nothing. A
    // timer with interval 0 never ticks.
    virtual void SetTimerInterval(Timer timer, int milliseconds) = 0;
};

}  // namespace prismfall
