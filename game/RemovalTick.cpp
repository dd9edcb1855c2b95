#include "game/RemovalTick.h"

#include "game/GameTimers.h"
#include "game/Modes.h"
#include "game/PuzzleResult.h"
#include "simulation/BeamRemoval.h"

namespace prismfall {

namespace {

void EndSolvedPuzzle(VMain& main) {
    main.log->Ends(main, GameEnding::Solved);
    StopGameTimers(main);
    if (RowOf(main.GameMode).marksSolved && !main.IsPlayedOn)
        main.settings.SolvedPuzzles[static_cast<std::size_t>(main.CurrentPuzzle) - 1] = true;
    main.TutorialActive = false;
    ShowPuzzleResult(main, true);
    main.GameRunning = false;
}

}  // namespace

void LineDeleter_Timer(VMain& main) {
    Field& field = main.field;
    if (ThinDyingLines(field)) SetLevelSpeed(main);
    if (!RemoveGoneLines(field)) return;
    if (field.Lines.empty() && RowOf(main.GameMode).isPuzzle) return EndSolvedPuzzle(main);
    RedrawLines(field);
    field.Beams.KeepReachable(field.Lines, field.DyingLines);
}

}  // namespace prismfall
