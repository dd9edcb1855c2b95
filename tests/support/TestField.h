// A playfield on a headless machine, for the tests of the floors below game/, and beams in words.
#pragma once

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

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

class TestField {
  public:
    // Beams in words (see InShort) on a playfield of `gameMode` in play, with effects and without music. No timer runs.
    explicit TestField(std::int32_t gameMode, std::string_view beams = {}) : TestField() { Play(gameMode, beams); }

    TestMachine& Machine() { return machine; }
    VMain& Main() { return *main; }

    // A beam by its place in Lines, from 1.
    CLine& Beam(std::size_t place) { return *main->Lines.at(place - 1); }
    // Appends beams in words to Lines.
    void Add(std::string_view beams);

    // Something of the test's own between the lines.
    void Print(std::string_view text) { printed << text; }
    // The lines printed since the last call.
    std::string TakePrinted();

  protected:
    TestField() : machine(printed), main(std::make_unique<VMain>(machine)) {}
    void Play(std::int32_t gameMode, std::string_view beams);

    std::ostringstream printed;
    TestMachine machine;
    std::unique_ptr<VMain> main;
};

// A table in words: a line a row, its cells between bars, without the blanks around them.
std::vector<std::vector<std::string>> Rows(std::string_view table);

// The GameMode called "puzzle", "arcade" or "replay".
std::int32_t ModeNamed(std::string_view name);

// A beam in words: "100,300 110,310 blue" is tail, head and colour of a live beam that grows; then "left" or "right" if
// the ends do not tell the direction, "stopped" or "waiting", the thickness if it is not 5, "dying" for one that is
// Deleted, "fast" for one that a speeded beam has struck, and "#4" for the PuzzleLineNr.
std::string InShort(const CLine& beam);

// All of Lines, "; " between two beams.
std::string InShort(const VMain& main);

// Beams by their places in Lines, from 1: "1 3"; 0 for one that is not there.
std::string Places(const VMain& main, const std::vector<CLine*>& beams);

}  // namespace prismfall
