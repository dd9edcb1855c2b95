// Turns the signals that ask a program to end into an event of the event loop, so that the game can end in good order.
// Signals that were ignored when the program was started, as by nohup, stay ignored.
#pragma once

namespace prismfall {

// To be called before any other thread is started: from then on every thread leaves these signals to one that waits
// for them. It answers the first by an SDL_QUIT event; a second one, or three seconds without an end, end the program
// all the same, as the signal alone would have done.
void WatchEndSignals();

// To be called when SDL takes events: a signal that came earlier becomes an event now.
void DeliverEarlySignal();

}  // namespace prismfall
