// What SDL does not tell an X11 desktop about a window, and what it does not ask it. On another kind of desktop nothing
// happens and the usual values come back.
#pragma once

#include <functional>

struct SDL_Window;

namespace prismfall {

struct DesktopFacts {
    float scale = 1;  // how many pixels the user wants for a pixel of a plain display, 1 or more
    int doubleClickMilliseconds = 500;
};

// To be asked once, before the first window.
DesktopFacts AskDesktop();

// SDL wakes its own waiting by an event that it sends to one of the windows on a second connection. The server may read
// it after a dialog that was that window has gone, and answers with an error that would end the program. To be called
// once.
void BearLateWakeUps();

// The window server can go before the game does: at the end of a desktop session, or by a fault of its own. `end` is
// then called on the thread that calls this now, within whatever that was doing; it must not touch any window nor come
// back. To be called once.
void WhenDisplayIsLost(std::function<void()> end);

// For a window that is not shown yet. A main window can be closed, moved and minimised; a dialog, which belongs to
// `owner` and keeps the input from it, cannot be minimised.
void SetMainFrame(SDL_Window* window);
void SetDialogFrame(SDL_Window* dialog, SDL_Window* owner);

}  // namespace prismfall
