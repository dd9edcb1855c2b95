// Waiting. SDL wakes up to a millisecond late. Where ticks follow each other closely, the last stretch before one is
// slept with the system clock; elsewhere a millisecond is not noticeable, and one wake-up instead of two saves power.
#include "backends/sdl/desktop/EventLoop.h"

#include <SDL.h>

#include <algorithm>
#include <thread>

namespace prismfall {

namespace {

using namespace std::chrono_literals;

constexpr Nanoseconds kSleptByClock = 1ms;  // at least; the last stretch before a timer
constexpr Nanoseconds kNearby = 20ms;       // timers due within this time tick exactly on time
constexpr Nanoseconds kLongestWait = 24h;
constexpr Nanoseconds kYieldRest = 1ms;
constexpr Nanoseconds kNextPicture = 40ms;  // where something moves by itself
constexpr Nanoseconds kPaintPause = 15ms;   // between checks for exposed windows while nothing else may happen
constexpr int kEventsAtOnce = 64;           // then timers and painting get their turn

void SleepUntil(Nanoseconds moment) {
    std::this_thread::sleep_until(
        std::chrono::steady_clock::time_point(std::chrono::duration_cast<std::chrono::steady_clock::duration>(moment)));
}

}  // namespace

Nanoseconds EventLoop::Now() { return std::chrono::steady_clock::now().time_since_epoch(); }

bool EventLoop::HandleEvent() {
    bool wasThere = false;
    timers.Handle([&] {
        SDL_Event event;
        wasThere = SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0;
        if (wasThere) desktop.Handle(event);
    });
    return wasThere;
}

// One event at a time: each may close the window that the next one was meant for, or end what we are waiting for.
bool EventLoop::HandleEvents(const std::function<bool()>& condition) {
    SDL_PumpEvents();
    int handled = 0;
    while (handled < kEventsAtOnce && condition() && HandleEvent()) ++handled;
    return handled > 0;
}

bool EventLoop::Work(const std::function<bool()>& condition) {
    const bool ticked = timers.TickDue();
    const bool handled = HandleEvents(condition);
    desktop.Refresh();
    return ticked || handled;
}

void EventLoop::Rest() {
    const std::optional<Nanoseconds> due = timers.NextDue();
    Nanoseconds left = due ? time.ByClock(*due - time.Now()) : kLongestWait;
    if (desktop.IsMoving()) left = std::min(left, kNextPicture);
    using std::chrono::milliseconds;
    const auto listening = left < kNearby ? std::chrono::floor<milliseconds>(left - kSleptByClock)
                                          : std::chrono::ceil<milliseconds>(std::min(left, kLongestWait));
    if (listening < 1ms) return SleepUntil(Now() + left);
    SDL_WaitEventTimeout(nullptr, static_cast<int>(listening.count()));
}

void EventLoop::Run() {
    const auto always = [] { return true; };
    for (;;) {
        Work(always);
        bool told = false;
        timers.Handle([&] { told = desktop.DeliverMinimised(); });
        if (told) desktop.Refresh();
        Rest();
    }
}

void EventLoop::WorkWhile(const std::function<bool()>& condition) {
    for (Work(condition); condition(); Work(condition)) Rest();
}

void EventLoop::RunWhile(const std::function<bool()>& condition) {
    WorkWhile(condition);
    timers.RenewMoment();
}

void EventLoop::FreezeWhile(const std::function<bool()>& condition) {
    const GameTime::Freeze freeze(time);
    WorkWhile(condition);
}

void EventLoop::HandleEndRequest() {
    if (desktop.IsEndWaiting()) endAsked();
}

void EventLoop::LetEventsRun() {
    const bool worked = timers.LetEventsRun([this] { return HandleEvents([] { return true; }); });
    SDL_PumpEvents();
    HandleEndRequest();
    desktop.Refresh();
    if (worked) return;
    const Nanoseconds now = time.Now();
    SleepUntil(Now() + std::min(kYieldRest, time.ByClock(timers.NextDue().value_or(now + kYieldRest) - now)));
}

void EventLoop::PaintFor(Nanoseconds length) {
    const GameTime::Freeze freeze(time);
    const Nanoseconds end = Now() + length;
    while (Now() < end) {
        SDL_PumpEvents();
        HandleEndRequest();
        desktop.Refresh();
        SleepUntil(std::min(end, Now() + kPaintPause));
    }
}

}  // namespace prismfall
