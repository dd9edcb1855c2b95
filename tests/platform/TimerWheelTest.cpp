// Game time and its timers, on a clock that the test sets: what ticks when the machine is late, and from which moment
// the timers that a handler starts are counted.
#include "platform/TimerWheel.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace prismfall {
namespace {

struct Bench {
    Bench() {
        wheel.SetTickHandler([this](Timer timer) {
            ticks += "DECMAP"[static_cast<std::size_t>(timer)];
            if (onTick) onTick(timer);
        });
    }

    void Start(Timer timer, int interval) {
        wheel.SetInterval(timer, interval);
        wheel.Start(timer);
    }

    // What ticks when the event loop runs at that clock time.
    std::string At(int milliseconds) {
        clock = std::chrono::milliseconds(milliseconds);
        ticks.clear();
        wheel.TickDue();
        return ticks;
    }

    // What ticks when the running handler lets events run; "+" is input.
    void LetEventsRun() {
        wheel.LetEventsRun([this] {
            ticks += '+';
            return true;
        });
    }

    Nanoseconds clock{0};
    GameTime time{[this] { return clock; }};
    TimerWheel wheel{time};
    std::string ticks;
    std::function<void(Timer)> onTick;
};

TEST(TimerWheel, APaceStretchesGameTimeFromWhereItIs) {
    Bench bench;
    bench.Start(Timer::LineExtender, 10);
    EXPECT_EQ(bench.At(10), "E");
    bench.time.SetPace(40);
    EXPECT_EQ(bench.At(34), "");
    EXPECT_EQ(bench.time.ByClock(*bench.wheel.NextDue() - bench.time.Now()), std::chrono::milliseconds(1));
    EXPECT_EQ(bench.At(35), "E");
    {
        const GameTime::Freeze freeze(bench.time);
        bench.clock = std::chrono::milliseconds(135);
    }
    EXPECT_EQ(bench.At(159), "");
    EXPECT_EQ(bench.At(160), "E");
    bench.time.SetPace(100);
    EXPECT_EQ(bench.At(170), "E");
}

TEST(TimerWheel, LatenessOfAnIntervalIsAStallAndLessIsCaughtUp) {
    using Looks = std::vector<std::pair<int, const char*>>;  // clock time, and what ticks then
    for (const auto& [deleter, extender, looks] : {std::tuple{0, 10, Looks{{9, ""}, {10, "E"}, {19, ""}, {20, "E"}}},
                                                   {0, 10, Looks{{19, "E"}, {20, "E"}, {20, ""}, {30, "E"}}},
                                                   {0, 10, Looks{{20, "E"}, {29, ""}, {30, "E"}}},
                                                   {0, 10, Looks{{510, "E"}, {519, ""}, {529, "E"}, {530, "E"}}},
                                                   {100, 60, Looks{{110, "ED"}, {119, ""}, {120, "E"}}},
                                                   {100, 60, Looks{{120, "E"}, {159, ""}, {160, "D"}, {180, "E"}}},
                                                   {50, 75, Looks{{149, "D"}, {174, "E"}, {199, "D"}, {249, "DE"}}}}) {
        Bench bench;
        bench.Start(Timer::LineExtender, extender);
        bench.Start(Timer::LineDeleter, deleter);
        for (const auto& [clock, ticks] : looks) EXPECT_EQ(bench.At(clock), ticks) << clock;
    }
    Bench bench;
    bench.Start(Timer::LineDeleter, 100);
    bench.At(99);
    bench.Start(Timer::LineExtender, 5);
    EXPECT_EQ(bench.At(109), "D") << "one timer is late by its interval, another was due first";
    EXPECT_EQ(bench.At(112) + bench.At(113), "E");
}

TEST(TimerWheel, WhatAHandlerStartsCountsFromItsMoment) {
    Bench bench;
    bench.Start(Timer::LineExtender, 10);
    bench.Start(Timer::TimerMulti, 12);
    bench.onTick = [&](Timer timer) {
        if (timer != Timer::LineExtender) return;
        bench.clock += std::chrono::milliseconds(3);
        bench.Start(Timer::TimerA, 20);  // due at 30, no matter how late it is
        bench.wheel.Stop(Timer::LineExtender);
        bench.wheel.SetInterval(Timer::TimerMulti, 20);
    };
    EXPECT_EQ(bench.At(15), "E");
    EXPECT_EQ(bench.At(29), "");
    EXPECT_EQ(bench.At(30), "MA");
    bench.clock = std::chrono::milliseconds(55);
    bench.ticks.clear();
    bench.wheel.Handle([&] {
        bench.ticks += '+';
        bench.clock += std::chrono::milliseconds(9);
        bench.Start(Timer::LineDeleter, 4);
    });
    EXPECT_EQ(bench.ticks, "MA+") << "what was due comes before input";
    EXPECT_EQ(bench.wheel.NextDue(), std::chrono::milliseconds(59));
}

TEST(TimerWheel, TheFirstYieldTicksOnlyWhatIsClose) {
    Bench bench;
    bench.Start(Timer::LineExtender, 10);
    bench.Start(Timer::LineDeleter, 11);
    bench.Start(Timer::LineCreator, 12);
    bench.onTick = [&](Timer timer) {
        if (timer != Timer::LineExtender || bench.ticks != "E") return;
        bench.LetEventsRun();
        bench.ticks += '|';
        bench.LetEventsRun();
        bench.Start(Timer::TimerA, 5);
    };
    EXPECT_EQ(bench.At(14), "ED|C+");
    EXPECT_EQ(bench.At(18), "") << "at the second yield its moment was 14";
    EXPECT_EQ(bench.At(19), "A");
}

TEST(TimerWheel, HandlersBeginAtWholeMillisecondsAndNoneBeforeAnEarlierOne) {
    Bench bench;
    const auto moments = [&](std::initializer_list<int> microseconds) {
        std::vector<std::int64_t> result;
        for (const int time : microseconds) {
            bench.clock = std::chrono::microseconds(time);
            bench.wheel.Handle([&] { result.push_back(bench.wheel.MomentInMilliseconds()); });
        }
        return result;
    };
    EXPECT_EQ(moments({3000, 3001, 3999, 4000}), (std::vector<std::int64_t>{3, 3, 3, 4}));
    bench.Start(Timer::LineExtender, 7);  // due at 11
    bench.clock = std::chrono::microseconds(10'600);
    bench.wheel.Handle([&] {
        bench.Start(Timer::TimerA, 2);  // due at 12
        bench.LetEventsRun();
        EXPECT_EQ(bench.ticks, "E") << "early, but not by more than a millisecond";
        EXPECT_EQ(bench.wheel.MomentInMilliseconds(), 11);
        bench.clock = std::chrono::microseconds(11'900);
        bench.wheel.RenewMoment();
        EXPECT_EQ(bench.wheel.MomentInMilliseconds(), 11);
    });
    EXPECT_EQ(bench.wheel.NextDue(), std::chrono::milliseconds(12));
    bench.clock = std::chrono::microseconds(11'950);
    bench.wheel.Handle([&] { bench.LetEventsRun(); });
    EXPECT_EQ(moments({11'960, 12'100, 13'000}), (std::vector<std::int64_t>{12, 12, 13}));
}

TEST(TimerWheel, NoMomentIsBeforeOneThatAHandlerWasGivenInAStall) {
    Bench bench;
    bench.Start(Timer::LineExtender, 75);
    std::vector<std::int64_t> moments;
    for (const int clock : {10, 505}) {
        bench.clock = std::chrono::milliseconds(clock);
        bench.wheel.Handle([&] {
            moments.push_back(bench.wheel.MomentInMilliseconds());
            if (clock == 10) bench.clock = std::chrono::milliseconds(500);
            bench.wheel.RenewMoment();
            moments.push_back(bench.wheel.MomentInMilliseconds());
        });
    }
    EXPECT_EQ(moments, (std::vector<std::int64_t>{10, 75, 75, 75}));
}

TEST(TimerWheel, NothingTicksWhileGameTimeStandsStill) {
    Bench bench;
    bench.Start(Timer::LineExtender, 10);
    bench.clock = std::chrono::milliseconds(4);
    {
        const GameTime::Freeze box(bench.time);
        EXPECT_EQ(bench.At(100), "");
        const GameTime::Freeze sound(bench.time);
        EXPECT_EQ(bench.wheel.NextDue(), std::nullopt);
        bench.wheel.Handle([&] { bench.Start(Timer::TimerA, 6); });
    }
    EXPECT_EQ(bench.At(105), "");
    EXPECT_EQ(bench.At(106), "EA");
}

TEST(TimerWheel, WhatIsHandledWhileTimeStandsStillComesBeforeWhatIsStillDue) {
    Bench bench;
    bench.Start(Timer::TimerA, 10);
    bench.clock = std::chrono::milliseconds(12);  // opening the box took that long
    const GameTime::Freeze box(bench.time);
    std::int64_t moment = 0;
    bench.wheel.Handle([&] { moment = bench.wheel.MomentInMilliseconds(); });
    EXPECT_EQ(bench.ticks, "");
    EXPECT_EQ(moment, 9);
}

TEST(TimerWheel, ATurnEndsThoughTicksTakeLongerThanTheirInterval) {
    Bench bench;
    bench.Start(Timer::LineExtender, 1);
    bench.onTick = [&](Timer) { bench.clock += std::chrono::milliseconds(2); };
    const std::string turn = bench.At(1);
    EXPECT_GT(turn.size(), 10U);
    EXPECT_EQ(bench.time.Now() + Nanoseconds(1), bench.wheel.NextDue());
}

TEST(TimerWheel, OrderIntervalsAndHandlersThatRun) {
    Bench bench;
    for (const Timer timer : {Timer::TimerPlayIntro, Timer::TimerMulti, Timer::LineCreator, Timer::LineDeleter})
        bench.Start(timer, timer == Timer::TimerMulti ? 9 : 10);
    bench.onTick = [&](Timer timer) {
        if (timer == Timer::LineCreator) bench.wheel.Stop(Timer::TimerPlayIntro);
        if (timer == Timer::LineDeleter) bench.wheel.Handle([] {});
    };
    EXPECT_EQ(bench.At(10), "MDC") << "earlier first, then in the timers' order; none inside itself";
    bench.wheel.StopAll();
    bench.Start(Timer::LineCreator, 20);
    EXPECT_EQ(bench.At(15), "");
    bench.Start(Timer::LineCreator, 20);
    EXPECT_EQ(bench.At(30), "C") << "neither Start nor the same interval restarts it";
    bench.wheel.SetInterval(Timer::LineCreator, 8);
    EXPECT_EQ(bench.At(37) + bench.At(38), "C");
    bench.wheel.SetInterval(Timer::LineCreator, 0);
    EXPECT_EQ(bench.At(99), "") << "an interval of 0 never ticks";
}

}  // namespace
}  // namespace prismfall
