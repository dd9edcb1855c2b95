// Destroyed beams thin out step by step, each with its whole chain, and then leave the playfield.
#pragma once

#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

// One step of removal for a beam and, through the links, for all of its chain in the same colour: each becomes dying
// and stands still, is painted out and painted again `Thickness` wide, without edges. Only `oLine` itself keeps
// `ByFastLine`. This is also how a level rise reaches the timers.
void DeleteLine(VMain& main, CLine& oLine, std::int16_t Thickness, Boolean ByFastLine);

// Takes the first step for a beam that has been struck, and enters it in DyingLines for the next ones.
void StartRemoval(VMain& main, CLine& oLine, Boolean ByFastLine);

// The step of removal after the one that the beam stands in.
std::int16_t NextThickness(const CLine& beam);

// Paints all beams again, since a removal has painted out what lay under it. Those that begin above the blue line are
// left to the growth tick.
void RedrawLines(const VMain& main);

// Ends all beams. Nothing is painted.
void ClearLines(VMain& main);

// Whether every beam of Lines is dying; true for none.
Boolean AllLinesDeleted(const VMain& main);

}  // namespace prismfall
