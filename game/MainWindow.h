// The main window: its start-up, its closing, and which handler each event of the player and the desktop goes to.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// Brings the state to what it is when the main menu first shows: timers, settings, catalogue, menu. Called once,
// before the window is seen.
void Form_Load(VMain& main);

// The window is about to close by its close box: saves the settings as they are.
void Form_QueryUnload(VMain& main);
void Form_Unload(VMain& main);

// Of a timer, when the program starts; milliseconds.
int IntervalAtStart(Timer timer);

// The tick of a timer.
void TickTimer(VMain& main, Timer timer);

// Fills main.window, connects it and the timers to their handlers, and loads it. `main` must outlive the platform's use
// of the window.
void MakeMainWindow(VMain& main);

}  // namespace prismfall
