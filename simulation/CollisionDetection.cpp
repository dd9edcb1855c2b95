// See CollisionDetection.h. All distances are floats of 32 bits: the solutions of puzzles depend on each of them.
#include "simulation/CollisionDetection.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr float kHitDistance = 1.0F;
constexpr float kStruckThicknes = 4.0F;  // the first step of a removal
constexpr int kHeadsMeet = 3;            // heads closer than this in x and y collide

// Farther than this from a beam's box, no rounding error can bring the distance down to kHitDistance, so it is not
// computed.
constexpr int kSurelyApart = 3;
static_assert(kHeadsMeet <= kSurelyApart, "a head that can be hit is no farther away than that either");

bool IsOutOfPlay(const CLine& beam, bool FastLine) {
    if (!beam.Deleted) return false;
    return FastLine || beam.Thicknes != kStruckThicknes || beam.DeletedByFastLine;
}

bool IsBeside(std::int16_t from, std::int16_t to, int place) {
    const auto [low, high] = std::minmax(from, to);
    return place < low - kSurelyApart || place > high + kSurelyApart;
}

bool IsHitByDistance(const CLine& beam, std::int16_t X, std::int16_t Y) {
    float nearestX = 0;
    float nearestY = 0;
    float distance = 0;
    PointToSegmentDistance(X, Y, beam.XStart, beam.YStart, beam.XEnd, beam.YEnd, nearestX, nearestY, distance);
    return distance <= kHitDistance;
}

// Two beams that run towards each other at about the same height, where the test point passes below the other's head.
bool IsHitByHead(const CLine& beam, std::int16_t X, std::int16_t PrevY, Heading Direction) {
    return std::abs(PrevY - beam.YEnd) < kHeadsMeet && std::abs(X - beam.XEnd) < kHeadsMeet &&
           Direction != beam.Direction;
}

}  // namespace

CLine* FindCollision(const Field& field, std::int16_t X, std::int16_t Y, std::int16_t PrevY, Heading Direction,
                     bool FastLine) {
    if (Y <= field.CollisionLineY + kBlueLine) return nullptr;
    for (CLine* beam : field.Lines) {
        if (IsBeside(beam->XStart, beam->XEnd, X) || IsOutOfPlay(*beam, FastLine)) continue;
        if (!IsBeside(beam->YStart, beam->YEnd, Y) && IsHitByDistance(*beam, X, Y)) return beam;
        if (IsHitByHead(*beam, X, PrevY, Direction)) return beam;
    }
    return nullptr;
}

void PointToSegmentDistance(float X, float Y, float X1, float Y1, float X2, float Y2, float& NearestX, float& NearestY,
                            float& Distance) {
    const float DX = X2 - X1;
    const float DY = Y2 - Y1;
    NearestX = X1;
    NearestY = Y1;
    if (DX != 0 || DY != 0) {
        const float T = ((Y - Y1) * DY + (X - X1) * DX) / (DY * DY + DX * DX);
        if (T > 1) {
            NearestX = X2;
            NearestY = Y2;
        } else if (T >= 0) {
            NearestX = X1 + T * DX;
            NearestY = Y1 + T * DY;
        }
    }
    const float offX = X - NearestX;
    const float offY = Y - NearestY;
    Distance = std::sqrt(offX * offX + offY * offY);
}

}  // namespace prismfall
