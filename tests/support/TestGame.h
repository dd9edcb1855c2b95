// A whole game on a headless machine, for tests.
#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <string_view>

#include "game/VMain.h"
#include "tests/support/BeamWords.h"
#include "tests/support/TestMachine.h"

namespace prismfall {

// The mode called "puzzle", "arcade" or "replay".
Mode ModeNamed(std::string_view name);

class TestGame {
  public:
    // A machine without a running program; settings can be stored before Load. Effects, music and the first run are as
    // with an empty store, unless QuietStore is called first.
    TestGame() : machine(printed), main(std::make_unique<VMain>(machine)) {}
    // A quiet program with a game in `mode` in play, on a playfield with only the given beams; no timer runs.
    explicit TestGame(Mode mode, std::string_view beams = {});

    TestMachine& Machine() { return machine; }
    VMain& Main() { return *main; }
    // A beam by its position in Lines, from 1.
    CLine& Beam(std::size_t place) { return *main->field.Lines.at(place - 1); }

    // Starts the program into its main menu.
    VMain& Load();
    // Stores settings with the first run over and the music off.
    TestGame& QuietStore();
    // A press and a click of the left button on an element of the main window.
    void Click(std::string_view element);

    // Adds the test's own text.
    void Print(std::string_view text) { printed << text; }
    // The lines printed since the last call.
    std::string TakePrinted();

  protected:
    std::ostringstream printed;
    TestMachine machine;
    std::unique_ptr<VMain> main;
};

}  // namespace prismfall
