// The screen from which a puzzle is picked: a page of nine previews, drawn from the layouts, and the buttons that turn
// the page.
#pragma once

#include "state/VMain.h"

namespace prismfall {

constexpr int kMenuColumns = 3;
constexpr int kMenuRows = 3;
constexpr std::int16_t kPuzzlesPerPage = kMenuColumns * kMenuRows;

// Draws the page PuzzlePage and makes the menu the present screen; or takes it away, with all else on the surface, and
// leaves GameMode alone.
void ShowPuzzleMenu(VMain& main, Boolean state);

void CommandPuzzle_Click(VMain& main);

// Turn the page; nothing happens on the last and on the first one.
void CommandNext_Click(VMain& main);
void CommandPrevious_Click(VMain& main);

}  // namespace prismfall
