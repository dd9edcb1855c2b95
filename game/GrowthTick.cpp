#include "game/GrowthTick.h"

#include "game/GameEnd.h"
#include "game/SolutionReplay.h"
#include "game/Tutorial.h"
#include "simulation/BeamStep.h"
#include "simulation/Playfield.h"
#include "simulation/Scoring.h"

namespace prismfall {

void LineExtender_Timer(VMain& main) { ExtendLines(main); }

void ExtendLines(VMain& main) {
    main.GrowthToggle = main.GrowthToggle == 0 ? 1 : 0;
    if (main.TutorialActive) TriggerTutorial(main);
    if (main.GameMode == kSolutionReplay) PlaySolutionStep(main);
    main.MultiSumX = 0;
    main.MultiSumY = 0;
    std::int16_t hits = 0;
    const std::size_t count = main.Lines.size();  // beams that are appended meanwhile do not move in this tick
    for (std::size_t i = 0; i < count; ++i) {
        switch (GrowLine(main, *main.Lines[i], hits)) {
            case Growth::GoesOn:
                break;
            case Growth::AtWall:
                return;
            case Growth::AtFloor:
                return EndGame(main);
        }
    }
    if (main.GameMode != kArcadeGame) return;
    if (hits > 0) AddScore(main, hits);
    RedrawCollisionLine(main);
}

}  // namespace prismfall
