// The timers of the game by name.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace prismfall {

// In the order in which timers due at the same moment fire.
enum class Timer { LineDeleter, LineExtender, LineCreator, TimerMulti, TimerA, TimerPlayIntro };
constexpr std::size_t kTimerCount = 6;

struct TimerName {
    Timer timer;
    std::string_view name;
};

// In the order in which they are printed.
inline constexpr std::array<TimerName, kTimerCount> kTimerNames = {{
    {Timer::LineCreator, "LineCreator"},
    {Timer::LineExtender, "LineExtender"},
    {Timer::LineDeleter, "LineDeleter"},
    {Timer::TimerMulti, "TimerMulti"},
    {Timer::TimerA, "TimerA"},
    {Timer::TimerPlayIntro, "TimerPlayIntro"},
}};

}  // namespace prismfall
