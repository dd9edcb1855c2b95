// The playfield: where its walls, floor and lines are, the colors of the beams, and how a beam is painted and erased.
// The surface keeps what was painted, so a routine that changes a beam also paints the change.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "simulation/Field.h"

namespace prismfall {

// The playfield on the surface, in game pixels, not to scale:
//
//      x 14                                  670
//    y    +----------------------------------+
//    20   |  beams begin here                |  entry zone of an Arcade game: beams are spots that move every
//         |                                  |  second tick and cannot collide
//    60   |==================================|  the blue line (20 in a puzzle, where CollisionLineY is 0)
//    64   |  a fast beam begins its trail    |
//    65   |  a growing beam begins its trail |  from here on it moves every tick
//         |                                  |
//   586   +----------------------------------+  the ground; a head gets to 585 at most
//
// A head moves one pixel down and one sideways at a time. At x = 13 or 670 it has hit a wall.
constexpr int kLeftWall = 14;    // a head moving left stops at the first x below it
constexpr int kRightWall = 670;  // a head moving right stops at the first x that reaches it
constexpr int kFloor = 586;      // a head that would step onto it ends the game
constexpr std::int16_t kSpawnHeight = 20;
constexpr int kPlayfieldTop = 20;
constexpr int kBeamWidth = 5;
constexpr int kAhead = 3;  // the test point is this far past a head's next place, in x and in y

// Below CollisionLineY:
constexpr int kBlueLine = 20;
constexpr int kFastEntryLimit = 24;  // where a beam that runs forward begins to leave a trail
constexpr int kEntryLimit = 25;      // where a growing beam does

// How each color of BeamColor is painted: the core of a beam, its upper edge and its lower one.
inline constexpr std::array<Colour, 5> LineColors = {0xFF0000, 0x008000, 0x0000FF, 0x00C0C0, 0x808080};
inline constexpr std::array<Colour, 5> LineColorsUpper = {0xFFC000, 0x00FF00, 0xC0C0A0, 0xC0FFFF, 0xC0C0C0};
inline constexpr std::array<Colour, 5> LineColorsLower = {0x800000, 0x000400, 0x0000C0, 0x008080, 0xA0A0A0};
constexpr Colour kBlueLineColour = 0xFF0000;

constexpr Colour OfColor(const std::array<Colour, 5>& colours, BeamColor color) {
    return colours[static_cast<std::size_t>(color)];
}

// The next position of a head, one pixel down and one sideways, and the point ahead of it that is tested for
// collisions.
struct Step {
    std::int16_t x;
    std::int16_t y;
    std::int16_t testX;
    std::int16_t testY;
};

Step NextStep(const BeamBody& beam);
void MoveHead(BeamBody& beam, const Step& step);

// Whether a head moving in that direction has reached a wall at x.
bool MeetsWall(Heading direction, int x);

// Sets a beam's tail one step behind its head: from here on it leaves a trail.
void BeginTrail(BeamBody& beam);

// Paints one piece of a beam: a core five pixels wide, a bright edge along its upper side, a dark one along its lower.
void DrawLine(SurfacePainter& painter, int x1, int y1, int x2, int y2, BeamColor Color, Heading Direction);
// Paints the piece that a beam's head adds with that step, before it moves.
void DrawStep(SurfacePainter& painter, const BeamBody& beam, const Step& step);

// Paints a whole beam black and repairs the wall that this cut into.
void EraseLine(SurfacePainter& painter, const BeamBody& oLine);

// Restores the frame next to an end of the beam: the first that applies of head left, tail left, head right, tail
// right.
void RepairWalls(SurfacePainter& painter, const BeamBody& oLine);
void RepairLeftWall(SurfacePainter& painter, int y);
void RepairRightWall(SurfacePainter& painter, int y);

// Paints the blue line below which beams can collide.
void RedrawCollisionLine(const Field& field);

}  // namespace prismfall
