// A whole game on a headless machine, for tests: the state, the machine, and what it has printed since it was last
// asked.
#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "platform/headless/HeadlessPlatform.h"
#include "simulation/VMain.h"

namespace prismfall {

class TestGame {
  public:
    // A machine without a program; settings can be put before Load. Effects, music and the first run are as an empty
    // store has them, unless QuietStore is called first.
    TestGame() : machine(printed) {}

    // Starts the program into its main menu.
    VMain& Load();

    // A store in which the first run is over and the music is off.
    TestGame& QuietStore();

    // The lines printed since the last call.
    std::string TakePrinted();

    HeadlessPlatform& Machine() { return machine; }
    VMain& Main() { return *main; }

    // Appends a live beam to Lines.
    CLine& AddBeam(int xStart, int yStart, int xEnd, int yEnd, std::int32_t color, std::int32_t runMode = kGrowing);

    // A press and a click of the left button on an element of the main window.
    void Click(std::string_view element);

  private:
    std::ostringstream printed;
    HeadlessPlatform machine;
    std::unique_ptr<VMain> main;
};

}  // namespace prismfall
