// The state machine of the program: which screen is shown, whether a game is in progress, and which of its timers run.
#pragma once

#include <cstdint>

#include "game/VMain.h"

namespace prismfall {

// Starts an Arcade game at StartLevel with three beams already in play.
void CommandArcade_Click(VMain& main);

// Takes over a solution replay, starts a waiting puzzle, or lays out the puzzle again.
void CmdStart_Click(VMain& main);

// Pauses or resumes, with the music. Does nothing while a tutorial picture is shown.
void cmdPause_Click(VMain& main);

// Goes back one screen: from a game to its menu, abandoning the game and starting the intro music; from the puzzle menu
// to the main menu; from there it saves all settings and ends the program.
void CommandExit_Click(VMain& main);

// Esc does what CommandExit does, but keeps the current music playing. Other keys do nothing.
void Form_KeyDown(VMain& main, std::int16_t KeyCode);

// The window was minimised, which pauses the game, or restored, which resumes the music and a solution replay.
void Form_Resize(VMain& main, bool isMinimised);

// Another program's window has the focus now: pauses a running game by its button, if the player wants that.
void Form_Deactivate(VMain& main);

// On the very first run, shows About, then the tutorial.
void Form_Activate(VMain& main);

}  // namespace prismfall
