// A thread that sleeps until a signal arrives. A signal handler could not do this: pushing an event takes a lock, and a
// flag alone would not wake the loop. Only a hanging main thread is interrupted by a handler. Usually it hangs waiting
// for the display, holding none of the locks that saving needs; if it does hold one, the signal's default action ends
// the program.
#include "backends/sdl/desktop/SignalWatch.h"

#include <SDL.h>
#include <poll.h>
#include <pthread.h>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>

#include <system_error>
#include <thread>
#include <utility>

namespace prismfall {

namespace {

using namespace std::chrono_literals;

constexpr auto kGracePeriod = 2s;     // for an orderly end
constexpr auto kNextBreakIn = 100ms;  // between interruptions of a hanging main thread
constexpr int kBreakIns = 8;
constexpr int kBreakInSignal = SIGUSR1;

pthread_t mainThread;
bool isWatching = false;
std::atomic<bool> takesEvents = false;
std::atomic<bool> signalCame = false;
std::atomic<const std::function<void()>*> endOfWhatHangs = nullptr;

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

[[noreturn]] void AnswerSignals(sigset_t signals) {
    int first = 0;
    while (sigwait(&signals, &first) != 0) continue;
    signalCame = true;
    if (takesEvents) PushQuit();
    AwaitEnd(first);
}

// Waits until the other end of the connection is gone.
[[noreturn]] void AwaitHangUp(int connection) {
    pollfd wait{connection, 0, 0};
    while (poll(&wait, 1, -1) < 0 && errno == EINTR) continue;
    AwaitEnd(SIGHUP);
}

void BreakIn(int) { (*endOfWhatHangs.load())(); }

// Returns false if the system cannot start a thread.
template <typename... Arguments>
bool StartThread(void (*task)(Arguments...), Arguments... arguments) {
    try {
        std::thread(task, arguments...).detach();
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

}  // namespace

bool WatchEndSignals() {
    mainThread = pthread_self();
    for (const int signal : {SIGXFSZ, SIGPIPE}) std::signal(signal, SIG_IGN);
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        if (!IsIgnored(signal)) sigaddset(&signals, signal);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    isWatching = StartThread(AnswerSignals, signals);
    if (!isWatching) pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    return isWatching;
}

// SDL has its own handlers for the other two.
void DeliverEarlySignal() {
    if (!isWatching && !IsIgnored(SIGHUP)) std::signal(SIGHUP, [](int) { std::raise(SIGTERM); });
    takesEvents = true;
    if (signalCame) PushQuit();
}

void EndWithConnection(int connection) { StartThread(AwaitHangUp, connection); }

void WhenItHangs(std::function<void()> end) {
    struct sigaction action {};
    action.sa_handler = BreakIn;
    action.sa_flags = SA_RESTART;
    sigaction(kBreakInSignal, &action, nullptr);
    endOfWhatHangs = new std::function<void()>(std::move(end));  // never freed: the program may hang at its very end
}

void AwaitEnd(int signal) {
    std::this_thread::sleep_for(kGracePeriod);
    for (int i = 0; i < kBreakIns && endOfWhatHangs.load() != nullptr; ++i) {
        pthread_kill(mainThread, kBreakInSignal);
        std::this_thread::sleep_for(kNextBreakIn);
    }
    EndBy(signal);
}

}  // namespace prismfall
