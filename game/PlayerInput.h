// What the mouse does on the playfield: the left button bends a beam or starts a waiting one, the right button runs it
// forward at once, and in the puzzle menu either button picks a preview.
#pragma once

#include <optional>
#include <vector>

#include "game/VMain.h"

namespace prismfall {

// A press on the playfield at (X, Y), in game pixels. Any button except the left one acts as the right one. The
// position is remembered in every mode; presses do not reach beams during the tutorial, a pause or a replay.
void Form_MouseDown(VMain& main, MouseButton Button, float X, float Y);

// The second press of a double click: acts as a left press at the position of the last one, while a game is running.
void Form_DblClick(VMain& main);

// What keys can choose on the surface: in a game that takes presses, the heads of the beams, and then keys can choose
// nothing else; in the puzzle menu, the previews.
void ListSpots(VMain& main, SurfaceSpots& spots);
// The beams of a game, for what is laid over the picture.
void ListBeams(const VMain& main, std::vector<SeenBeam>& beams);
// The head that a press at (X, Y) would reach now.
std::optional<SurfaceSpot> ReachedHead(const VMain& main, float X, float Y);

}  // namespace prismfall
