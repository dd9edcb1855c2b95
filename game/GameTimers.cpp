#include "game/GameTimers.h"

#include <algorithm>

#include "platform/Numbers.h"

namespace prismfall {

namespace {

constexpr float kCreatorInterval = 2500.0F;
constexpr float kExtenderInterval = 75.0F;
constexpr float kLevelFactor = 0.8F;
constexpr std::int16_t kTopSpeedLevel = 64;  // from here on both intervals are at their minimum

int IntervalOf(float milliseconds) { return std::max(1, int{Rounded(milliseconds)}); }

}  // namespace

void StartBeamTimers(const VMain& main) {
    main.platform.StartTimer(Timer::LineExtender);
    main.platform.StartTimer(Timer::LineDeleter);
}

void StopBeamTimers(const VMain& main) {
    main.platform.StopTimer(Timer::LineExtender);
    main.platform.StopTimer(Timer::LineDeleter);
}

void StopGameTimers(const VMain& main) {
    main.platform.StopTimer(Timer::LineCreator);
    StopBeamTimers(main);
}

void SetLevelSpeed(const VMain& main) {
    float creator = kCreatorInterval;
    float extender = kExtenderInterval;
    for (std::int16_t level = 2; level <= std::min(main.Level, kTopSpeedLevel); ++level) {
        creator *= kLevelFactor;
        extender *= kLevelFactor;
    }
    main.platform.SetTimerInterval(Timer::LineCreator, IntervalOf(creator));
    main.platform.SetTimerInterval(Timer::LineExtender, IntervalOf(extender));
}

}  // namespace prismfall
