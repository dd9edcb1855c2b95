// The content of Puzzle mode: 45 layouts of beams, and a script that solves each. The tables never change.
#pragma once

#include <cstddef>
#include <cstdint>

#include "state/VMain.h"

namespace prismfall {

// A row of Puzzles: element 0 is the number of beams, then these fields for each.
namespace layout {
constexpr std::size_t kPuzzleLineNr = 0;  // the name of the beam for scripts; several may share one
constexpr std::size_t kX = 1;             // of the start, in design units like the next two
constexpr std::size_t kYStart = 2;
constexpr std::size_t kYEnd = 3;
constexpr std::size_t kDirection = 4;
constexpr std::size_t kRunMode = 5;
constexpr std::size_t kColor = 6;
constexpr std::size_t kFields = 7;
}  // namespace layout

// A row of PuzzleSolutions: element 0 is the number of steps, then these fields for each.
namespace solution {
constexpr std::size_t kTriggerLineNr = 0;  // the step fires on a growing beam of this number
constexpr std::size_t kTriggerYEnd = 1;    // whose head stands exactly at this height, in pixels of the playfield
constexpr std::size_t kSpeedUp = 2;        // 0 or -1
constexpr std::size_t kOtherLineNr = 3;    // the beams that it acts on; 0 for the one that triggered it
constexpr std::size_t kBendFirst = 4;      // 0 or -1
constexpr std::size_t kFields = 5;
}  // namespace solution

void LoadPuzzles(VMain& main);
void LoadPuzzleSolutions(VMain& main);

// The records of a row, one after the other; `fields` is the number of fields of each.
template <typename Visit>
void ForEachRecord(CatalogueEntry entry, std::size_t fields, Visit visit) {
    const auto count = static_cast<std::size_t>(entry[0]);
    for (std::size_t record = 0; record < count; ++record) visit(entry.subspan(1 + record * fields, fields));
}

// The rows of the puzzle in play.
CatalogueEntry CurrentLayout(const VMain& main);
CatalogueEntry CurrentSolution(const VMain& main);

}  // namespace prismfall
