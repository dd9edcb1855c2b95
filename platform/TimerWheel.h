// The six timers on game time, and the moments of all handlers. A handler has one moment: for a tick the time at which
// it was due, for everything else the game time at which it begins, rounded down to a whole millisecond. Timers that a
// handler starts or re-times count from its moment, so timers started together fall due together, however long the
// handler takes and however late it is. All due times are whole milliseconds too, so a recording can name any moment.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "platform/GameTime.h"
#include "platform/HandlerListener.h"
#include "platform/Timer.h"

namespace prismfall {

class TimerWheel {
  public:
    explicit TimerWheel(GameTime& gameTime) : time(gameTime) {}
    TimerWheel(const TimerWheel&) = delete;
    TimerWheel& operator=(const TimerWheel&) = delete;

    void SetTickHandler(std::function<void(Timer)> handler) { tick = std::move(handler); }
    // Null for none. It must outlive the wheel, or be removed first.
    void SetListener(HandlerListener* newListener) { listener = newListener; }

    // The operations of TimerControl.h. Outside of all handlers they count from game time.
    void Start(Timer timer);
    void Stop(Timer timer) { Of(timer).isOn = false; }
    void SetInterval(Timer timer, int milliseconds);
    void StopAll();

    // The moment of the running handler, in milliseconds of game time.
    std::int64_t MomentInMilliseconds() const;
    // The latest moment of any handler so far.
    Nanoseconds LastMoment() const { return lastMoment; }

    bool IsOn(Timer timer) const { return states[static_cast<std::size_t>(timer)].isOn; }
    int Interval(Timer timer) const;  // milliseconds
    // Milliseconds from the moment of the running handler until the timer is due, if it is on.
    std::int64_t Remaining(Timer timer) const;
    // The earliest game time at which a timer that may tick is due: one that is on, has an interval above 0, and whose
    // handler is not running. Nothing if there is none, or while game time is frozen.
    std::optional<Nanoseconds> NextDue() const;

    // --- For a platform whose clock runs by itself.

    // Ticks everything that is due, in the order of due times; at the same time, in the order of Timer. Before each
    // tick the clock is read once; if a timer that may tick is late by its interval or more, the lateness of the one
    // due first becomes a stall. If ticks take longer than their timers' intervals, a turn ends after a number of
    // ticks. While game time is frozen, nothing ticks. Returns whether anything did.
    bool TickDue();

    // Runs the handler of an input event, an activation or the like, after everything due by then has ticked. While
    // game time is frozen nothing ticks, and the handler's moment is before everything that is still due.
    template <typename Call>
    void Handle(Call handler) {
        TickDue();
        const Running handling(*this, MomentBeforeDue());
        handler();
    }

    // For a handler that lets events run. The first time, only what is due within 1 ms of its moment ticks, and
    // `takeInput` is not called; after that, everything due ticks, then `takeInput` is called, which may Handle pending
    // input and returns whether there was any. Afterwards the handler's moment is the current game time. Returns
    // whether anything happened.
    template <typename TakeInput>
    bool LetEventsRun(TakeInput takeInput) {
        const bool isFirst = running && !running->hasLetEventsRun;
        bool worked = isFirst ? TickWithin(std::min(running->moment, time.Now()) + kFirstReach) : TickDue();
        if (!isFirst && takeInput()) worked = true;
        RenewMoment();
        return worked;
    }

    // Sets the running handler's moment to the current game time: a dialog that it opened has closed. Not beyond the
    // time at which any timer is due: if that is long past, the next reading of the clock turns the time since into a
    // stall, and moments never go back.
    void RenewMoment();

    // --- For a clock that is set by hand and never late.

    // Ticks the timer that is due first; there must be one. The tick's moment is the current game time.
    void TickFirst();
    // The same, but the tick's moment is its due time, even if that has passed.
    void TickFirstAtItsTime() { Tick(*First(), *NextDue()); }
    // Sets the running handler's moment.
    void RenewMomentAt(Nanoseconds moment);
    // Runs a handler at a known moment, such as that of a recorded input. What was due by then has already ticked.
    template <typename Call>
    void HandleAt(Nanoseconds moment, Call handler) {
        const Running handling(*this, moment);
        handler();
    }
    // Sets a timer's state: an interval in milliseconds and, if it is on, the time until it is due.
    void Restore(Timer timer, int interval, std::optional<std::int64_t> remaining);
    // Calls a timer's handler at game time, whether or not it is due; it counts as running, and its due time stays.
    void Fire(Timer timer) { CallHandler(timer, time.Now()); }

  private:
    static constexpr Nanoseconds kFirstReach = std::chrono::milliseconds(1);

    struct State {
        bool isOn = false;
        bool isTicking = false;
        Nanoseconds interval{0};
        Nanoseconds due{0};

        bool MayTick() const { return isOn && !isTicking && interval.count() > 0; }
    };

    struct Handler {
        Nanoseconds moment{0};
        bool hasLetEventsRun = false;
    };

    // Makes a handler the running one. Handlers nest when one lets events run or opens a dialog.
    class Running {
      public:
        Running(TimerWheel& owner, Nanoseconds moment) : wheel(owner), outer(owner.running) {
            wheel.running = Handler{moment};
            wheel.lastMoment = std::max(wheel.lastMoment, moment);
        }
        ~Running() { wheel.running = outer; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

      private:
        TimerWheel& wheel;
        std::optional<Handler> outer;
    };

    State& Of(Timer timer) { return states[static_cast<std::size_t>(timer)]; }
    // The moment of a handler that is not a tick. A tick can be up to a millisecond early; the next handler does not
    // begin before it.
    Nanoseconds MomentAt(Nanoseconds gameTime) const {
        return std::max<Nanoseconds>(std::chrono::floor<std::chrono::milliseconds>(gameTime), lastTick);
    }
    Nanoseconds MomentBeforeDue() const;
    Nanoseconds Moment() const { return running ? running->moment : MomentAt(time.Now()); }
    std::optional<Timer> First() const;
    // Reads the clock into lastReading, and leaves out a stall.
    void ReadClock();
    // Turns the time from `moment` to the last reading into a stall.
    void StallFrom(Nanoseconds moment);
    bool TickWithin(std::optional<Nanoseconds> limit);
    void Tick(Timer timer, Nanoseconds moment);
    void CallHandler(Timer timer, Nanoseconds moment);

    GameTime& time;
    std::array<State, kTimerCount> states;
    std::function<void(Timer)> tick;
    HandlerListener* listener = nullptr;
    std::optional<Handler> running;
    Nanoseconds lastReading{0};
    Nanoseconds lastTick{Nanoseconds::min()};  // its moment
    Nanoseconds lastMoment{Nanoseconds::min()};
};

}  // namespace prismfall
