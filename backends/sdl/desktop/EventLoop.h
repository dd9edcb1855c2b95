// The one loop that everything runs on: takes events, lets due timers tick, has windows repainted, and sleeps until
// there is something to do.
#pragma once

#include <functional>

#include "backends/sdl/desktop/SdlDesktop.h"
#include "platform/TimerWheel.h"

namespace prismfall {

class EventLoop {
  public:
    // `whenEndAsked` is called when the player or the system wants the program to end while nothing else may happen.
    EventLoop(SdlDesktop& shownWindows, std::function<void()> whenEndAsked)
        : desktop(shownWindows), endAsked(std::move(whenEndAsked)) {}

    static Nanoseconds Now();

    TimerWheel& Timers() { return timers; }
    void SetPace(int percent) { time.SetPace(percent); }

    // Runs for good: the outermost level, which alone tells the main window that it was minimised or restored.
    [[noreturn]] void Run();
    // Runs inside a handler as long as `goesOn` holds.
    void RunWhile(const std::function<bool()>& goesOn);
    // The same, but game time stands still and no timer ticks.
    void StandStillWhile(const std::function<bool()>& goesOn);
    // Handles what is pending. If nothing is, rests for a moment, so that a caller may wait by calling it again.
    void LetEventsRun();
    // Waits for a length of time in which game time stands still and nothing happens but painting and the program's
    // end.
    void PaintFor(Nanoseconds length);

  private:
    // These tell whether there was anything to do.
    bool Work(const std::function<bool()>& goesOn);
    bool HandleEvents(const std::function<bool()>& goesOn);
    bool HandleEvent();
    void WorkWhile(const std::function<bool()>& goesOn);
    void MeetEnd();
    void Rest();

    SdlDesktop& desktop;
    std::function<void()> endAsked;
    GameTime time{Now};
    TimerWheel timers{time};
};

}  // namespace prismfall
