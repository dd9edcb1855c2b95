// The state machine of the program: which screen is shown, whether a game is in progress, and which of its timers run.
#pragma once

#include <cstdint>

#include "game/VMain.h"

namespace prismfall {

// Starts an Arcade game at StartLevel with three beams on their way.
void CommandArcade_Click(VMain& main);

// Takes a solution replay over, starts a puzzle that waits, or lays the puzzle out anew.
void CmdStart_Click(VMain& main);

// Pauses or resumes, with the music. Does nothing while a tutorial picture is shown.
void cmdPause_Click(VMain& main);

// One step up: from a game to its menu, dropping the game, with the intro music; from the puzzle menu to the main menu;
// from there out of the program, with all settings saved.
void CommandExit_Click(VMain& main);

// Esc does what CommandExit does, but leaves the present music on. Other keys do nothing.
void Form_KeyDown(VMain& main, std::int16_t KeyCode);

// The window has been minimised, which pauses, or has come back, which resumes the music and a solution replay.
void Form_Resize(VMain& main, bool isMinimised);

// Another program's window has got the keys: a game that runs is paused, if the player wants that.
void Form_Deactivate(VMain& main);

// In the very first run: the About page, then the tutorial.
void Form_Activate(VMain& main);

}  // namespace prismfall
