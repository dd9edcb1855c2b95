// See GrowthTick.h.
#include "game/GrowthTick.h"

#include "audio/Music.h"
#include "audio/SoundEffects.h"
#include "game/GameTimers.h"
#include "game/HighScores.h"
#include "game/PuzzleResult.h"
#include "game/SolutionReplay.h"
#include "game/Tutorial.h"
#include "screens/MainMenu.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/CollisionDetection.h"
#include "simulation/Playfield.h"
#include "simulation/Scoring.h"
#include "state/GameModes.h"

namespace prismfall {

namespace {

constexpr int kSweepBand = 20;           // pixels
constexpr std::int64_t kSweepWait = 10;  // milliseconds a band

enum class Growth { GoesOn, CutsTickShort };

// --- A game's end.

void ShowEnd(VMain& main) {
    if (main.GameMode != kArcadeGame) return ShowPuzzleResult(main, false);
    ShowHighScores(main);
    ShowMainMenu(main, true);
}

void EndGame(VMain& main) {
    main.GameEnding = true;
    StopGameTimers(main);
    SaveScore(main);
    StopMusic(main);
    main.platform.LetEventsRun();
    PlaySound2(main, kSoundGameOver, true);
    main.GameRunning = false;
    GameOverSweep(main);
    ShowEnd(main);
    main.GameEnding = false;
}

void WaitForBand(VMain& main) {
    const std::int64_t start = main.platform.Clock();
    while (main.platform.Clock() - start < kSweepWait) main.platform.LetEventsRun();
}

// The part of a beam that lies in the band above SweepY.
void SweepBeam(VMain& main, const CLine& beam) {
    if (main.SweepY > beam.YEnd + kSweepBand || main.SweepY < beam.YStart) return;
    const int sideways = beam.Direction == kRightwards ? 1 : -1;
    const int down = main.SweepY - beam.YStart;
    int x1 = beam.XStart + sideways * (down - kSweepBand);
    int y1 = main.SweepY - kSweepBand;
    int x2 = beam.XStart + sideways * down;
    int y2 = main.SweepY;
    if (y1 < beam.YStart) {
        x1 = beam.XStart;
        y1 = beam.YStart;
    }
    if (y2 > beam.YEnd) {
        x2 = beam.XEnd;
        y2 = beam.YEnd;
    }
    DrawLine(main, x1, y1, x2, y2, kGrey, beam.Direction);
}

// --- The step of one beam.

void EnterPlayfield(VMain& main, CLine& beam, int y) {
    const int limit = main.CollisionLineY + kEntryLimit;
    if (y < limit && main.GameMode == kArcadeGame) EraseLine(main, beam);
    if (y == limit) BeginTrail(beam);
}

bool MovesInThisTick(const VMain& main, const CLine& beam, int y) {
    return beam.RunMode == kGrowing && (main.GrowthToggle == 0 || y >= main.CollisionLineY + kEntryLimit);
}

void Bounce(VMain& main, CLine& beam, const Step& step) {
    beam.XEnd = step.x;
    beam.YEnd = step.y;
    SplitLine(main, beam);
}

void CountHit(VMain& main, std::int16_t& hits, const CLine& beam) {
    hits = Saturated(hits + 1);
    main.MultiSumX = Saturated(main.MultiSumX + beam.XEnd);
    main.MultiSumY = Saturated(main.MultiSumY + beam.YEnd);
    main.MultiColor = beam.Color;
    main.MultiDirection = beam.Direction;
}

void SoundOfHit(VMain& main) {
    if (IsPuzzle(main) && AllLinesDeleted(main)) return PlaySound2(main, kSoundPuzzleCleared, true);
    PlaySound2(main, kSoundDestroyed, false);
}

void Strike(VMain& main, std::int16_t& hits, CLine& beam, CLine& hit) {
    beam.RunMode = kStopped;
    hit.StoppingLines.push_back(&beam);
    if (hit.Color != beam.Color || beam.Thicknes <= 0) return PlaySound2(main, kSoundStopped, false);
    StartRemoval(main, beam, false);
    if (!hit.Deleted) StartRemoval(main, hit, false);
    CountHit(main, hits, beam);
    SoundOfHit(main);
}

void TakeStep(VMain& main, CLine& beam, const Step& step) {
    const std::int16_t prevX = beam.XEnd;
    const std::int16_t prevY = beam.YEnd;
    beam.XEnd = step.x;
    beam.YEnd = step.y;
    DrawLine(main, prevX, prevY, step.x, step.y, beam.Color, beam.Direction);
}

Growth GrowLine(VMain& main, std::int16_t& hits, CLine& beam) {
    const Step step = NextStep(beam);
    if (!MovesInThisTick(main, beam, step.y)) return Growth::GoesOn;
    EnterPlayfield(main, beam, step.y);
    if (MeetsWall(beam.Direction, step.x)) {
        Bounce(main, beam, step);
        return Growth::CutsTickShort;
    }
    if (step.y >= kFloor) {
        EndGame(main);
        return Growth::CutsTickShort;
    }
    CLine* hit = FindCollision(main, step.testX, step.testY, beam.YEnd, beam.Direction, false);
    if (hit == nullptr) {
        TakeStep(main, beam, step);
    } else {
        Strike(main, hits, beam, *hit);
    }
    return Growth::GoesOn;
}

}  // namespace

void LineExtender_Timer(VMain& main) { ExtendLines(main); }

void ExtendLines(VMain& main) {
    main.GrowthToggle = main.GrowthToggle == 0 ? 1 : 0;
    if (main.TutorialActive) TriggerTutorial(main);
    if (main.GameMode == kSolutionReplay) PlaySolutionStep(main);
    main.MultiSumX = 0;
    main.MultiSumY = 0;
    std::int16_t hits = 0;
    const std::size_t count = main.Lines.size();  // beams that are appended meanwhile do not move in this tick
    for (std::size_t i = 0; i < count; ++i)
        if (GrowLine(main, hits, *main.Lines[i]) == Growth::CutsTickShort) return;
    if (main.GameMode != kArcadeGame) return;
    if (hits > 0) AddScore(main, hits);
    RedrawCollisionLine(main);
}

void GameOverSweep(VMain& main) {
    for (main.SweepY = kFloor; main.SweepY >= kPlayfieldTop; main.SweepY = Saturated(main.SweepY - kSweepBand)) {
        WaitForBand(main);
        for (const CLine* beam : main.Lines) SweepBeam(main, *beam);
    }
}

}  // namespace prismfall
