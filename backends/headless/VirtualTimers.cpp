// See VirtualTimers.h.
#include "backends/headless/VirtualTimers.h"

namespace prismfall {

void VirtualTimers::Start(Timer timer) {
    State& state = At(timer);
    if (state.isOn) return;
    state.isOn = true;
    state.due = now + state.interval;
}

void VirtualTimers::SetInterval(Timer timer, int milliseconds) {
    State& state = At(timer);
    if (state.interval == milliseconds) return;
    state.interval = milliseconds;
    state.due = now + milliseconds;
}

void VirtualTimers::StopAll() {
    for (State& state : states) state.isOn = false;
}

std::optional<Timer> VirtualTimers::NextDue(std::int64_t until) const {
    const State* next = nullptr;
    for (const State& state : states) {
        const bool canFire = state.isOn && state.interval > 0 && state.handlersRunning == 0 && state.due <= until;
        if (canFire && (next == nullptr || state.due < next->due)) next = &state;
    }
    if (next == nullptr) return std::nullopt;
    return static_cast<Timer>(next - states.data());
}

void VirtualTimers::TakeDue(Timer timer) {
    State& state = At(timer);
    MoveTo(state.due);
    state.due += state.interval;
}

}  // namespace prismfall
