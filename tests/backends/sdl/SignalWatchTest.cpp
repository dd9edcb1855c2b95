// Signals that ask the program to end: the first becomes an event, the next ends even a program that hangs.
#include "backends/sdl/desktop/SignalWatch.h"

#include <SDL.h>
#include <gtest/gtest.h>
#include <unistd.h>
#include <csignal>

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
    EXPECT_EXIT((watch(), start(), BecomesAnEvent(SIGTERM) && BecomesAnEvent(SIGINT), sleep(6)),
                testing::KilledBySignal(SIGINT), "");
    EXPECT_EXIT((watch(), start(), BecomesAnEvent(SIGTERM), sleep(6)), testing::KilledBySignal(SIGTERM), "");
}

}  // namespace
}  // namespace prismfall
