// A terrible machine: its clock advances with every reading, and stalls.
#pragma once

#include <functional>
#include <ostream>
#include <random>

#include "backends/headless/HeadlessPlatform.h"

namespace prismfall {

// Prints like a headless machine, but has a real machine's timers and game time.
class StallingMachine : public HeadlessPlatform {
  public:
    StallingMachine(std::ostream& events, std::uint32_t seed) : HeadlessPlatform(events), random(seed) {}

    template <typename Handler>
    void Handle(Handler handler) {
        timers.Handle(handler);
    }
    void ComeRound() { timers.TickDue(); }

    std::function<void()> whileDialog;  // called repeatedly while one is open

    TimerWheel& Timers() override { return timers; }
    bool ShowModally(Window& dialog) override {
        if (!whileDialog) return HeadlessPlatform::ShowModally(dialog);
        Open(dialog);
        if (dialog.on.activate) dialog.on.activate();
        while (Input().IsOpen(dialog)) {
            ComeRound();
            whileDialog();
        }
        timers.RenewMoment();
        const bool wasHidden = !dialog.visible;
        dialog.visible = false;
        Input().Close(dialog);
        return wasHidden;
    }
    void LetEventsRun() override {
        timers.LetEventsRun([] { return false; });
    }
    std::int64_t Clock() override { return Look() / std::chrono::milliseconds(1); }
    void PlayWave(Wave wave, bool wait) override {
        HeadlessPlatform::PlayWave(wave, wait);
        const GameTime::Freeze sound(time);
        if (wait) clock += std::chrono::milliseconds(700);
    }

  private:
    Nanoseconds Look() {
        const auto upTo = [this](Nanoseconds most) {
            return Nanoseconds(std::uniform_int_distribution<std::int64_t>(1, most.count())(random));
        };
        const bool stalls = upTo(Nanoseconds(100)).count() == 1;
        return clock += upTo(std::chrono::milliseconds(stalls ? 500 : 3));
    }

    std::mt19937 random;
    Nanoseconds clock{0};
    GameTime time{[this] { return Look(); }};
    TimerWheel timers{time};
};

}  // namespace prismfall
