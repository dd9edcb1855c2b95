// What the mouse does on the playfield: the left button bends a beam or starts one that waits, the right button runs it
// forward at once, and in the puzzle menu either picks a preview.
#pragma once

#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

// A press on the playfield at (X, Y), in game pixels. Any other button than the left one acts as the right one. The
// place is kept in every state; beams are out of reach during the tutorial, a pause and a replay.
void Form_MouseDown(VMain& main, MouseButton Button, float X, float Y);

// The second press of a double click: a left press at the place of the last one, while a game runs.
void Form_DblClick(VMain& main);

// The growing or waiting beam whose head is nearest to (X, Y), the earliest in Lines of those equally near; nothing if
// it is 50 pixels away or more.
CLine* FindNearestLine(const VMain& main, std::int16_t X, std::int16_t Y);

// Turns a beam in the entry zone round on the spot: what was drawn of it goes, and it runs on the other way.
void BendLine(VMain& main, CLine& oLine);

// Runs a beam forward to its end, painting as it goes, bouncing at walls as new segments; true if the run ends at a
// beam, which then stops it or is destroyed with it, with sound and points. It stops one step above the ground
// otherwise. With `Simulate` it only tells the result: no beam of Lines changes and nothing sounds, but what is above
// the entry limit is painted out all the same.
bool SpeedUpLine(VMain& main, CLine& oLine, Boolean Simulate);

}  // namespace prismfall
