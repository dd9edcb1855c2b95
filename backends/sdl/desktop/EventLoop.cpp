// Waiting. SDL wakes up to a millisecond late. Where ticks follow each other closely the last stretch before one is
// slept by the clock; elsewhere that much late is not seen, and waking once for a tick in place of twice spares the
// machine.
#include "backends/sdl/desktop/EventLoop.h"

#include <SDL.h>

#include <algorithm>
#include <thread>

namespace prismfall {

namespace {

using namespace std::chrono_literals;

constexpr Nanoseconds kSleptByClock = 1ms;  // at least; the last stretch before a timer
constexpr Nanoseconds kNearby = 20ms;       // a timer that is due within this time is met exactly
constexpr Nanoseconds kLongestWait = 24h;
constexpr Nanoseconds kYieldRest = 1ms;
constexpr Nanoseconds kPaintPause = 15ms;  // between two looks for exposed windows while nothing else may happen
constexpr int kEventsAtOnce = 64;          // then timers and painting have their turn

void SleepUntil(Nanoseconds moment) {
    std::this_thread::sleep_until(
        std::chrono::steady_clock::time_point(std::chrono::duration_cast<std::chrono::steady_clock::duration>(moment)));
}

}  // namespace

Nanoseconds EventLoop::Now() { return std::chrono::steady_clock::now().time_since_epoch(); }

bool EventLoop::HandlePending() {
    SDL_PumpEvents();
    SDL_Event event;
    int handled = 0;
    while (handled < kEventsAtOnce && SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0) {
        desktop.Handle(event);
        ++handled;
    }
    return handled > 0;
}

bool EventLoop::TickDue() {
    const Nanoseconds now = Now();
    bool ticked = false;
    while (const std::optional<Timer> timer = timers.TakeDue(now)) {
        if (tick) tick(*timer);
        timers.Finish(*timer);
        ticked = true;
    }
    return ticked;
}

void EventLoop::Rest() {
    const std::optional<Nanoseconds> due = timers.NextDue();
    const Nanoseconds left = due ? *due - Now() : kLongestWait;
    using std::chrono::milliseconds;
    const auto listening = left < kNearby ? std::chrono::floor<milliseconds>(left - kSleptByClock)
                                          : std::chrono::ceil<milliseconds>(std::min(left, kLongestWait));
    if (listening < 1ms) return SleepUntil(*due);
    SDL_Event event;
    if (SDL_WaitEventTimeout(&event, static_cast<int>(listening.count())) == 1) desktop.Handle(event);
}

bool EventLoop::Work() {
    const bool handled = HandlePending();
    const bool ticked = TickDue();
    desktop.Refresh();
    return handled || ticked;
}

void EventLoop::Run() {
    for (;;) {
        Work();
        if (desktop.DeliverMinimised()) desktop.Refresh();
        Rest();
    }
}

void EventLoop::RunWhile(const std::function<bool()>& goesOn) {
    for (Work(); goesOn(); Work()) Rest();
}

void EventLoop::LetEventsRun() {
    if (Work()) return;
    const Nanoseconds end = Now() + kYieldRest;
    SleepUntil(std::min(end, timers.NextDue().value_or(end)));
}

void EventLoop::PaintFor(Nanoseconds length) {
    const Nanoseconds end = Now() + length;
    while (Now() < end) {
        SDL_PumpEvents();
        desktop.Refresh();
        SleepUntil(std::min(end, Now() + kPaintPause));
    }
}

}  // namespace prismfall
