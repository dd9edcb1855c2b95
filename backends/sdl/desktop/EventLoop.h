// The one loop that everything runs on: takes events, lets due timers tick, has windows repainted, and sleeps until
// there is something to do.
#pragma once

#include <functional>

#include "backends/sdl/desktop/SdlDesktop.h"
#include "platform/TimerWheel.h"

namespace prismfall {

class EventLoop {
  public:
    explicit EventLoop(SdlDesktop& shownWindows) : desktop(shownWindows) {}

    static Nanoseconds Now();

    void SetTickHandler(std::function<void(Timer)> handler) { tick = std::move(handler); }
    TimerWheel& Timers() { return timers; }

    // Runs for good: the outermost level, which alone tells the main window that it was minimised or restored.
    [[noreturn]] void Run();
    // Runs inside a handler as long as `goesOn` holds.
    void RunWhile(const std::function<bool()>& goesOn);
    // Handles what is pending. If nothing is, rests for a moment, so that a caller may wait by calling it again.
    void LetEventsRun();
    // Waits for a length of time in which nothing happens but painting.
    void PaintFor(Nanoseconds length);

  private:
    // These tell whether there was anything to do.
    bool Work();
    bool HandlePending();
    bool TickDue();
    void Rest();

    SdlDesktop& desktop;
    TimerWheel timers;
    std::function<void(Timer)> tick;
};

}  // namespace prismfall
