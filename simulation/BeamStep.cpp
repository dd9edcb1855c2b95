#include "simulation/BeamStep.h"

#include "simulation/BeamSpawning.h"
#include "simulation/BeamStrike.h"
#include "simulation/CollisionDetection.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

bool MovesInThisTick(const Field& field, const CLine& beam, int y) {
    return beam.RunMode == Motion::Growing && (field.GrowthToggle == 0 || y >= field.CollisionLineY + kEntryLimit);
}

void EnterPlayfield(const Field& field, CLine& beam, int y) {
    const int limit = field.CollisionLineY + kEntryLimit;
    if (y < limit && field.rules.hasEntryZone) EraseLine(field.painter, beam);
    if (y == limit) BeginTrail(beam);
}

}  // namespace

Outcome GrowLine(Field& field, CLine& beam) {
    const Step step = NextStep(beam);
    if (!MovesInThisTick(field, beam, step.y)) return Outcome::Continues;
    EnterPlayfield(field, beam, step.y);
    if (MeetsWall(beam.Direction, step.x)) {
        MoveHead(beam, step);
        SplitLine(field, beam);
        return Outcome::Bounced;
    }
    if (step.y >= kFloor) return Outcome::AtFloor;
    CLine* hit = FindCollision(field, step.testX, step.testY, beam.YEnd, beam.Direction, false);
    if (hit != nullptr) return StrikeLine(field, beam, *hit, false);
    DrawStep(field.painter, beam, step);
    MoveHead(beam, step);
    return Outcome::Continues;
}

}  // namespace prismfall
