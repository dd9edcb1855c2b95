// The virtual clock's timers: their rhythm, their order, and what a handler may do to them.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>

#include "backends/headless/HeadlessPlatform.h"

namespace prismfall {
namespace {

class TimerTest : public ::testing::Test {
  protected:
    TimerTest() {
        machine.SetTickHandler([this](Timer timer) {
            fired << machine.Clock() << ':' << "DECMAP"[static_cast<std::size_t>(timer)] << ' ';
            if (onTick) onTick(timer);
        });
    }

    void Start(Timer timer, int interval) {
        machine.SetTimerInterval(timer, interval);
        machine.StartTimer(timer);
    }

    // What fires, as TIME:TIMER with the first letter that tells the timers apart, while so much time passes.
    std::string Run(int milliseconds) {
        fired.str({});
        machine.Run(milliseconds);
        return fired.str();
    }

    std::ostringstream printed;
    HeadlessPlatform machine{printed};
    std::ostringstream fired;
    std::function<void(Timer)> onTick;
};

TEST_F(TimerTest, KeepTheirRhythmAndTheirOrder) {
    Start(Timer::TimerPlayIntro, 50);
    Start(Timer::TimerA, 50);
    Start(Timer::TimerMulti, 50);
    Start(Timer::LineCreator, 50);
    Start(Timer::LineExtender, 30);
    Start(Timer::LineDeleter, 50);
    EXPECT_EQ(Run(29), "");
    EXPECT_EQ(Run(31), "30:E 50:D 50:C 50:M 50:A 50:P 60:E ");
    for (const Timer timer : {Timer::TimerPlayIntro, Timer::TimerA, Timer::TimerMulti, Timer::LineCreator})
        machine.StopTimer(timer);
    EXPECT_EQ(Run(90), "90:E 100:D 120:E 150:D 150:E ");
}

TEST_F(TimerTest, StartAndIntervalAsTheyAreChangeNothing) {
    Start(Timer::LineExtender, 40);
    Run(30);
    Start(Timer::LineExtender, 40);
    EXPECT_EQ(Run(20), "40:E ");
    machine.SetTimerInterval(Timer::LineExtender, 25);
    EXPECT_EQ(Run(50), "75:E 100:E ") << "another interval starts from now";
    machine.StopTimer(Timer::LineExtender);
    EXPECT_EQ(Run(100), "");
    machine.StartTimer(Timer::LineExtender);
    EXPECT_EQ(Run(30), "225:E ") << "a stopped timer is due one interval from its start";
    machine.SetTimerInterval(Timer::LineExtender, 0);
    EXPECT_EQ(Run(100), "") << "an interval of 0 never ticks";
}

TEST_F(TimerTest, ARunningHandlerIsNotCalledInsideItself) {
    Start(Timer::LineExtender, 10);
    Start(Timer::LineDeleter, 15);
    int depth = 0;
    onTick = [&](Timer timer) {
        if (timer != Timer::LineExtender) return;
        EXPECT_EQ(++depth, 1);
        while (machine.Clock() < 40) machine.LetEventsRun();
        --depth;
    };
    EXPECT_EQ(Run(40), "10:E 15:D 30:D 40:E 40:E 40:E ") << "it catches up when its handler has ended";
}

TEST_F(TimerTest, AHandlerCanStopOthersThatAreDue) {
    Start(Timer::LineExtender, 10);
    Start(Timer::LineCreator, 10);
    onTick = [this](Timer) { machine.StopTimer(Timer::LineCreator); };
    EXPECT_EQ(Run(10), "10:E ");
}

TEST_F(TimerTest, RandomNumbersComeFromTheQueueFirst) {
    machine.QueueRandom(0.25);
    EXPECT_EQ(machine.Random(), 0.25);
    EXPECT_EQ(machine.Random(), 1103527590.0 / 2147483648.0);
    machine.QueueRandom(0.75);
    EXPECT_EQ(machine.Random(), 0.75) << "queued ones leave the generator alone";
    EXPECT_EQ(machine.Random(), 377401575.0 / 2147483648.0);
}

}  // namespace
}  // namespace prismfall
