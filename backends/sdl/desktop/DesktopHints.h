// Differences between desktops that SDL does not hide: how a desktop is opened, what it needs to know about a window,
// the user's preferences, how its session ends. There is one source file per kind of desktop.
#pragma once

#include <functional>
#include <string>

struct SDL_Window;

namespace prismfall {

struct DesktopFacts {
    float scale = 1;  // pixels per pixel of a standard display, as set by the user; 1 or more
    int doubleClickMilliseconds = 500;
    bool isCalm = false;  // the user wants nothing to move by itself
};

// Turns the system's request to end the program into an SDL_QUIT event, where SDL itself does not. Call it before any
// other thread is started.
void PrepareDesktop();

// Starts SDL's video. Returns false if there is no display; `failure` then says why in one sentence.
bool OpenDisplay(std::string& failure);

// Call it once, when the desktop is open, before the first window. Returns the usual values where the desktop does not
// say.
DesktopFacts AskDesktop();

// The session can end without giving the program time to handle an SDL_QUIT event, the connection to the display can be
// lost, or the program can hang when it should end. `end` is then called on the thread that makes this call, in the
// middle of whatever that thread is doing. It must not touch any window. It ends the program, or, in the middle of a
// save, returns and is called again. Call this once.
void WhenSessionEnds(std::function<void()> end);

// For a window that has not been shown yet. A main window can be closed, moved and minimised; a dialog, which belongs
// to `owner` and blocks its input, cannot be minimised.
void SetMainFrame(SDL_Window* window);
void SetDialogFrame(SDL_Window* dialog, SDL_Window* owner);

}  // namespace prismfall
