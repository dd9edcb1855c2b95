// What the game leaves on the surface: a beam painted in steps is the beam painted whole, and a beam that has gone
// leaves nothing.
#include <gtest/gtest.h>

#include <random>

#include "game/GrowthTick.h"
#include "game/PlayerInput.h"
#include "game/RemovalTick.h"
#include "simulation/BeamControl.h"
#include "simulation/BeamRemoval.h"
#include "simulation/Playfield.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

constexpr std::uint32_t kBlackPixel = 0xFF000000;
constexpr std::uint32_t kBlueLinePixel = 0xFF0000FF;
constexpr std::int32_t kRed = 2;

TEST(DrawLine, InStepsPaintsWhatItPaintsWhole) {
    for (const std::int32_t color : {0, 1, 2, 3, 4}) {
        for (const int sideways : {-1, 1}) {
            const std::int32_t direction = sideways > 0 ? kRightwards : kLeftwards;
            TestGame whole, stepwise;
            DrawLine(whole.Play(kPuzzleGame), 300, 100, 300 + sideways * 90, 190, color, direction);
            VMain& main = stepwise.Play(kPuzzleGame);
            for (int x = 300, y = 100; y < 190; x += sideways, ++y)
                DrawLine(main, x, y, x + sideways, y + 1, color, direction);
            for (int y = 0; y < Surface::kHeight; ++y)
                for (int x = 0; x < Surface::kWidth; ++x)
                    ASSERT_EQ(whole.Machine().Painted().PixelAt(x, y), stepwise.Machine().Painted().PixelAt(x, y))
                        << x << ',' << y << " colour " << color << " way " << sideways;
        }
    }
}

// Whether a pixel may look like this when no beam is left. Column 672 is black in the background picture. Heads that
// have gone below 583 have cut into the ground, and the tail of a beam that comes back from the right wall exactly at
// the entry limit is set to x = 671, beyond what is repaired.
bool MayRemain(std::uint32_t pixel, std::int32_t mode, int x, int y) {
    if (pixel == Surface::kUnpainted) return true;
    const bool isField = x >= kLeftWall && x < kRightWall && y < kFloor;
    if (pixel == kBlackPixel) return isField || x == 672 || (x == 673 && y > 60 && y < 66) || (y >= kFloor && y < 588);
    return mode == kArcadeGame && pixel == kBlueLinePixel && y == 60 && x >= kLeftWall && x <= kRightWall;
}

std::string Remains(TestGame& game) {
    for (int y = 0; y < Surface::kHeight; ++y)
        for (int x = 0; x < Surface::kWidth; ++x)
            if (!MayRemain(game.Machine().Painted().PixelAt(x, y), game.Main().GameMode, x, y))
                return std::to_string(x) + ',' + std::to_string(y);
    return {};
}

// One beam's life: it grows, near a wall as often as not, is bent and speeded up now and then, and is destroyed.
class Life {
  public:
    Life(TestGame& owner, std::uint32_t seed) : game(owner), random(seed) {}

    void Live() {
        VMain& main = game.Main();
        game.AddBeam(300, 5, 300, 5, kRed, kStopped);  // begins too high to be painted; without it a puzzle were solved
        const int x = Chance(50) ? Number(21, 661) : Chance(50) ? Number(14, 40) : Number(645, 669);
        const int top = main.GameMode == kArcadeGame ? Number(20, 59) : Number(25, 300);
        CLine& beam = game.AddBeam(x, top, x, top, 1 + Number(0, 2));
        if (Chance(50)) beam.Direction = kLeftwards;
        const int ticks = Number(1, 600), bends = Chance(30) ? 0 : Number(1, 20);
        for (int tick = 0; tick < ticks && main.Lines.back()->YEnd < 582; ++tick) {
            ExtendLines(main);
            if (Chance(bends)) Press(MouseButton::Left);
            if (main.Lines.back()->YEnd < 60 && Chance(3)) Press(MouseButton::Right);  // refused, but it erases
        }
        if (Chance(15)) SpeedUpLine(main, *main.Lines.back(), false);
        RedrawLines(main);
    }

    void Die() {
        VMain& main = game.Main();
        CLine& struck = *main.Lines[static_cast<std::size_t>(Number(1, static_cast<int>(main.Lines.size()) - 1))];
        StartRemoval(main, struck, false);
        while (main.Lines.size() > 1) LineDeleter_Timer(main);
    }

  private:
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    bool Chance(int percent) { return Number(0, 99) < percent; }
    // Not while it stands on a wall, since a bend there leads out of the field.
    void Press(MouseButton button) {
        const CLine& beam = *game.Main().Lines.back();
        if (beam.XEnd < kLeftWall || beam.XEnd >= kRightWall) return;
        Form_MouseDown(game.Main(), button, beam.XEnd, beam.YEnd);
    }

    TestGame& game;
    std::mt19937 random;
};

TEST(Painting, ABeamThatHasGoneLeavesNothing) {
    for (const std::int32_t mode : {kArcadeGame, kPuzzleGame}) {
        TestGame game;
        game.Play(mode);
        for (std::uint32_t seed = 0; seed < 150; ++seed) {
            Life life(game, seed);
            life.Live();
            life.Die();
            ASSERT_EQ(Remains(game), "") << "mode " << mode << ", seed " << seed;
            ClearLines(game.Main());
        }
    }
}

}  // namespace
}  // namespace prismfall
