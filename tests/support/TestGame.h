// A whole game on a headless machine, for tests.
#pragma once

#include "tests/support/TestField.h"

namespace prismfall {

class TestGame : public TestField {
  public:
    // A machine without a program; settings can be put before Load. Effects, music and the first run are as an empty
    // store has them, unless QuietStore is called first.
    TestGame() = default;
    // A quiet program with beams in words on an empty playfield of `gameMode`, in play: no timer runs.
    explicit TestGame(std::int32_t gameMode, std::string_view beams = {});

    // Starts the program into its main menu.
    VMain& Load();

    // A store in which the first run is over and the music is off.
    TestGame& QuietStore();

    // A press and a click of the left button on an element of the main window.
    void Click(std::string_view element);
};

}  // namespace prismfall
