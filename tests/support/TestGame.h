// A whole game on a headless machine, for tests: the state, the machine, and what it has printed since it was last
// asked.
#pragma once

#include <functional>
#include <memory>
#include <sstream>
#include <string>

#include "backends/headless/HeadlessPlatform.h"
#include "state/VMain.h"

namespace prismfall {

// Lets a test look and act while a dialog stands or a handler yields.
class TestMachine : public HeadlessPlatform {
  public:
    using HeadlessPlatform::HeadlessPlatform;

    std::function<void(Window& dialog)> onDialog;  // before the queued answers
    std::function<void()> onYield;

    bool ShowModally(Window& dialog) override {
        if (onDialog) onDialog(dialog);
        return HeadlessPlatform::ShowModally(dialog);
    }
    void LetEventsRun() override {
        if (onYield) onYield();
        HeadlessPlatform::LetEventsRun();
    }
};

class TestGame {
  public:
    // A machine without a program; settings can be put before Load. Effects, music and the first run are as an empty
    // store has them, unless QuietStore is called first.
    TestGame() : machine(printed) {}

    // Starts the program into its main menu.
    VMain& Load();

    // Loads with a quiet store and puts an empty playfield of `gameMode` in play: nothing painted, no timer running,
    // and a toggle with which the next growth tick moves the beams of the entry zone too.
    VMain& Play(std::int32_t gameMode);

    // A store in which the first run is over and the music is off.
    TestGame& QuietStore();

    // The lines printed since the last call.
    std::string TakePrinted();

    TestMachine& Machine() { return machine; }
    VMain& Main() { return *main; }

    // Appends a live beam to Lines.
    CLine& AddBeam(int xStart, int yStart, int xEnd, int yEnd, std::int32_t color, std::int32_t runMode = kGrowing);

    // A press and a click of the left button on an element of the main window.
    void Click(std::string_view element);

  private:
    std::ostringstream printed;
    TestMachine machine;
    std::unique_ptr<VMain> main;
};

// A beam in short: "100,300 110,310 right growing 5" is tail, head, direction, RunMode and Thicknes; then "dying" for
// one that is Deleted and "fast" for one that a speeded beam has struck.
std::string InShort(const CLine& beam);

// All of Lines, a beam a line.
std::string InShort(const VMain& main);

}  // namespace prismfall
