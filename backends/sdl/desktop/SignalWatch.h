// Turns the signals that ask a program to end into an event of the event loop, so that the game can end in good order,
// and makes sure that the game ends even if its main thread hangs. Signals that were ignored when the program was
// started, as by nohup, stay ignored.
#pragma once

#include <functional>

namespace prismfall {

// To be called on the main thread before any other is started: from then on every thread leaves these signals to one
// that waits for them. It answers the first by an SDL_QUIT event; further ones change nothing. What happens without an
// end within two seconds is told at `WhenItHangs`. Writing where there is no room, or nobody who reads, becomes an
// error of the write instead of a signal. False if the system gives no thread: SDL's own handlers are to be used then.
bool WatchEndSignals();

// Call it once SDL takes events: a signal that arrived earlier becomes an event now.
void DeliverEarlySignal();

// If the main thread hangs, `end` is called on it, in the middle of whatever that was doing: two seconds after a signal
// that asked for the end, and again every tenth of a second. It is to save and end the program, or to come back if it
// has come at a bad moment. The signal itself ends the program three seconds after it came, or sooner if there is
// nothing to call.
void WhenItHangs(std::function<void()> end);

// The program ends as after a hang-up when the other side of a connection, the display's, has gone. SDL may wait for
// its answers for good then.
void EndWithConnection(int connection);

// For a thread other than the main one that has found out that the program must end: waits for that as after a signal
// of this number, and does not come back.
[[noreturn]] void AwaitEnd(int signal);

}  // namespace prismfall
