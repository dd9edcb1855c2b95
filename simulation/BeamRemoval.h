// Destroyed beams thin out step by step, each with its whole chain, and then leave the playfield.
#pragma once

#include <cstdint>

#include "simulation/Field.h"

namespace prismfall {

// One step of removal for a beam and, through the links, for all of its chain in the same color: each is dying from
// now on and stops, is erased, and is painted again `Thickness` wide, without edges. Only `oLine` itself keeps
// `ByFastLine`.
void DeleteLine(Field& field, CLine& oLine, std::int16_t Thickness, bool ByFastLine);

// Takes the first step for a beam that has been struck, and enters it in DyingLines for the next ones.
void StartRemoval(Field& field, CLine& oLine, bool ByFastLine);

// The next step for all of DyingLines; those that are gone leave that list. A beam that is in it twice loses two steps,
// and is erased once more after it has gone. Whether there was any.
bool ThinDyingLines(Field& field);

// Takes the beams out of Lines that have thinned to nothing, and lets those that waited behind them grow on. Whether
// there was any.
bool RemoveGoneLines(Field& field);

// Paints all beams again, since a removal has erased what lay under it. Those that begin above the blue line are left
// to the growth tick.
void RedrawLines(const Field& field);

// Ends all beams. Paints nothing.
void ClearLines(Field& field);

// Whether every beam of Lines is dying; true for none.
bool AllLinesDeleted(const Field& field);

}  // namespace prismfall
