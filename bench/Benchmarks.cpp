// What the game does most, each paired with its baseline (BareField). `bench/ratios` runs this and compares.
#include <benchmark/benchmark.h>

#include <array>
#include <ostream>

#include "backends/headless/HeadlessPlatform.h"
#include "bench/BareField.h"
#include "game/GrowthTick.h"
#include "game/Modes.h"
#include "game/RunForward.h"
#include "game/StateDump.h"
#include "platform/Numbers.h"
#include "recording/Recorder.h"
#include "simulation/BeamRemoval.h"
#include "simulation/CollisionDetection.h"
#include "simulation/Playfield.h"

namespace prismfall::bench {
namespace {

constexpr int kTicksAtATime = 100;
constexpr std::int16_t kFastBeamTop = 70;

// The same beams, once as a game and once as bare arrays.
struct Pair {
    std::ostream nowhere{nullptr};
    HeadlessPlatform machine{nowhere};
    VMain main{machine};
    BareField bare;
    Surface surface;
    std::vector<PixelBox> damage;

    Pair() {
        EnterMode(main, Mode::ArcadeGame);
        main.field.CollisionLineY = RowOf(main.GameMode).collisionLineY;
    }

    void Add(int tailX, int tailY, int headX, int headY, int color, bool grows) {
        CLine& beam = main.field.Beams.Make();
        beam.XStart = Saturated(tailX);
        beam.YStart = Saturated(tailY);
        beam.XEnd = Saturated(headX);
        beam.YEnd = Saturated(headY);
        beam.Direction = headX >= tailX ? Heading::Rightwards : Heading::Leftwards;
        beam.Color = static_cast<BeamColor>(color);
        beam.RunMode = grows ? Motion::Growing : Motion::Stopped;
        beam.Thicknes = kLiveThicknes;
        main.field.Lines.push_back(&beam);
        bare.Add(tailX, tailY, headX, headY, color, grows);
    }

    // Puts the heads back where they were.
    void Rewind(std::size_t beam, int headX, int headY) {
        main.field.Lines[beam]->XEnd = bare.xEnd[beam] = static_cast<std::int16_t>(headX);
        main.field.Lines[beam]->YEnd = bare.yEnd[beam] = static_cast<std::int16_t>(headY);
    }

    // The work of one frame.
    void TakeDamage() {
        machine.Painted().TakeDamage(damage);
        surface.TakeDamage(damage);
    }
};

// Thirty growing beams among sixty, in separate lanes, so that none hits another.
struct BusyField : Pair {
    BusyField() {
        for (int i = 0; i < 60; ++i) Add(HeadX(i) - 20, 80, HeadX(i), 100, i % 4, i % 2 == 0);
    }
    static int HeadX(int beam) { return 40 + 8 * beam; }
    void RewindAll() {
        for (int i = 0; i < 60; ++i) Rewind(static_cast<std::size_t>(i), HeadX(i), 100);
    }
};

void Tick(benchmark::State& state) {
    BusyField pair;
    for (auto _ : state) {
        for (int tick = 0; tick < kTicksAtATime; ++tick) {
            ExtendLines(pair.main);
            pair.TakeDamage();
        }
        if (pair.main.field.Lines[58]->YEnd != 100 + kTicksAtATime) state.SkipWithError("a beam was stopped");
        pair.RewindAll();
    }
    state.SetItemsProcessed(state.iterations() * kTicksAtATime);
}
BENCHMARK(Tick);

void TickBaseline(benchmark::State& state) {
    BusyField pair;
    for (auto _ : state) {
        for (int tick = 0; tick < kTicksAtATime; ++tick) {
            pair.bare.Tick(pair.surface);
            pair.TakeDamage();
        }
        pair.RewindAll();
    }
    state.SetItemsProcessed(state.iterations() * kTicksAtATime);
}
BENCHMARK(TickBaseline);

// The same ticks by the timer, recorded or not. Five seconds are 67 ticks, so the recorder's checks are among them.
struct TimedField : BusyField {
    TimedField() {
        machine.Timers().SetTickHandler([this](Timer) { ExtendLines(main); });
        machine.Timers().SetInterval(Timer::LineExtender, kInterval);
        machine.Timers().Start(Timer::LineExtender);
    }
    void Run(benchmark::State& state) {
        for (auto _ : state) {
            for (int tick = 0; tick < kTicksAtATime; ++tick) {
                machine.Run(kInterval);
                TakeDamage();
            }
            RewindAll();
        }
        state.SetItemsProcessed(state.iterations() * kTicksAtATime);
    }
    static constexpr int kInterval = 75;  // milliseconds
};

void RecordedTick(benchmark::State& state) {
    TimedField field;
    Recorder recorder(field.machine.Timers(), [&](Printer& out) { PrintDump(out, field.main); });
    field.machine.Timers().SetListener(&recorder);
    recorder.Begin("recording 1\n");
    field.Run(state);
    if (recorder.Text().find("\ncheck ") == std::string::npos) state.SkipWithError("no check was recorded");
    field.machine.Timers().SetListener(nullptr);
}
BENCHMARK(RecordedTick);

void RecordedTickBaseline(benchmark::State& state) { TimedField().Run(state); }
BENCHMARK(RecordedTickBaseline);

// A thousand beams all over the field, and test points that hit none of them: every search runs to the end.
struct CrowdedField : Pair {
    struct Point {
        std::int16_t x, y;
    };
    std::array<Point, 64> points{};

