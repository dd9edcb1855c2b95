// The timers' rhythm. A timer's phase is fixed by its start: however late a tick is, the next one is due a whole number
// of intervals after the start.
#include "platform/TimerWheel.h"

namespace prismfall {

void TimerWheel::Start(Timer timer, Nanoseconds now) {
    State& state = Of(timer);
    if (state.running) return;
    state.running = true;
    state.due = now + state.interval;
}

void TimerWheel::Stop(Timer timer) { Of(timer).running = false; }

void TimerWheel::SetInterval(Timer timer, int milliseconds, Nanoseconds now) {
    State& state = Of(timer);
    const Nanoseconds interval = std::chrono::milliseconds(milliseconds);
    if (interval == state.interval) return;
    state.interval = interval;
    state.due = now + interval;
}

std::optional<std::size_t> TimerWheel::First() const {
    std::optional<std::size_t> first;
    for (std::size_t i = 0; i < states.size(); ++i) {
        if (!states[i].MayTick()) continue;
        if (!first || states[i].due < states[*first].due) first = i;
    }
    return first;
}

std::optional<Nanoseconds> TimerWheel::NextDue() const {
    const std::optional<std::size_t> first = First();
    if (!first) return std::nullopt;
    return states[*first].due;
}

std::optional<Timer> TimerWheel::TakeDue(Nanoseconds now) {
    const std::optional<std::size_t> first = First();
    if (!first || states[*first].due > now) return std::nullopt;
    State& state = states[*first];
    const auto passed = (now - state.due) / state.interval;
    state.due += state.interval * (passed + 1);
    state.ticking = true;
    return static_cast<Timer>(*first);
}

void TimerWheel::Finish(Timer timer) { Of(timer).ticking = false; }

}  // namespace prismfall
