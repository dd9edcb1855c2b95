#include "game/Takeover.h"

#include <optional>
#include <utility>

#include "game/GameControl.h"
#include "game/Modes.h"
#include "game/PlayerWishes.h"

namespace prismfall {

namespace {

void MoveBeams(Field& to, Field& from) {
    std::swap(to.Beams, from.Beams);  // which own what the lists point at
    std::swap(to.Lines, from.Lines);
    std::swap(to.DyingLines, from.DyingLines);
    to.CollisionLineY = from.CollisionLineY;
    to.GrowthToggle = from.GrowthToggle;
}

void CopyTimers(TimerWheel& to, const TimerWheel& from) {
    for (const auto& [timer, name] : kTimerNames) {
        std::optional<std::int64_t> remaining;
        if (from.IsOn(timer)) remaining = from.Remaining(timer);
        to.Restore(timer, from.Interval(timer), remaining);
    }
}

}  // namespace

void ShowSameElements(VMain& main, const VMain& from) {
    for (std::size_t i = 0; i < from.window.elements.size(); ++i) {
        Element& shown = *main.window.elements[i];
        const Element* const panel = shown.panel;
        shown = *from.window.elements[i];
        shown.panel = panel;
    }
}

void TakeOverGame(VMain& main, VMain& from) {
    ShowSameElements(main, from);
    static_cast<GameNumbers&>(main) = from;
    EnterMode(main, from.GameMode);
    MoveBeams(main.field, from.field);
    CopyTimers(main.platform.Timers(), from.platform.Timers());
    BeginAtPace(main);
    main.EntersTable = false;
    main.IsPlayedOn = true;
    if (main.GameMode == Mode::SolutionReplay) CmdStart_Click(main);
    PlayMusicOfMode(main);
}

}  // namespace prismfall
