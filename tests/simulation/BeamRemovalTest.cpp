// How beams thin out with their chains, what follows when they are gone, and what keeps them in memory.
#include "simulation/BeamRemoval.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "game/RemovalTick.h"
#include "simulation/Playfield.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

constexpr std::int32_t kBlue = 0;
constexpr std::int32_t kGreen = 1;

void Link(CLine& a, CLine& b) {
    a.LinkedLines.push_back(&b);
    b.LinkedLines.push_back(&a);
}

TEST(DeleteLine, GoesThroughTheChainInOneColour) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    CLine& first = game.AddBeam(100, 100, 150, 150, kBlue);
    CLine& struck = game.AddBeam(150, 150, 100, 200, kBlue);
    CLine& last = game.AddBeam(100, 200, 150, 250, kBlue, kStopped);
    CLine& other = game.AddBeam(150, 250, 100, 300, kGreen);
    CLine& beyond = game.AddBeam(100, 300, 150, 350, kBlue);
    Link(first, struck);
    Link(struck, last);
    Link(last, other);
    Link(other, beyond);
    Link(last, first);  // and round in a ring
    last.DeletedByFastLine = true;
    main.Level = 3;
    game.Machine().SetPainting(true);
    DeleteLine(main, struck, 4, true);
    EXPECT_EQ(
        InShort(main),
        "100,100 150,150 right stopped 4 dying\n150,150 100,200 left stopped 4 dying fast\n"
        "100,200 150,250 right stopped 4 dying\n150,250 100,300 left growing 5\n100,300 150,350 right growing 5\n");
    EXPECT_EQ(game.TakePrinted(),
              "line 150 150 100 200 0x000000 5\nline 150 150 100 200 0xFF0000 4\n"
              "line 100 100 150 150 0x000000 5\nline 100 100 150 150 0xFF0000 4\n"
              "line 100 200 150 250 0x000000 5\nline 100 200 150 250 0xFF0000 4\n");
    EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineExtender), 48) << "this is how a level reaches the timers";
    DeleteLine(main, struck, 0, false);
    EXPECT_EQ(game.TakePrinted(),
              "line 150 150 100 200 0x000000 5\nline 100 100 150 150 0x000000 5\nline 100 200 150 250 0x000000 5\n");
}

TEST(DeleteLine, StandsAChainOfAHundredThousandBends) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    CLine* previous = &game.AddBeam(300, 300, 301, 301, kBlue);
    for (int bend = 0; bend < 100'000; ++bend) {
        CLine& next = game.AddBeam(300, 300, 301, 301, kBlue);
        Link(*previous, next);
        previous = &next;
    }
    DeleteLine(main, *main.Lines[50'000], 4, false);
    EXPECT_TRUE(AllLinesDeleted(main));
}

TEST(RepairWalls, OneStripBesideTheFirstEndThatIsNear) {
    struct Case {
        int tailX, headX;
        const char* restored;
    };
    constexpr Case kCases[] = {{121, 21, ""},
                               {120, 20, "restore 7 390 14 410\n"},
                               {20, 120, "restore 7 290 14 310\n"},
                               {19, 20, "restore 7 291 14 311\n"},
                               {563, 663, ""},
                               {564, 664, "restore 665 390 672 410\n"},
                               {664, 564, "restore 665 290 672 310\n"},
                               {20, 664, "restore 7 290 14 310\n"}};
    for (const Case& c : kCases) {
        TestGame game;
        VMain& main = game.Play(kPuzzleGame);
        const CLine& beam = game.AddBeam(c.tailX, 300, c.headX, 300 + std::abs(c.headX - c.tailX), kBlue);
        game.Machine().SetPainting(true);
        RepairWalls(main, beam);
        EXPECT_EQ(game.TakePrinted(), c.restored) << c.tailX << ' ' << c.headX;
    }
}

TEST(LineDeleter, ThinsTheWholeChainAndTakesItOut) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    CLine& struck = game.AddBeam(100, 100, 150, 150, kBlue);
    CLine& linked = game.AddBeam(150, 150, 100, 200, kBlue);
    CLine& stopped = game.AddBeam(300, 100, 350, 150, kGreen, kStopped);
    Link(struck, linked);
    linked.StoppingLines.push_back(&stopped);
    StartRemoval(main, struck, false);
    for (const float thicknes : {3.0F, 2.0F, 1.0F}) {
        game.Machine().SetPainting(true);
        LineDeleter_Timer(main);
        EXPECT_EQ(linked.Thicknes, thicknes);
        EXPECT_EQ(game.TakePrinted().find("0x008000"), std::string::npos) << "nothing else is painted again";
    }
    LineDeleter_Timer(main);
    EXPECT_EQ(InShort(main), "300,100 350,150 right growing 5\n") << "what it had stopped grows on at once";
    EXPECT_TRUE(main.DyingLines.empty());
    EXPECT_EQ(game.TakePrinted(),
              "line 100 100 150 150 0x000000 5\nline 150 150 100 200 0x000000 5\n"
              "line 14 60 670 60 0xFF0000 1\n"
              "line 300 100 350 150 0x008000 5\nline 300 98 352 150 0x00FF00 1\nline 298 100 350 152 0x000400 1\n");
}

