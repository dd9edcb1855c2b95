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
    for (auto entry = main.DyingLines.begin(); entry != main.DyingLines.end();) {
        CLine& beam = **entry;
        DeleteLine(main, beam, NextThickness(beam), false);
        entry = beam.Thicknes <= 0 ? main.DyingLines.erase(entry) : entry + 1;
    }
}

bool RemoveGoneLines(VMain& main) {
    const std::size_t before = main.Lines.size();
    for (auto entry = main.Lines.begin(); entry != main.Lines.end();) {
        const CLine& beam = **entry;
        if (beam.Thicknes > 0) {
            ++entry;
            continue;
        }
        for (CLine* stopped : beam.StoppingLines) stopped->RunMode = kGrowing;
        entry = main.Lines.erase(entry);
    }
    return main.Lines.size() < before;
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
