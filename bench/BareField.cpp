// See BareField.h.
#include "bench/BareField.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "simulation/Playfield.h"

namespace prismfall::bench {

namespace {

void PaintPiece(Surface& surface, int x1, int y1, int x2, int y2, std::size_t colour, int way) {
    surface.Line(x1, y1, x2, y2, LineColors[colour], 5);
    surface.Line(x1, y1 - 2, x2 + 2 * way, y2, LineColorsUpper[colour], 1);
    surface.Line(x1 - 2 * way, y1, x2, y2 + 2, LineColorsLower[colour], 1);
}

float Distance(float x, float y, float x1, float y1, float x2, float y2) {
    const float dx = x2 - x1, dy = y2 - y1;
    float t = 0;
    if (dx != 0 || dy != 0) t = std::clamp(((y - y1) * dy + (x - x1) * dx) / (dy * dy + dx * dx), 0.0F, 1.0F);
    const float offX = x - (x1 + t * dx), offY = y - (y1 + t * dy);
    return std::sqrt(offX * offX + offY * offY);
}

}  // namespace

void BareField::Add(int tailX, int tailY, int headX, int headY, int color, bool grows) {
    xStart.push_back(static_cast<std::int16_t>(tailX));
    yStart.push_back(static_cast<std::int16_t>(tailY));
    xEnd.push_back(static_cast<std::int16_t>(headX));
    yEnd.push_back(static_cast<std::int16_t>(headY));
    sideways.push_back(headX >= tailX ? 1 : -1);
    colour.push_back(static_cast<std::uint8_t>(color));
    isGrowing.push_back(grows);
}

// A beam whose box is more than 3 pixels away is skipped, as in the game.
std::size_t BareField::FindNear(int x, int y, int prevY, int way) const {
    for (std::size_t i = 0; i < Count(); ++i) {
        const auto [left, right] = std::minmax(xStart[i], xEnd[i]);
        if (x < left - 3 || x > right + 3) continue;
        const auto [top, bottom] = std::minmax(yStart[i], yEnd[i]);
        if (y >= top - 3 && y <= bottom + 3 &&
            Distance(static_cast<float>(x), static_cast<float>(y), xStart[i], yStart[i], xEnd[i], yEnd[i]) <= 1)
            return i;
        if (std::abs(prevY - yEnd[i]) < 3 && std::abs(x - xEnd[i]) < 3 && way != sideways[i]) return i;
    }
    return Count();
}

bool BareField::Step(Surface& surface, std::size_t beam) {
    const int way = sideways[beam], fromX = xEnd[beam], fromY = yEnd[beam];
    const int x = fromX + way, y = fromY + 1;
    if (x < kLeftWall || x >= kRightWall || y >= kFloor) return false;
    if (FindNear(x + 3 * way, y + 3, fromY, way) != Count()) return false;
    xEnd[beam] = static_cast<std::int16_t>(x);
    yEnd[beam] = static_cast<std::int16_t>(y);
    PaintPiece(surface, fromX, fromY, x, y, colour[beam], way);
    return true;
}

void BareField::Tick(Surface& surface) {
    for (std::size_t beam = 0; beam < Count(); ++beam)
        if (isGrowing[beam]) Step(surface, beam);
    surface.Line(14, 60, 670, 60, kBlueLineColour, 1);
}

void BareField::RunDown(Surface& surface, std::size_t beam) {
    while (Step(surface, beam)) {
    }
}

void BareField::Paint(Surface& surface) const {
    surface.Line(14, 60, 670, 60, kBlueLineColour, 1);
    for (std::size_t i = 0; i < Count(); ++i)
        PaintPiece(surface, xStart[i], yStart[i], xEnd[i], yEnd[i], colour[i], sideways[i]);
}

}  // namespace prismfall::bench
