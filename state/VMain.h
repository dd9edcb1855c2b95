// The state of the whole game. There is one for a run of the program, and every topic is a pair of files with free
// functions on it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/Platform.h"
#include "platform/Window.h"
#include "state/BeamStore.h"
#include "state/CLine.h"
#include "state/MainElements.h"
#include "state/Numbers.h"
#include "state/ScoreTable.h"
#include "state/StoreMemory.h"

namespace prismfall {

constexpr std::int32_t kMainMenu = 0;  // GameMode
constexpr std::int32_t kPuzzleMenu = 1;
constexpr std::int32_t kPuzzleGame = 2;
constexpr std::int32_t kArcadeGame = 3;
constexpr std::int32_t kSolutionReplay = 4;

constexpr std::int16_t kPuzzleCount = 45;

// A flat row of the puzzle catalogue: the number of records, then the records (see game/PuzzleCatalogue.h).
using CatalogueEntry = std::span<const std::int16_t>;
using Catalogue = std::array<CatalogueEntry, kPuzzleCount>;

struct VMain : MainElements {
    explicit VMain(Platform& machine) : platform(machine) {}

    Platform& platform;
    Window window;

    // --- Beams. The order of Lines is the order of growth and of collision tests, so it settles ties.
    std::vector<CLine*> Lines;       // every beam of the game, live and dying
    std::vector<CLine*> DyingLines;  // those struck directly; one can stand here twice
    BeamStore Beams;                 // owns them
    BeamStore LookAheadBeams;        // what a look-ahead makes, gone when it ends
    std::int16_t CollisionLineY = 0;
    std::int16_t GrowthToggle = 0;  // flips at every growth tick, never reset

    // --- The last collisions of a tick, for the score.
    std::int16_t MultiSumX = 0;
    std::int16_t MultiSumY = 0;
    std::int32_t MultiColor = 0;
    std::int32_t MultiDirection = 0;
    std::int16_t MultiTicks = 0;  // of the pop-up so far
    std::int16_t SweepY = 0;      // lower edge of the grey band at a game's end

    // --- What is played.
    std::int32_t GameMode = kMainMenu;
    Boolean GameRunning;
    Boolean PuzzleWaiting;  // a puzzle is laid out and waits for CmdStart
    Boolean TutorialActive;
    std::int16_t TutorialStep = 0;  // the tutorial picture that stands, 0 for none
    float LastClickX = 0;           // of the last press, game pixels
    float LastClickY = 0;

    std::int16_t Score = 0;
    std::int16_t HighScore = 0;
    std::int16_t Level = 1;
    std::int16_t LevelLineCount = 0;  // collisions since the last level rise
    std::int16_t GameStartLevel = 0;

    std::int16_t CurrentPuzzle = 1;  // 1 to kPuzzleCount
    std::int16_t PuzzlePage = 1;     // of the puzzle menu, 1 to 5
    Catalogue Puzzles;
    Catalogue PuzzleSolutions;

    // --- What is kept from run to run.
    Boolean PlayFirstTime;
    std::int16_t StartLevel = 1;
    Boolean Music;
    Boolean SoundEffects;
    ScoreTable Scores;
    std::array<Boolean, kPuzzleCount + 1> SolvedPuzzles;  // puzzle n is entry n - 1; the last is not used
    StoreMemory Stored;

    // --- The dialogs, each made at its first use.
    std::unique_ptr<Window> VHighScore2;
    std::unique_ptr<Window> VPuzzleResult;
    std::unique_ptr<Window> VAbout;
    std::unique_ptr<Window> VOptions;
};

}  // namespace prismfall
