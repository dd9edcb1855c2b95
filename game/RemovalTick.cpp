#include "game/RemovalTick.h"

#include "game/GameTimers.h"
#include "game/PuzzleResult.h"
#include "simulation/BeamRemoval.h"
#include "state/GameModes.h"

namespace prismfall {

namespace {

// An entry that is removed moves the following ones up; each entry that stood at the start gets its turn. A beam that
// stands twice loses two steps and is painted out once more after it has gone.
void ThinDyingLines(VMain& main) {
    std::erase_if(main.DyingLines, [&main](CLine* beam) {
        DeleteLine(main, *beam, NextThickness(*beam), false);
        return beam->Thicknes <= 0;
    });
}

bool RemoveGoneLines(VMain& main) {
    const std::size_t removed = std::erase_if(main.Lines, [](const CLine* beam) {
        if (beam->Thicknes > 0) return false;
        for (CLine* stopped : beam->StoppingLines) stopped->RunMode = kGrowing;
        return true;
    });
    return removed > 0;
}

void EndSolvedPuzzle(VMain& main) {
    StopGameTimers(main);
    if (main.GameMode == kPuzzleGame) main.SolvedPuzzles[static_cast<std::size_t>(main.CurrentPuzzle) - 1] = true;
    main.TutorialActive = false;
    ShowPuzzleResult(main, true);
    main.GameRunning = false;
}

}  // namespace

void LineDeleter_Timer(VMain& main) {
    ThinDyingLines(main);
    if (!RemoveGoneLines(main)) return;
    if (main.Lines.empty() && IsPuzzle(main)) return EndSolvedPuzzle(main);
    RedrawLines(main);
    main.Beams.KeepReachable(main.Lines, main.DyingLines);
}

}  // namespace prismfall
