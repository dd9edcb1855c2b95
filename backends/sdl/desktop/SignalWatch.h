// Turns the signals that ask a program to end into an event of the event loop, so that the game can end in good order.
#pragma once

namespace prismfall {

// To be called before any other thread is started: from then on every thread leaves these signals to one that waits
// for them and answers each by an SDL_QUIT event.
void WatchEndSignals();

}  // namespace prismfall
