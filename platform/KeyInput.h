// Routes keys to the handlers of windows. Arrows and Tab choose a place: a button, a place on a picture, the head of a
// beam. Space and Enter then press there. A key does only what the mouse can do at that place, through the same
// handlers.
#pragma once

#include "platform/Key.h"
#include "platform/WindowInput.h"

namespace prismfall {

enum class KeyReach {
    Window,   // the surface and all elements
    Surface,  // only the surface: on a page the browser handles keys for the elements
};

// Handles a key in a window, if that takes input. Arrows choose the nearest place in their direction, Tab the next one;
// while a game gives the surface the keys, only the heads of beams can be chosen. Space is a left press or a click at
// the chosen place, Enter a right press or a click; where neither is possible, Enter is the window's OK. Any other key
// clicks the element that has it as its shortcut; if none has, it goes to the window's `command`. If nothing is chosen
// yet, the first Space or Enter only chooses.
void PressKey(const WindowInput& input, Window& window, Key key, KeyReach reach = KeyReach::Window);

// Updates `window.choice` if the chosen place has moved or is gone.
void FollowChoice(Window& window, KeyReach reach = KeyReach::Window);

// The player is using the pointer: the chosen place is not marked until the next key.
void NotePointer(Window& window, float x, float y);

// The place on the surface to mark: the one chosen with keys, or with `ringsAtPointer` the head that a press at the
// pointer would reach. Not shown if there is none.
KeyChoice PlaceToMark(Window& window, bool ringsAtPointer);

}  // namespace prismfall
