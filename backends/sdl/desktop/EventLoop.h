// The one loop that everything runs on: takes events, lets due timers tick, repaints windows, and sleeps until there is
// something to do.
#pragma once

#include <functional>

#include "backends/sdl/desktop/SdlDesktop.h"
#include "platform/TimerWheel.h"

namespace prismfall {

class EventLoop {
  public:
    // `whenEndAsked` is called when the player or the system asks the program to end while nothing else may happen.
    EventLoop(SdlDesktop& shownWindows, std::function<void()> whenEndAsked)
        : desktop(shownWindows), endAsked(std::move(whenEndAsked)) {}

    static Nanoseconds Now();

    TimerWheel& Timers() { return timers; }
    void SetPace(int percent) { time.SetPace(percent); }

    // Runs forever. The outermost loop, and the only one that tells the main window that it was minimised or restored.
    [[noreturn]] void Run();
    // Runs inside a handler while `condition` is true.
    void RunWhile(const std::function<bool()>& condition);
    // The same, but game time is frozen and no timer ticks.
    void FreezeWhile(const std::function<bool()>& condition);
    // Handles pending events. If there are none, sleeps briefly, so a caller may wait by calling it in a loop.
    void LetEventsRun();
    // Waits for `length` while game time is frozen and nothing happens except painting and the program's end.
    void PaintFor(Nanoseconds length);

  private:
    // These return whether there was anything to do.
    bool Work(const std::function<bool()>& condition);
    bool HandleEvents(const std::function<bool()>& condition);
    bool HandleEvent();
    void WorkWhile(const std::function<bool()>& condition);
    void HandleEndRequest();
    void Rest();

    SdlDesktop& desktop;
    std::function<void()> endAsked;
    GameTime time{Now};
    TimerWheel timers{time};
};

}  // namespace prismfall
