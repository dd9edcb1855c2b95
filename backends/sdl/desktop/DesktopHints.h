// Differences between desktops that SDL does not hide: how a desktop is opened, what it needs to know about a window,
// the user's preferences, how its session ends. There is one source file per kind of desktop.
#pragma once

#include <functional>
#include <string>

struct SDL_Window;

namespace prismfall {

struct DesktopFacts {
    float scale = 1;  // how many pixels the user wants per pixel of a standard display, 1 or more
    int doubleClickMilliseconds = 500;
};

// Turns the system's request to end the program into an SDL_QUIT event, where SDL alone does not. Call it before any
// other thread is started.
void PrepareDesktop();

// Starts SDL's video. Returns false if there is no display; `failure` then says why in one sentence.
bool OpenDisplay(std::string& failure);

// Call it once, on an open desktop, before the first window. Returns the usual values where the desktop does not say.
DesktopFacts AskDesktop();

// The desktop's session can end without leaving the program the time for an SDL_QUIT event, the display can go by a
// fault, or it hangs when the program is to end. `end` is then called on the thread that calls this now, within
// whatever that was doing. It must not touch any window, and ends the program; only in the middle of a save it comes
// back, to be called again. To be called once.
void WhenSessionEnds(std::function<void()> end);

// For a window that is not shown yet. A main window can be closed, moved and minimised; a dialog, which belongs to
// `owner` and blocks its input, cannot be minimised.
void SetMainFrame(SDL_Window* window);
void SetDialogFrame(SDL_Window* dialog, SDL_Window* owner);

}  // namespace prismfall
