// The screen for picking a puzzle: a page of nine previews, drawn from the layouts, and the buttons that turn the page.
#pragma once

#include "game/VMain.h"

namespace prismfall {

constexpr int kMenuColumns = 3;
constexpr int kMenuRows = 3;
constexpr std::int16_t kPuzzlesPerPage = kMenuColumns * kMenuRows;
constexpr std::int16_t kPageCount = (kPuzzleCount + kPuzzlesPerPage - 1) / kPuzzlesPerPage;

// The puzzle in a cell of a page, from 1; cells are counted from 0, row by row. On the last page it may be above
// kPuzzleCount: then the cell is empty.
constexpr std::int16_t PuzzleInCell(std::int16_t page, int cell) {
    return static_cast<std::int16_t>((page - 1) * kPuzzlesPerPage + cell + 1);
}

// Where the preview in a cell is painted, in game pixels.
struct PreviewBox {
    int left;
    int top;
    int width;
    int height;
};
PreviewBox PreviewBoxOf(int cell);

// Shows the menu at the page PuzzlePage.
void ShowPuzzleMenu(VMain& main);

void CommandPuzzle_Click(VMain& main);

// Turn the page; they do nothing on the last and on the first page.
void CommandNext_Click(VMain& main);
void CommandPrevious_Click(VMain& main);

}  // namespace prismfall
