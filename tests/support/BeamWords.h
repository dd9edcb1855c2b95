// Beams in words and tables in words, for tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulation/Field.h"

namespace prismfall {

// A beam in words: "100,300 110,310 blue" is tail, head and color of a live beam that grows; then "left" or "right" if
// the ends do not tell the direction, "stopped" or "waiting", the thickness if it is not 5, "dying" for one that is
// Deleted, "fast" for one that was struck by a beam that ran forward, and "#4" for the PuzzleLineNr.
std::string InShort(const CLine& beam);

// All of Lines, "; " between two beams.
std::string InShort(const Field& field);

// "goes on", "bounced", "at floor", "stopped" or "destroyed".
std::string InWords(Outcome outcome);

// Appends beams in words to Lines.
void AddBeams(Field& field, std::string_view beams);

// Beams by their places in Lines, from 1: "1 3"; 0 for one that is not there.
std::string Places(const Field& field, const std::vector<CLine*>& beams);

// A table in words: a line a row, its cells between bars, without the blanks around them.
std::vector<std::vector<std::string>> Rows(std::string_view table);

}  // namespace prismfall
