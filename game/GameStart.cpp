#include "game/GameStart.h"

#include <algorithm>
#include <array>
#include <limits>

#include "game/GameControl.h"
#include "game/MainWindow.h"
#include "game/PuzzleMenu.h"
#include "game/PuzzleStart.h"
#include "platform/Numbers.h"

namespace prismfall {

namespace {

constexpr std::array<std::string_view, 3> kKinds = {"arcade", "puzzle", "solution"};  // indexed by GameKind

constexpr std::int64_t kLowest = std::numeric_limits<std::int16_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int16_t>::max();

struct StartMember {
    std::string_view name;
    std::int64_t atStart;  // when the program starts
    std::int64_t lowest;
    std::int64_t highest;
    std::int64_t (*get)(const VMain& main);
    void (*set)(VMain& main, std::int16_t value);
};

template <auto Member>
constexpr StartMember Number(std::string_view name, std::int64_t atStart, std::int64_t lowest, std::int64_t highest) {
    using Value = std::remove_cvref_t<decltype(std::declval<VMain&>().*Member)>;
    return {name,
            atStart,
            lowest,
            highest,
            [](const VMain& main) { return static_cast<std::int64_t>(main.*Member); },
            [](VMain& main, std::int16_t value) { main.*Member = static_cast<Value>(value); }};
}

constexpr auto kMembers = std::to_array<StartMember>({
    {"level", 1, kLowest, kHighest, [](const VMain& main) -> std::int64_t { return main.settings.StartLevel; },
     [](VMain& main, std::int16_t value) { main.settings.StartLevel = value; }},
    Number<&VMain::HighScore>("high", 0, kLowest, kHighest),
    {"toggle", 0, 0, 1, [](const VMain& main) -> std::int64_t { return main.field.GrowthToggle; },
     [](VMain& main, std::int16_t value) { main.field.GrowthToggle = value; }},
    Number<&VMain::CurrentPuzzle>("number", 1, 1, kPuzzleCount),
    Number<&VMain::PuzzlePage>("page", 1, 1, kPageCount),
    Number<&VMain::PuzzleWaiting>("waiting", 0, 0, 1),
    Number<&VMain::LevelLineCount>("count", 0, kLowest, kHighest),
    Number<&VMain::TutorialActive>("tutorial", 0, 0, 1),
    Number<&VMain::TutorialStep>("step", 0, 0, kTutorialPictureCount),
    // A pop-up from the previous game may still be floating.
    Number<&VMain::MultiTicks>("ticks", 0, 0, kHighest),
    Number<&VMain::MultiColor>("color", 0, 0, 3),
    Number<&VMain::MultiDirection>("heading", 1, 1, 2),
});

template <typename... Parts>
std::string Line(const Parts&... parts) {
    std::string line;
    ((line += parts), ...);
    return line + '\n';
}

std::string TimerLine(VMain& main, const TimerName& row) {
    const TimerWheel& timers = main.platform.Timers();
    const int interval = timers.Interval(row.timer);
    if (!timers.IsOn(row.timer) && interval == IntervalAtStart(row.timer)) return {};
    std::string words = "timer " + std::string(row.name) + ' ' + std::to_string(interval);
    if (timers.IsOn(row.timer)) words += ' ' + std::to_string(std::max<std::int64_t>(timers.Remaining(row.timer), 0));
    return Line(words);
}

void RestoreTimers(VMain& main, const Recording& recording) {
    TimerWheel& timers = main.platform.Timers();
    for (const TimerName& row : kTimerNames) timers.Restore(row.timer, IntervalAtStart(row.timer), std::nullopt);
    for (const StartTimer& timer : recording.timers) timers.Restore(timer.timer, timer.interval, timer.remaining);
}

std::string RestoreNumber(VMain& main, const StartValue& value) {
    const auto member = std::ranges::find(kMembers, std::string_view(value.name), &StartMember::name);
    if (member == kMembers.end()) return "no such number: " + value.name;
    if (value.value < member->lowest || value.value > member->highest) return "out of range: " + value.name;
    member->set(main, static_cast<std::int16_t>(value.value));
    return {};
}

void BeginGame(VMain& main, std::string_view kind) {
    if (kind == kKinds[static_cast<std::size_t>(GameKind::Arcade)]) return CommandArcade_Click(main);
    StartPuzzleGame(main, false, kind == kKinds[static_cast<std::size_t>(GameKind::Solution)]);
}

}  // namespace

std::string StartLines(VMain& main, GameKind kind) {
    std::string start(kKinds[static_cast<std::size_t>(kind)]);
    for (const StartMember& member : kMembers)
        if (const std::int64_t value = member.get(main); value != member.atStart)
            start += ' ' + std::string(member.name) + ' ' + std::to_string(value);
    std::string lines = Line(start);
    for (const TimerName& row : kTimerNames) lines += TimerLine(main, row);
    return lines;
}

std::string StartRecordedGame(VMain& main, const Recording& recording) {
    for (const StartMember& member : kMembers) member.set(main, static_cast<std::int16_t>(member.atStart));
    for (const StartValue& value : recording.values)
        if (std::string fault = RestoreNumber(main, value); !fault.empty()) return fault;
    ShowNumber(main.VHighScore, main.HighScore);
    RestoreTimers(main, recording);
    main.platform.BeginRandom(recording.seed);
    BeginGame(main, recording.kind);
    return {};
}

}  // namespace prismfall
