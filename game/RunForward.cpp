#include "game/RunForward.h"

#include "audio/SoundEffects.h"
#include "game/GameTimers.h"
#include "game/Modes.h"
#include "game/Scoring.h"
#include "simulation/BeamControl.h"
#include "simulation/BeamRemoval.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

Sound SoundOf(const VMain& main, Outcome outcome) {
    if (outcome == Outcome::Stopped) return Sound::Stopped;
    return IsPuzzleCleared(main) ? Sound::PuzzleCleared : Sound::Destroyed;
}

}  // namespace

Outcome RunForward(VMain& main, CLine& beam) {
    const Outcome outcome = SpeedUpLine(main.field, beam);
    if (outcome == Outcome::AtFloor) return outcome;
    if (outcome == Outcome::Destroyed) SetLevelSpeed(main);
    PlaySound2(main.audio, SoundOf(main, outcome), false);
    if (!RowOf(main.GameMode).isScored) return outcome;
    if (outcome == Outcome::Destroyed) AddScore(main, {.N = 1});
    RedrawCollisionLine(main.field);
    return outcome;
}

bool IsPuzzleCleared(const VMain& main) { return RowOf(main.GameMode).isPuzzle && AllLinesDeleted(main.field); }

}  // namespace prismfall
