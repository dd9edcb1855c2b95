// The main window: its start-up, its closing, and which handler each event from the player and the desktop goes to.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Sets up the state for the first main menu: timers, settings, catalogue, menu. Called once, before the window is
// shown.
void Form_Load(VMain& main);

// The window is about to be closed by its close box: saves the settings as they are.
void Form_QueryUnload(VMain& main);
void Form_Unload(VMain& main);

// A timer's interval when the program starts, in milliseconds.
int IntervalAtStart(Timer timer);

// Handles a tick of the timer.
void TickTimer(VMain& main, Timer timer);

// Fills main.window, connects it and the timers to their handlers, and loads it. `main` must outlive the platform's use
// of the window.
void MakeMainWindow(VMain& main);

}  // namespace prismfall
