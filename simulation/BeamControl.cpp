#include "simulation/BeamControl.h"

#include <cmath>

#include "audio/SoundEffects.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/CollisionDetection.h"
#include "simulation/Playfield.h"
#include "simulation/Scoring.h"
#include "state/GameModes.h"

namespace prismfall {

namespace {

constexpr float kClickReach = 50;  // pixels; a head at exactly this distance is out of reach

// --- The run of a speeded beam.

void EnterPlayfield(const VMain& main, CLine& ln, int y) {
    const int limit = main.CollisionLineY + kFastEntryLimit;
    if (y < limit) EraseLine(main, ln);
    if (y == limit) BeginTrail(ln);
}

bool Bounce(VMain& main, CLine& ln, const Step& step, Boolean Simulate) {
    ln.XEnd = step.x;
    ln.YEnd = step.y;
    ln.RunMode = kStopped;
    CLine* next = CreateLine(main, &ln, Simulate, kSpawnHeight);
    return SpeedUpLine(main, *next, Simulate);
}

// The run has ended at `hit`. Gives the number of collisions to score.
std::int16_t Strike(VMain& main, CLine& ln, CLine& hit) {
    ln.RunMode = kStopped;
    hit.StoppingLines.push_back(&ln);
    if (hit.Color != ln.Color || ln.Thicknes <= 0) {
        PlaySound2(main, kSoundStopped, false);
        return 0;
    }
    StartRemoval(main, ln, false);
    StartRemoval(main, hit, true);
    PlaySound2(main, AllLinesDeleted(main) && IsPuzzle(main) ? kSoundPuzzleCleared : kSoundDestroyed, false);
    return 1;
}

void StrikeAndScore(VMain& main, CLine& ln, CLine& hit) {
    const std::int16_t count = Strike(main, ln, hit);
    if (main.GameMode != kArcadeGame) return;
    if (count > 0) AddScore(main, count);
    RedrawCollisionLine(main);
}

void TakeStep(const VMain& main, CLine& ln, const Step& step, Boolean Simulate) {
    const std::int16_t prevX = ln.XEnd;
    const std::int16_t prevY = ln.YEnd;
    ln.XEnd = step.x;
    ln.YEnd = step.y;
    if (!Simulate) DrawLine(main, prevX, prevY, step.x, step.y, ln.Color, ln.Direction);
}

// The beam itself, or a copy to look ahead with.
CLine& BeamToRun(VMain& main, CLine& oLine, Boolean Simulate) {
    if (!Simulate) return oLine;
    CLine& copy = main.LookAheadBeams.Make();
    copy.Copy(oLine);
    return copy;
}

}  // namespace

CLine* FindNearestLine(const VMain& main, std::int16_t X, std::int16_t Y) {
    CLine* nearest = nullptr;
    float best = kClickReach;
    for (CLine* beam : main.Lines) {
        if (beam->RunMode != kGrowing && beam->RunMode != kWaiting) continue;
        const auto dx = static_cast<float>(Saturated(beam->XEnd - X));
        const auto dy = static_cast<float>(Saturated(beam->YEnd - Y));
        const float distance = std::sqrt(dx * dx + dy * dy);
        if (distance >= best) continue;
        best = distance;
        nearest = beam;
    }
    return nearest;
}

void BendLine(VMain& main, CLine& oLine) {
    EraseLine(main, oLine);
    oLine.XStart = oLine.XEnd;
    oLine.YStart = oLine.YEnd;
    oLine.Direction = TurnedRound(oLine.Direction);
}

bool SpeedUpLine(VMain& main, CLine& oLine, Boolean Simulate) {
    CLine& ln = BeamToRun(main, oLine, Simulate);
    for (;;) {
        const Step step = NextStep(ln);
        EnterPlayfield(main, ln, step.y);
        if (MeetsWall(ln.Direction, step.x)) return Bounce(main, ln, step, Simulate);
        if (step.y >= kFloor) return false;
        CLine* hit = FindCollision(main, step.testX, step.testY, ln.YEnd, ln.Direction, true);
        if (hit == nullptr) {
            TakeStep(main, ln, step, Simulate);
            continue;
        }
        if (!Simulate) StrikeAndScore(main, ln, *hit);
        return true;
    }
}

}  // namespace prismfall
