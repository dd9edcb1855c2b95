// The game's timers: repeating, each calling the one tick handler with its name. TimerWheel.h says which moment a
// handler has, and what happens to late ticks.
#pragma once

#include <functional>
#include <utility>

#include "platform/Facet.h"
#include "platform/TimerWheel.h"

namespace prismfall {

class TimerControl : public Facet {
  public:
    // The machine's wheel, which the machine lets tick.
    virtual TimerWheel& Timers() = 0;

    void SetTickHandler(std::function<void(Timer)> handler) { Timers().SetTickHandler(std::move(handler)); }

    // "From now" means from the moment of the running handler: timers that it starts together fall due together.

    // Starting a running timer changes nothing; a stopped one is due one interval from now.
    void StartTimer(Timer timer) { Timers().Start(timer); }
    void StopTimer(Timer timer) { Timers().Stop(timer); }
    // A different interval makes a running timer due one new interval from now; the same interval changes nothing. A
    // timer with interval 0 never ticks.
    void SetTimerInterval(Timer timer, int milliseconds) { Timers().SetInterval(timer, milliseconds); }
};

}  // namespace prismfall
