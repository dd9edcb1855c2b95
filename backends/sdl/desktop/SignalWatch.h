// Turns the signals that ask a program to end into an event of the event loop, so that the game ends cleanly, and makes
// sure that it ends even if its main thread hangs. Signals that were ignored when the program was started, as by nohup,
// stay ignored.
#pragma once

#include <functional>

namespace prismfall {

// Call this on the main thread before any other thread is started: from then on, every thread leaves these signals to
// the one that waits for them. It answers the first with an SDL_QUIT event; further ones change nothing. `WhenItHangs`
// says what happens if the program has not ended within two seconds. Writing to a full disk, or to a pipe that nobody
// reads, becomes a write error instead of a signal. Returns false if the system cannot start a thread; then SDL's own
// handlers must be used.
bool WatchEndSignals();

// Call it once SDL takes events: a signal that arrived earlier now becomes an event.
void DeliverEarlySignal();

// If the main thread hangs, `end` is called on it, in the middle of whatever it is doing: two seconds after the signal,
// and then every tenth of a second. It should save and end the program, or return if it has come at a bad moment. The
// signal itself ends the program three seconds after it arrived, or sooner if no `end` was set.
void WhenItHangs(std::function<void()> end);

// Ends the program, as after a hang-up, when the other end of a connection to the display is gone. SDL may then wait
// forever for its answers.
void EndWithConnection(int connection);

// For a thread other than the main one that finds that the program must end: waits for that as after this signal, and
// does not return.
[[noreturn]] void AwaitEnd(int signal);

}  // namespace prismfall
