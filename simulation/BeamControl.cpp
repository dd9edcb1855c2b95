#include "simulation/BeamControl.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>

#include "platform/Numbers.h"
#include "simulation/BeamSpawning.h"
#include "simulation/BeamStrike.h"
#include "simulation/CollisionDetection.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr float kClickReach = 50;  // pixels; a head at exactly this distance is out of reach

void EnterPlayfield(const Field& field, BeamBody& beam, int y) {
    const int limit = field.CollisionLineY + kFastEntryLimit;
    if (y < limit) EraseLine(field.painter, beam);
    if (y == limit) BeginTrail(beam);
}

// Where the straight run of one segment ends; the beam has been moved there.
struct RunEnd {
    Outcome outcome = Outcome::AtFloor;
    CLine* hit = nullptr;  // if it was a beam
};

template <typename PaintStep>
RunEnd RunStraight(const Field& field, BeamBody& beam, PaintStep paintStep) {
    for (;;) {
        const Step step = NextStep(beam);
        EnterPlayfield(field, beam, step.y);
        if (MeetsWall(beam.Direction, step.x)) {
            MoveHead(beam, step);
            return {Outcome::Bounced};
        }
        if (step.y >= kFloor) return {Outcome::AtFloor};
        CLine* hit = FindCollision(field, step.testX, step.testY, beam.YEnd, beam.Direction, true);
        if (hit != nullptr) return {Outcome::Stopped, hit};
        paintStep(step);
        MoveHead(beam, step);
    }
}

}  // namespace

CLine* FindNearestLine(const Field& field, std::int16_t X, std::int16_t Y) {
    CLine* nearest = nullptr;
    float best = kClickReach;
    for (CLine* beam : field.Lines) {
        if (beam->RunMode == Motion::Stopped) continue;
        const auto dx = static_cast<float>(Saturated(beam->XEnd - X));
        const auto dy = static_cast<float>(Saturated(beam->YEnd - Y));
        const float distance = std::sqrt(dx * dx + dy * dy);
        if (distance >= best) continue;
        best = distance;
        nearest = beam;
    }
    return nearest;
}

std::vector<const CLine*> ReachableHeads(const Field& field) {
    std::vector<const CLine*> heads;
    std::ranges::copy_if(field.Lines, std::back_inserter(heads), [&field](const CLine* beam) {
        return beam->RunMode != Motion::Stopped && FindNearestLine(field, beam->XEnd, beam->YEnd) == beam;
    });
    std::ranges::stable_sort(heads, std::greater<>(), &CLine::YEnd);
    return heads;
}

void BendLine(Field& field, CLine& oLine) {
    EraseLine(field.painter, oLine);
    oLine.XStart = oLine.XEnd;
    oLine.YStart = oLine.YEnd;
    oLine.Direction = TurnedRound(oLine.Direction);
}

Outcome SpeedUpLine(Field& field, CLine& oLine) {
    for (CLine* beam = &oLine;; beam = &SplitLine(field, *beam)) {
        const auto paintStep = [&](const Step& step) { DrawStep(field.painter, *beam, step); };
        const RunEnd end = RunStraight(field, *beam, paintStep);
        if (end.hit != nullptr) return StrikeLine(field, *beam, *end.hit, true);
        if (end.outcome == Outcome::AtFloor) return end.outcome;
    }
}

bool WouldEndAtBeam(const Field& field, BeamBody copy) {
    for (;;) {
        const RunEnd end = RunStraight(field, copy, [](const Step&) {});
        if (end.outcome != Outcome::Bounced) return end.hit != nullptr;
        copy = NextSegment(copy);
    }
}

}  // namespace prismfall
