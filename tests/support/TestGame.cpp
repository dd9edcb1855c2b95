// See TestGame.h.
#include "tests/support/TestGame.h"

#include <utility>

#include "screens/MainWindow.h"

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

}  // namespace prismfall
