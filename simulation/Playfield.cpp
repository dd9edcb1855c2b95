#include "simulation/Playfield.h"

#include "platform/Numbers.h"

namespace prismfall {

namespace {

constexpr int kEdgeOffset = 2;       // of the edge lines, from the core's middle
constexpr int kNearLeftWall = 21;    // an end below this may have painted on the left wall
constexpr int kNearRightWall = 663;  // an end above this, on the right one
constexpr int kRepairReach = 10;     // rows of wall that are repaired above and below an end

}  // namespace

Step NextStep(const BeamBody& beam) {
    const int sideways = Sideways(beam.Direction);
    const std::int16_t x = Saturated(beam.XEnd + sideways);
    const std::int16_t y = Saturated(beam.YEnd + 1);
    return {x, y, Saturated(x + kAhead * sideways), Saturated(y + kAhead)};
}

void MoveHead(BeamBody& beam, const Step& step) {
    beam.XEnd = step.x;
    beam.YEnd = step.y;
}

bool MeetsWall(Heading direction, int x) { return direction == Heading::Rightwards ? x >= kRightWall : x < kLeftWall; }

void BeginTrail(BeamBody& beam) {
    beam.XStart = Saturated(beam.XEnd - Sideways(beam.Direction));
    beam.YStart = Saturated(beam.YEnd - 1);
}

void DrawLine(SurfacePainter& painter, int x1, int y1, int x2, int y2, BeamColor Color, Heading Direction) {
    const int outwards = kEdgeOffset * Sideways(Direction);
    painter.SurfaceLine(x1, y1, x2, y2, OfColor(LineColors, Color), kBeamWidth);
    painter.SurfaceLine(x1, y1 - kEdgeOffset, x2 + outwards, y2, OfColor(LineColorsUpper, Color), 1);
    painter.SurfaceLine(x1 - outwards, y1, x2, y2 + kEdgeOffset, OfColor(LineColorsLower, Color), 1);
}

void DrawStep(SurfacePainter& painter, const BeamBody& beam, const Step& step) {
    DrawLine(painter, beam.XEnd, beam.YEnd, step.x, step.y, beam.Color, beam.Direction);
}

void EraseLine(SurfacePainter& painter, const BeamBody& oLine) {
    painter.SurfaceLine(oLine.XStart, oLine.YStart, oLine.XEnd, oLine.YEnd, kBlack, kBeamWidth);
    RepairWalls(painter, oLine);
}

void RepairWalls(SurfacePainter& painter, const BeamBody& oLine) {
    if (oLine.XEnd < kNearLeftWall) return RepairLeftWall(painter, oLine.YEnd);
    if (oLine.XStart < kNearLeftWall) return RepairLeftWall(painter, oLine.YStart);
    if (oLine.XEnd > kNearRightWall) return RepairRightWall(painter, oLine.YEnd);
    if (oLine.XStart > kNearRightWall) RepairRightWall(painter, oLine.YStart);
}

void RepairLeftWall(SurfacePainter& painter, int y) {
    painter.SurfaceRestore(7, y - kRepairReach, 14, y + kRepairReach);
}

void RepairRightWall(SurfacePainter& painter, int y) {
    painter.SurfaceRestore(665, y - kRepairReach, 672, y + kRepairReach);
}

void RedrawCollisionLine(const Field& field) {
    const int y = field.CollisionLineY + kBlueLine;
    field.painter.SurfaceLine(kLeftWall, y, kRightWall, y, kBlueLineColour, 1);
}

}  // namespace prismfall
