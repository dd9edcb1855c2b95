// The buttons of the main window: which faces they show, what their clicks call, and the three that open a dialog.
#pragma once

#include "state/VMain.h"

namespace prismfall {

// Puts the Up pictures back on all buttons of the main window.
void ResetButtons(VMain& main);

// The pointer moves over the surface: resets the buttons, in a game only right of the playfield.
void Form_MouseMove(VMain& main, float X);

// The pointer is over a button, which shows its Down picture. Other elements do nothing.
void Button_MouseMove(Element& element);

void Button_Click(VMain& main, Element& element);

// Each opens its dialog; a running game stands still meanwhile.
void CmdOptions_Click(VMain& main);
void CmdScores_Click(VMain& main);
void CmdAbout_Click(VMain& main);

}  // namespace prismfall
