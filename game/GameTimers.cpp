#include "game/GameTimers.h"

namespace prismfall {

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

}  // namespace prismfall
