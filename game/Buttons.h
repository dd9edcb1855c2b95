// The main window's buttons: which face each shows and when, what their clicks call, and the three that open a dialog.
#pragma once

#include "game/VMain.h"

namespace prismfall {

// The pointer moves over the surface: resets the buttons; during a game only right of the playfield.
void Form_MouseMove(VMain& main, float X);

void Button_Click(VMain& main, const Element& element);

// Each opens its dialog, pausing a running game while it is open.
void CmdOptions_Click(VMain& main);
void CmdScores_Click(VMain& main);
void CmdAbout_Click(VMain& main);

}  // namespace prismfall
