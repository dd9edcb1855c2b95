#include "game/GrowthTick.h"

#include "audio/SoundEffects.h"
#include "game/GameEnd.h"
#include "game/GameTimers.h"
#include "game/Modes.h"
#include "game/RunForward.h"
#include "game/Scoring.h"
#include "game/SolutionReplay.h"
#include "game/Tutorial.h"
#include "simulation/BeamSpawning.h"
#include "simulation/BeamStep.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

void PlaySoundOfHit(const VMain& main) {
    if (IsPuzzleCleared(main)) return PlaySound2(main.audio, Sound::PuzzleCleared, true);
    PlaySound2(main.audio, Sound::Destroyed, false);
}

}  // namespace

void LineExtender_Timer(VMain& main) { ExtendLines(main); }

void LineCreator_Timer(VMain& main) { CreateLine(main.field, kSpawnHeight); }

void ExtendLines(VMain& main) {
    Field& field = main.field;
    field.GrowthToggle = field.GrowthToggle == 0 ? 1 : 0;
    if (main.TutorialActive) TriggerTutorial(main);
    if (main.GameMode == Mode::SolutionReplay) PlaySolutionStep(main, PuzzleSolution(main.CurrentPuzzle));
    Hits hits;
    const std::size_t count = field.Lines.size();  // beams appended during this tick do not move in it
    for (std::size_t i = 0; i < count; ++i) {
        CLine& beam = *field.Lines[i];
        switch (GrowLine(field, beam)) {
            case Outcome::Continues:
                break;
            case Outcome::Bounced:
                return;
            case Outcome::AtFloor:
                return EndGame(main);
            case Outcome::Stopped:
                PlaySound2(main.audio, Sound::Stopped, false);
                break;
            case Outcome::Destroyed:
                SetLevelSpeed(main);  // after a level rise, the timers change with the next hit
                CountHit(main, hits, beam);
                PlaySoundOfHit(main);
                break;
        }
    }
    if (!RowOf(main.GameMode).isScored) return;
    if (hits.N > 0) AddScore(main, hits);
    RedrawCollisionLine(field);
}

}  // namespace prismfall
