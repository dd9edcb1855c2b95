// A thread that sleeps until a signal arrives. A signal handler could not do this: pushing an event takes a lock, and a
// flag alone would not wake the loop.
#include "backends/sdl/desktop/SignalWatch.h"

#include <SDL.h>
#include <pthread.h>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <thread>

namespace prismfall {

namespace {

constexpr timespec kPatience{3, 0};  // for an orderly end

std::atomic<bool> takesEvents = false;
std::atomic<bool> signalCame = false;

bool IsIgnored(int signal) {
    struct sigaction action {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void PushQuit() {
    SDL_Event event{};
    event.type = SDL_QUIT;
    SDL_PushEvent(&event);
}

// Dies by the signal's default action, so that the parent process can see what ended the program.
[[noreturn]] void EndBy(int signal) {
    std::signal(signal, SIG_DFL);
    sigset_t one;
    sigemptyset(&one);
    sigaddset(&one, signal);
    pthread_sigmask(SIG_UNBLOCK, &one, nullptr);
    std::raise(signal);
    std::_Exit(EXIT_FAILURE);
}

[[noreturn]] void MeetSignals(sigset_t signals) {
    int first = 0;
    while (sigwait(&signals, &first) != 0) continue;
    signalCame = true;
    if (takesEvents) PushQuit();
    for (;;) {
        const int second = sigtimedwait(&signals, nullptr, &kPatience);
        if (second > 0) EndBy(second);
        if (errno != EINTR) EndBy(first);  // otherwise the program was stopped and has been continued
    }
}

}  // namespace

void WatchEndSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        if (!IsIgnored(signal)) sigaddset(&signals, signal);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::thread(MeetSignals, signals).detach();
}

void DeliverEarlySignal() {
    takesEvents = true;
    if (signalCame) PushQuit();
}

}  // namespace prismfall
