// Where desktops differ, beyond what SDL evens out: how a desktop is opened, what it wants to be told of a window, what
// it knows of its user's wishes, how its session ends. One source file for each kind of desktop.
#pragma once

#include <functional>
#include <string>

struct SDL_Window;

namespace prismfall {

struct DesktopFacts {
    float scale = 1;  // how many pixels the user wants for a pixel of a plain display, 1 or more
    int doubleClickMilliseconds = 500;
};

// Makes the system's wish that the program end an SDL_QUIT event, where SDL alone does not. To be called before any
// other thread is started.
void PrepareDesktop();

// Starts SDL's video. False if there is no display; `failure` is then one sentence that says why.
bool OpenDisplay(std::string& failure);

// To be asked once, on an open desktop, before the first window. Where the desktop does not tell, the usual values come
// back.
DesktopFacts AskDesktop();

// The desktop's session can end without leaving the program the time for an SDL_QUIT event, the display can go by a
// fault, or it hangs when the program is to end. `end` is then called on the thread that calls this now, within
// whatever that was doing. It must not touch any window, and ends the program; only in the middle of a save it comes
// back, to be called again. To be called once.
void WhenSessionEnds(std::function<void()> end);

// For a window that is not shown yet. A main window can be closed, moved and minimised; a dialog, which belongs to
// `owner` and keeps the input from it, cannot be minimised.
void SetMainFrame(SDL_Window* window);
void SetDialogFrame(SDL_Window* dialog, SDL_Window* owner);

}  // namespace prismfall
