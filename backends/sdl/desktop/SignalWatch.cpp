// A thread that sleeps until a signal comes. A signal handler could not do it: pushing an event takes a lock, and a
// flag alone would not wake the loop.
#include "backends/sdl/desktop/SignalWatch.h"

#include <SDL.h>
#include <pthread.h>
#include <csignal>

#include <thread>

namespace prismfall {

namespace {

sigset_t EndSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&signals, signal);
    return signals;
}

[[noreturn]] void WaitForSignals() {
    const sigset_t signals = EndSignals();
    for (;;) {
        int signal = 0;
        if (sigwait(&signals, &signal) != 0) continue;
        SDL_Event event{};
        event.type = SDL_QUIT;
        SDL_PushEvent(&event);
    }
}

}  // namespace

void WatchEndSignals() {
    const sigset_t signals = EndSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::thread(WaitForSignals).detach();
}

}  // namespace prismfall
