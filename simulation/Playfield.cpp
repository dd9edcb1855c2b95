#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr int kEdgeOffset = 2;       // of the edge lines, from the core's middle
constexpr int kNearLeftWall = 21;    // an end below this may have painted on the left wall
constexpr int kNearRightWall = 663;  // an end above this, on the right one
constexpr int kRepairReach = 10;     // rows of wall that are repaired above and below an end

}  // namespace

Step NextStep(const CLine& beam) {
    const int sideways = beam.Direction == kRightwards ? 1 : -1;
    const std::int16_t x = Saturated(beam.XEnd + sideways);
    const std::int16_t y = Saturated(beam.YEnd + 1);
    return {x, y, Saturated(x + kAhead * sideways), Saturated(y + kAhead)};
}

bool IsAtRightWall(int x) { return x >= kRightWall; }

bool MeetsWall(std::int32_t direction, int x) { return direction == kRightwards ? IsAtRightWall(x) : x < kLeftWall; }

void BeginTrail(CLine& beam) {
    const int back = beam.Direction == kRightwards ? -1 : 1;
    beam.XStart = Saturated(beam.XEnd + back);
    beam.YStart = Saturated(beam.YEnd - 1);
}

void DrawLine(const VMain& main, int x1, int y1, int x2, int y2, std::int32_t Color, std::int32_t Direction) {
    const auto colour = static_cast<std::size_t>(Color);
    const int outwards = Direction == kRightwards ? kEdgeOffset : -kEdgeOffset;
    Platform& surface = main.platform;
    surface.SurfaceLine(x1, y1, x2, y2, LineColors[colour], kBeamWidth);
    surface.SurfaceLine(x1, y1 - kEdgeOffset, x2 + outwards, y2, LineColorsUpper[colour], 1);
    surface.SurfaceLine(x1 - outwards, y1, x2, y2 + kEdgeOffset, LineColorsLower[colour], 1);
}

void EraseLine(const VMain& main, const CLine& oLine) {
    main.platform.SurfaceLine(oLine.XStart, oLine.YStart, oLine.XEnd, oLine.YEnd, kBlack, kBeamWidth);
    RepairWalls(main, oLine);
}

void RepairWalls(const VMain& main, const CLine& oLine) {
    if (oLine.XEnd < kNearLeftWall) return RepairLeftWall(main, oLine.YEnd);
    if (oLine.XStart < kNearLeftWall) return RepairLeftWall(main, oLine.YStart);
    if (oLine.XEnd > kNearRightWall) return RepairRightWall(main, oLine.YEnd);
    if (oLine.XStart > kNearRightWall) RepairRightWall(main, oLine.YStart);
}

void RepairLeftWall(const VMain& main, int y) {
    main.platform.SurfaceRestore(7, y - kRepairReach, 14, y + kRepairReach);
}

void RepairRightWall(const VMain& main, int y) {
    main.platform.SurfaceRestore(665, y - kRepairReach, 672, y + kRepairReach);
}

void RedrawCollisionLine(const VMain& main) {
    const int y = main.CollisionLineY + kBlueLine;
    main.platform.SurfaceLine(kLeftWall, y, kRightWall, y, kBlueLineColour, 1);
}

}  // namespace prismfall
