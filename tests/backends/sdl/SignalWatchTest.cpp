// Signals that ask the program to end: the first becomes an event, and nothing that hangs outlives it by three seconds.
#include "backends/sdl/desktop/SignalWatch.h"

#include <SDL.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pthread.h>
#include <unistd.h>
#include <array>
#include <csignal>

#include "backends/sdl/drawing/PictureStore.h"
#include "backends/sdl/sound/SdlAudio.h"

namespace prismfall {
namespace {

// Sends a signal to this process and returns whether it soon becomes an event.
bool BecomesAnEvent(int signal) {
    kill(getpid(), signal);
    SDL_Delay(100);
    SDL_PumpEvents();
    return SDL_HasEvent(SDL_QUIT) == SDL_TRUE;
}

TEST(SignalWatchTest, EndsAHangingProgramAndLeavesIgnoredSignalsAlone) {
    const auto watch = [] {
        signal(SIGHUP, SIG_IGN);
        WatchEndSignals();
    };
    const auto start = [] {
        SDL_Init(SDL_INIT_EVENTS);
        DeliverEarlySignal();
    };
    EXPECT_EXIT((watch(), start(), _exit(BecomesAnEvent(SIGHUP) ? 1 : 0)), testing::ExitedWithCode(0), "");
    EXPECT_EXIT((watch(), BecomesAnEvent(SIGINT), start(), _exit(SDL_HasEvent(SDL_QUIT) ? 0 : 1)),
                testing::ExitedWithCode(0), "");
    const auto hang = [] { poll(nullptr, 0, 6000); };
    EXPECT_EXIT((watch(), start(), BecomesAnEvent(SIGTERM) && BecomesAnEvent(SIGINT), hang()),
                testing::KilledBySignal(SIGTERM), "");
    EXPECT_EXIT((watch(), start(), WhenItHangs([] { _exit(gettid() == getpid() ? 7 : 1); }), raise(SIGXFSZ),
                 BecomesAnEvent(SIGINT) && BecomesAnEvent(SIGTERM), hang()),
                testing::ExitedWithCode(7), "");
}

// Makes starting a thread fail: no memory is large enough for such a stack.
void DenyThreads() {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, std::size_t{1} << 60);
    pthread_setattr_default_np(&attributes);
}

bool GoesOnWithoutThreads() {
    PictureStore pictures(PRISMFALL_ASSETS "/pictures");
    constexpr std::array<std::string_view, 1> early = {"Icon"};
    pictures.ReadAhead(early);
    SdlAudio audio;
    const bool isSilent = audio.MusicOpen("music that nobody hears") == 0;
    const bool isWatching = WatchEndSignals();
    SDL_Init(SDL_INIT_EVENTS);
    DeliverEarlySignal();
    return isSilent && !isWatching && BecomesAnEvent(SIGHUP) && pictures.Find("Icon") != nullptr;
}

TEST(SignalWatchTest, WithoutThreadsTheGameStillRuns) {
    EXPECT_EXIT((DenyThreads(), _exit(GoesOnWithoutThreads() ? 0 : 1)), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace prismfall
