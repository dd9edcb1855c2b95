// Destroyed beams thin out step by step, each with its whole chain, and then leave the playfield.
#pragma once

#include <cstdint>

#include "simulation/Field.h"

namespace prismfall {

// One step of removal for a beam and, through the links, for its whole chain in the same color: each beam becomes dying
// and stops, is erased, and is painted again `Thickness` wide, without edges. Only `oLine` itself remembers
// `ByFastLine`.
void DeleteLine(Field& field, CLine& oLine, std::int16_t Thickness, bool ByFastLine);

// Takes the first step for a beam that has been struck, and adds it to DyingLines for the following ones.
void StartRemoval(Field& field, CLine& oLine, bool ByFastLine);

// Takes the next step for all of DyingLines and drops those that are gone from the list. A beam that is in it twice
// loses two steps, and is erased once more after it is gone. Returns whether there was any.
bool ThinDyingLines(Field& field);

// Removes the beams that have thinned to nothing from Lines, and lets those that waited behind them grow on. Returns
// whether there was any.
bool RemoveGoneLines(Field& field);

// Repaints all beams, since a removal has erased whatever was under it. Those that begin above the blue line are left
// to the growth tick.
void RedrawLines(const Field& field);

// Removes all beams. Paints nothing.
void ClearLines(Field& field);

// Whether every beam in Lines is dying; true if there is none.
bool AllLinesDeleted(const Field& field);

}  // namespace prismfall