    CrowdedField() {
        for (int i = 0; i < 1000; ++i) {
            const int x = 60 + i * 97 % 550, y = 70 + i * 61 % 450, length = 5 + i * 13 % 40;
            Add(x, y, i % 3 == 0 ? x - length : x + length, y + length, i % 4, false);
        }
        std::size_t count = 0;
        for (int i = 0; count < points.size(); ++i) {
            const auto x = static_cast<std::int16_t>(20 + i * 211 % 640),
                       y = static_cast<std::int16_t>(70 + i * 173 % 500);
            if (FindCollision(main.field, x, y, 1000, Heading::Leftwards, false) == nullptr) points[count++] = {x, y};
        }
    }
};

void FindCollisionIn1000(benchmark::State& state) {
    const CrowdedField pair;
    for (auto _ : state)
        for (const auto& [x, y] : pair.points)
            benchmark::DoNotOptimize(FindCollision(pair.main.field, x, y, 1000, Heading::Leftwards, false));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(pair.points.size()));
}
BENCHMARK(FindCollisionIn1000);

void FindCollisionIn1000Baseline(benchmark::State& state) {
    const CrowdedField pair;
    for (auto _ : state)
        for (const auto& [x, y] : pair.points) benchmark::DoNotOptimize(pair.bare.FindNear(x, y, 1000, -1));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(pair.points.size()));
}
BENCHMARK(FindCollisionIn1000Baseline);

// One beam that crosses the whole field and passes sixty others.
struct OpenField : Pair {
    OpenField() {
        for (int i = 0; i < 60; ++i) Add(500 + i % 3, 80 + i, 620 + i % 3, 200 + i, i % 4, false);
        Add(20, 67, 23, kFastBeamTop, 1, true);
    }
    void RewindFast() {
        Rewind(60, 23, kFastBeamTop);
        TakeDamage();
    }
};

void SpeedUp(benchmark::State& state) {
    OpenField pair;
    for (auto _ : state) {
        RunForward(pair.main, *pair.main.field.Lines[60]);
        if (pair.main.field.Lines[60]->YEnd != kFloor - 1) state.SkipWithError("the beam was stopped");
        pair.RewindFast();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SpeedUp);

void SpeedUpBaseline(benchmark::State& state) {
    OpenField pair;
    for (auto _ : state) {
        pair.bare.RunDown(pair.surface, 60);
        pair.RewindFast();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SpeedUpBaseline);

struct FullField : Pair {
    FullField() {
        for (int i = 0; i < 60; ++i) Add(30 + 3 * i, 80, 430 + 3 * i, 480, i % 4, false);
    }
};

void Redraw(benchmark::State& state) {
    FullField pair;
    for (auto _ : state) {
        RedrawLines(pair.main.field);
        pair.TakeDamage();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Redraw);

void RedrawBaseline(benchmark::State& state) {
    FullField pair;
    for (auto _ : state) {
        pair.bare.Paint(pair.surface);
        pair.TakeDamage();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(RedrawBaseline);

}  // namespace
}  // namespace prismfall::bench
