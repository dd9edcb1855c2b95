// See TestGame.h.
#include "tests/support/TestGame.h"

#include <array>
#include <utility>

#include "game/MainWindow.h"
#include "simulation/Playfield.h"

namespace prismfall {

VMain& TestGame::Load() {
    machine.BeginRun();
    main = std::make_unique<VMain>(machine);
    MakeMainWindow(*main);
    return *main;
}

TestGame& TestGame::QuietStore() {
    machine.PutSetting("General", "PlayFirstTime", "False");
    machine.PutSetting("General", "Music", "False");
    return *this;
}

VMain& TestGame::Play(std::int32_t gameMode) {
    QuietStore().Load();
    for (std::size_t timer = 0; timer < kTimerCount; ++timer) machine.StopTimer(static_cast<Timer>(timer));
    machine.SurfaceClear();
    main->GameMode = gameMode;
    main->GameRunning = true;
    main->GrowthToggle = 1;
    main->CollisionLineY = gameMode == kArcadeGame ? kArcadeCollisionLineY : kPuzzleCollisionLineY;
    TakePrinted();
    return *main;
}

std::string TestGame::TakePrinted() {
    std::string lines = std::move(printed).str();
    printed.str({});
    return lines;
}

CLine& TestGame::AddBeam(int xStart, int yStart, int xEnd, int yEnd, std::int32_t color, std::int32_t runMode) {
    CLine& beam = main->Beams.Make();
    beam.XStart = Saturated(xStart);
    beam.YStart = Saturated(yStart);
    beam.XEnd = Saturated(xEnd);
    beam.YEnd = Saturated(yEnd);
    beam.Direction = xEnd >= xStart ? kRightwards : kLeftwards;
    beam.Color = color;
    beam.RunMode = runMode;
    beam.Thicknes = kLiveThicknes;
    main->Lines.push_back(&beam);
    return beam;
}

void TestGame::Click(std::string_view element) {
    Element& button = main->window[element];
    main->window.on.elementDown(button, MouseButton::Left, 0, 0);
    main->window.on.elementClick(button);
}

std::string InShort(const CLine& beam) {
    constexpr std::array<const char*, 3> kRunModes = {" stopped ", " growing ", " waiting "};
    std::ostringstream text;
    text << beam.XStart << ',' << beam.YStart << ' ' << beam.XEnd << ',' << beam.YEnd
         << (beam.Direction == kRightwards ? " right" : " left") << kRunModes.at(static_cast<std::size_t>(beam.RunMode))
         << beam.Thicknes << (beam.Deleted ? " dying" : "") << (beam.DeletedByFastLine ? " fast" : "");
    return text.str();
}

std::string InShort(const VMain& main) {
    std::string text;
    for (const CLine* beam : main.Lines) text += InShort(*beam) + '\n';
    return text;
}

}  // namespace prismfall