TEST(LineDeleter, ABeamThatStandsTwiceLosesTwoSteps) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    game.AddBeam(400, 400, 410, 410, kBlue, kStopped);
    CLine& twice = game.AddBeam(100, 100, 150, 150, kBlue);
    CLine& once = game.AddBeam(300, 100, 350, 150, kBlue);
    StartRemoval(main, twice, false);
    StartRemoval(main, once, false);
    main.DyingLines.push_back(&twice);
    for (int i = 0; i < 100; ++i) main.Beams.Make();  // enough that it pays to free those out of reach
    LineDeleter_Timer(main);
    EXPECT_EQ(twice.Thicknes, 2);
    EXPECT_EQ(once.Thicknes, 3);
    LineDeleter_Timer(main);
    EXPECT_EQ(main.Lines.size(), 2U) << "gone";
    EXPECT_EQ(main.Beams.Count(), 3U) << "but kept while it stands among the dying";
    EXPECT_EQ(main.DyingLines, (std::vector<CLine*>{&twice, &once}));
    LineDeleter_Timer(main);
    EXPECT_EQ(main.DyingLines, std::vector<CLine*>{&once});
    LineDeleter_Timer(main);
    EXPECT_TRUE(main.DyingLines.empty());
    EXPECT_EQ(InShort(main), "400,400 410,410 right stopped 5\n");
}

TEST(LineDeleter, RestartsBeamsWhateverTheirState) {
    TestGame game;
    VMain& main = game.Play(kArcadeGame);
    CLine& gone = game.AddBeam(100, 100, 150, 150, kBlue);
    CLine& dying = game.AddBeam(300, 100, 350, 150, kGreen);
    CLine& waiting = game.AddBeam(500, 100, 550, 150, kGreen, kWaiting);
    CLine* leftEarlier = &game.AddBeam(600, 100, 650, 150, kGreen, kStopped);
    main.Lines.pop_back();
    gone.StoppingLines = {&dying, &waiting, leftEarlier};
    StartRemoval(main, dying, false);
    gone.Thicknes = 0;
    LineDeleter_Timer(main);
    EXPECT_EQ(InShort(main), "300,100 350,150 right growing 3 dying\n500,100 550,150 right growing 5\n");
    LineDeleter_Timer(main);
    EXPECT_EQ(dying.RunMode, kStopped) << "the next step of its removal stops it again";
}

TEST(LineDeleter, OnlyARemovalSolvesAPuzzle) {
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    LineDeleter_Timer(main);
    EXPECT_TRUE(main.GameRunning) << "empty, and nothing has gone";
    StartRemoval(main, game.AddBeam(100, 100, 150, 150, kBlue), false);
    for (int tick = 0; tick < 4; ++tick) LineDeleter_Timer(main);
    EXPECT_FALSE(main.GameRunning);
}

TEST(RedrawLines, PaintsWhatBeginsBelowTheBlueLine) {
    struct Case {
        std::int32_t mode;
        int tailY;
        float thicknes;
        bool isPainted;
    };
    constexpr Case kCases[] = {{kArcadeGame, 60, 5, true},  {kArcadeGame, 59, 5, false}, {kPuzzleGame, 20, 5, true},
                               {kPuzzleGame, 19, 5, false}, {kPuzzleGame, 90, 1, true},  {kPuzzleGame, 90, 0, false}};
    for (const Case& c : kCases) {
        TestGame game;
        VMain& main = game.Play(c.mode);
        game.AddBeam(100, c.tailY, 150, c.tailY + 50, kGreen).Thicknes = c.thicknes;
        RedrawLines(main);
        const Surface& surface = game.Machine().Painted();
        EXPECT_EQ(surface.PixelAt(110, c.tailY + 10) == 0xFF008000U, c.isPainted) << c.tailY << ' ' << c.thicknes;
        EXPECT_EQ(surface.PixelAt(669, 60) == 0xFF0000FFU, c.mode == kArcadeGame) << "the blue line";
    }
}

void Reach(CLine* beam, std::set<const CLine*>& reached) {
    if (!reached.insert(beam).second) return;
    for (CLine* next : beam->LinkedLines) Reach(next, reached);
    for (CLine* next : beam->StoppingLines) Reach(next, reached);
}

TEST(BeamStore, FreesWhatIsOutOfReachAndNothingElse) {
    std::mt19937 random(5);
    std::uniform_int_distribution<std::size_t> any(0, 299);
    BeamStore store;
    std::vector<CLine*> all, first, second;
    for (std::int16_t i = 0; i < 300; ++i) {
        all.push_back(&store.Make());
        all.back()->XStart = i;
    }
    for (int i = 0; i < 200; ++i) Link(*all[any(random)], *all[any(random)]);
    for (int i = 0; i < 60; ++i) all[any(random)]->StoppingLines.push_back(all[any(random)]);
    for (int i = 0; i < 20; ++i) first.push_back(all[any(random)]);
    for (int i = 0; i < 5; ++i) second.push_back(all[any(random)]);
    for (int round = 0; round < 2; ++round) {  // the second time without the second list
        std::set<const CLine*> reached;
        for (CLine* beam : first) Reach(beam, reached);
        for (CLine* beam : second) Reach(beam, reached);
        ASSERT_GT(reached.size(), 64U + 2 * first.size()) << "enough to be worth it";
        store.KeepReachable(first, second);
        EXPECT_EQ(store.Count(), reached.size());
        for (const CLine* beam : reached) EXPECT_EQ(all[static_cast<std::size_t>(beam->XStart)], beam);
        second.clear();
    }
}

}  // namespace
}  // namespace prismfall
