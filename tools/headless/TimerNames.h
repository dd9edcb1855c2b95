// The timers by name, in print order.
#pragma once

#include <array>
#include <string_view>

#include "platform/TimerControl.h"

namespace prismfall {

struct TimerName {
    Timer timer;
    std::string_view name;
};

inline constexpr std::array<TimerName, kTimerCount> kTimerNames = {{
    {Timer::LineCreator, "LineCreator"},
    {Timer::LineExtender, "LineExtender"},
    {Timer::LineDeleter, "LineDeleter"},
    {Timer::TimerMulti, "TimerMulti"},
    {Timer::TimerA, "TimerA"},
    {Timer::TimerPlayIntro, "TimerPlayIntro"},
}};

}  // namespace prismfall
