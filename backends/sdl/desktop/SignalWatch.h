// Turns the signals that ask a program to end into an event of the event loop, so that the game can end in an orderly
// way. Signals that were ignored when the program was started, as by nohup, stay ignored.
#pragma once

namespace prismfall {

// Call it before any other thread is started: from then on every thread leaves these signals to one that waits for
// them. It turns the first into an SDL_QUIT event; a second one, or three seconds without an end, ends the program
// anyway, as the signal alone would have done.
void WatchEndSignals();

// Call it once SDL takes events: a signal that arrived earlier becomes an event now.
void DeliverEarlySignal();

}  // namespace prismfall
