// See GameModes.h.
#include "state/GameModes.h"

namespace prismfall {

bool IsPuzzle(const VMain& main) { return main.GameMode == kPuzzleGame || main.GameMode == kSolutionReplay; }

void StartBeamTimers(VMain& main) {
    main.platform.StartTimer(Timer::LineExtender);
    main.platform.StartTimer(Timer::LineDeleter);
}

void StopBeamTimers(VMain& main) {
    main.platform.StopTimer(Timer::LineExtender);
    main.platform.StopTimer(Timer::LineDeleter);
}

void StopGameTimers(VMain& main) {
    main.platform.StopTimer(Timer::LineCreator);
    StopBeamTimers(main);
}

}  // namespace prismfall
