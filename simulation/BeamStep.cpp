#include "simulation/BeamStep.h"

#include "audio/SoundEffects.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/CollisionDetection.h"
#include "simulation/Playfield.h"
#include "state/GameModes.h"

namespace prismfall {

namespace {

void EnterPlayfield(const VMain& main, CLine& beam, int y) {
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

void CountHit(VMain& main, const CLine& beam, std::int16_t& hits) {
    hits = Saturated(hits + 1);
    main.MultiSumX = Saturated(main.MultiSumX + beam.XEnd);
    main.MultiSumY = Saturated(main.MultiSumY + beam.YEnd);
    main.MultiColor = beam.Color;
    main.MultiDirection = beam.Direction;
}

void SoundOfHit(const VMain& main) {
    if (IsPuzzle(main) && AllLinesDeleted(main)) return PlaySound2(main, kSoundPuzzleCleared, true);
    PlaySound2(main, kSoundDestroyed, false);
}

void Strike(VMain& main, CLine& beam, CLine& hit, std::int16_t& hits) {
    beam.RunMode = kStopped;
    hit.StoppingLines.push_back(&beam);
    if (hit.Color != beam.Color || beam.Thicknes <= 0) return PlaySound2(main, kSoundStopped, false);
    StartRemoval(main, beam, false);
    if (!hit.Deleted) StartRemoval(main, hit, false);
    CountHit(main, beam, hits);
    SoundOfHit(main);
}

void TakeStep(const VMain& main, CLine& beam, const Step& step) {
    const std::int16_t prevX = beam.XEnd;
    const std::int16_t prevY = beam.YEnd;
    beam.XEnd = step.x;
    beam.YEnd = step.y;
    DrawLine(main, prevX, prevY, step.x, step.y, beam.Color, beam.Direction);
}

}  // namespace

Growth GrowLine(VMain& main, CLine& beam, std::int16_t& hits) {
    const Step step = NextStep(beam);
    if (!MovesInThisTick(main, beam, step.y)) return Growth::GoesOn;
    EnterPlayfield(main, beam, step.y);
    if (MeetsWall(beam.Direction, step.x)) {
        Bounce(main, beam, step);
        return Growth::AtWall;
    }
    if (step.y >= kFloor) return Growth::AtFloor;
    CLine* hit = FindCollision(main, step.testX, step.testY, beam.YEnd, beam.Direction, false);
    if (hit == nullptr) {
        TakeStep(main, beam, step);
    } else {
        Strike(main, beam, *hit, hits);
    }
    return Growth::GoesOn;
}

}  // namespace prismfall
