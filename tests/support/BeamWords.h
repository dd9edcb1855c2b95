// Beams and tables written as text, for tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulation/Field.h"

namespace prismfall {

// A beam as text: "100,300 110,310 blue" is tail, head and color of a live, growing beam; then "left" or "right" if the
// ends do not determine the direction, "stopped" or "waiting", the thickness if it is not 5, "dying" if it is Deleted,
// "fast" if it was struck by a beam that ran forward, and "#4" for the PuzzleLineNr.
std::string InShort(const CLine& beam);

// All of Lines, separated by "; ".
std::string InShort(const Field& field);

// "continues", "bounced", "at floor", "stopped" or "destroyed".
std::string InWords(Outcome outcome);

// Appends beams given as text to Lines.
void AddBeams(Field& field, std::string_view beams);

// Beams by their positions in Lines, from 1: "1 3"; 0 for one that is not there.
std::string Places(const Field& field, const std::vector<CLine*>& beams);

// A table as text: one row per line, cells separated by bars and stripped of blanks.
std::vector<std::vector<std::string>> Rows(std::string_view table);

}  // namespace prismfall
