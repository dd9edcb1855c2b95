#include "platform/TimerWheel.h"

#include <algorithm>
#include <utility>

namespace prismfall {

namespace {

constexpr int kTicksPerTurn = 64;  // far more than six timers need to catch up on lateness below their intervals

}  // namespace

void TimerWheel::Start(Timer timer) {
    State& state = Of(timer);
    if (state.isOn) return;
    state.isOn = true;
    state.due = Moment() + state.interval;
}

void TimerWheel::SetInterval(Timer timer, int milliseconds) {
    State& state = Of(timer);
    const Nanoseconds interval = std::chrono::milliseconds(milliseconds);
    if (interval == state.interval) return;
    state.interval = interval;
    state.due = Moment() + interval;
}

void TimerWheel::StopAll() {
    for (State& state : states) state.isOn = false;
}

std::int64_t TimerWheel::MomentInMilliseconds() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Moment()).count();
}

int TimerWheel::Interval(Timer timer) const {
    const Nanoseconds interval = states[static_cast<std::size_t>(timer)].interval;
    return static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(interval).count());
}

std::int64_t TimerWheel::Remaining(Timer timer) const {
    const Nanoseconds due = states[static_cast<std::size_t>(timer)].due;
    return std::chrono::duration_cast<std::chrono::milliseconds>(due - Moment()).count();
}

Nanoseconds TimerWheel::MomentBeforeDue() const {
    const std::optional<Timer> first = First();
    if (!first) return MomentAt(lastReading);
    const Nanoseconds due = states[static_cast<std::size_t>(*first)].due;
    return MomentAt(std::min<Nanoseconds>(lastReading, due - std::chrono::milliseconds(1)));
}

std::optional<Timer> TimerWheel::First() const {
    const State* first = nullptr;
    for (const State& state : states)
        if (state.MayTick() && (first == nullptr || state.due < first->due)) first = &state;
    if (first == nullptr) return std::nullopt;
    return static_cast<Timer>(first - states.data());
}

std::optional<Nanoseconds> TimerWheel::NextDue() const {
    const std::optional<Timer> first = First();
    if (!first || time.IsFrozen()) return std::nullopt;
    return states[static_cast<std::size_t>(*first)].due;
}

void TimerWheel::ReadClock() {
    lastReading = time.Now();
    if (time.IsFrozen()) return;
    const bool isStalled = std::ranges::any_of(
        states, [this](const State& state) { return state.MayTick() && lastReading - state.due >= state.interval; });
    if (isStalled) StallFrom(*NextDue());
}

void TimerWheel::StallFrom(Nanoseconds moment) {
    time.Stall(lastReading - moment);
    lastReading = moment;
}

bool TimerWheel::TickDue() { return TickWithin(std::nullopt); }

// Without a limit, ticks everything that is due by game time.
bool TimerWheel::TickWithin(std::optional<Nanoseconds> limit) {
    for (int ticks = 0;; ++ticks) {
        ReadClock();
        const std::optional<Nanoseconds> due = NextDue();
        if (!due || *due > limit.value_or(lastReading)) return ticks > 0;
        if (ticks == kTicksPerTurn) {
            StallFrom(*due - Nanoseconds(1));  // the next turn starts with it
            return true;
        }
        Tick(*First(), *due);
    }
}

void TimerWheel::RenewMoment() {
    Nanoseconds moment = MomentAt(time.Now());
    for (const State& state : states)
        if (state.isOn && state.interval.count() > 0) moment = std::min(moment, state.due);
    RenewMomentAt(std::max(moment, lastMoment));
}

void TimerWheel::RenewMomentAt(Nanoseconds moment) {
    if (!running) return;
    running = Handler{.moment = moment, .hasLetEventsRun = true};
    lastMoment = std::max(lastMoment, moment);
    if (listener != nullptr) listener->MomentRenewed(MomentInMilliseconds());
}

void TimerWheel::Restore(Timer timer, int interval, std::optional<std::int64_t> remaining) {
    using std::chrono::milliseconds;
    Of(timer) = {.isOn = remaining.has_value(),
                 .interval = milliseconds(interval),
                 .due = Moment() + milliseconds(remaining.value_or(0))};
}

void TimerWheel::TickFirst() { Tick(*First(), time.Now()); }

void TimerWheel::Tick(Timer timer, Nanoseconds moment) {
    State& state = Of(timer);
    state.due += state.interval;
    lastTick = moment;
    CallHandler(timer, moment);
}

void TimerWheel::CallHandler(Timer timer, Nanoseconds moment) {
    State& state = Of(timer);
    const bool wasTicking = std::exchange(state.isTicking, true);
    {
        const Running handling(*this, moment);
        if (listener != nullptr) listener->BeforeTick(MomentInMilliseconds());
        if (tick) tick(timer);
    }
    state.isTicking = wasTicking;
}

}  // namespace prismfall
