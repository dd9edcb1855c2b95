// The way from keys to the handlers of windows. Arrows and Tab choose a place: a button, a place on a picture, the head
// of a beam. Space and Enter then press there. A key does what the mouse can do at that place, by the same handlers,
// and nothing else.
#pragma once

#include "platform/Key.h"
#include "platform/WindowInput.h"

namespace prismfall {

enum class KeyReach {
    Window,   // the surface and all elements
    Surface,  // the surface alone: on a page the elements are the browser's own and have its keys
};

// Does what a key means in a window, if that gets input. Arrows choose the nearest place that way, Tab the next one;
// while a game gives the surface the keys, the places are the heads of beams and nothing else. Space is a left press or
// a click at the chosen place, Enter a right press or a click; where neither is possible, Enter is the window's OK.
// Other keys click the element that has them as its shortcut, or else go to the window's `command`. The first Space or
// Enter without a choice chooses.
void PressKey(const WindowInput& input, Window& window, Key key, KeyReach reach = KeyReach::Window);

// Brings `window.choice` up to date where the chosen place has moved, or is no longer there.
void FollowChoice(Window& window, KeyReach reach = KeyReach::Window);

// The player uses the pointer: the chosen place is not marked until the next key.
void NotePointer(Window& window, float x, float y);

// The place on the surface that is to be marked: what was chosen by keys, or with `ringsAtPointer` the head that a
// press at the pointer would reach. Not shown if there is none.
KeyChoice PlaceToMark(Window& window, bool ringsAtPointer);

}  // namespace prismfall
