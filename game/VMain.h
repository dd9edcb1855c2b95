// The state of the game, one per run of the program; each topic in this folder is a pair of files with free functions
// that work on it. The layers below have their own states and know only those.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "audio/Audio.h"
#include "game/GameLog.h"
#include "game/Mode.h"
#include "platform/Platform.h"
#include "platform/Window.h"
#include "screens/Dialogs.h"
#include "screens/MainElements.h"
#include "settings/Settings.h"
#include "simulation/Field.h"

namespace prismfall {

// The numbers of the game in progress, and what it leaves for the next one.
struct GameNumbers {
    Mode GameMode = Mode::MainMenu;  // changed only by EnterMode
    bool GameRunning = false;
    bool PuzzleWaiting = false;  // a puzzle is laid out and waits for CmdStart
    bool TutorialActive = false;
    std::int16_t TutorialStep = 0;  // the tutorial picture that is shown, 0 for none
    float LastClickX = 0;           // of the last press, game pixels
    float LastClickY = 0;

    std::int16_t Score = 0;
    std::int16_t HighScore = 0;
    std::int16_t Level = 1;
    std::int16_t LevelLineCount = 0;  // collisions since the last level rise
    std::int16_t GameStartLevel = 0;

    std::int16_t CurrentPuzzle = 1;  // 1 to kPuzzleCount
    std::int16_t PuzzlePage = 1;     // of the puzzle menu, 1 to kPageCount

    // --- The pop-up of a collision of several beams.
    BeamColor MultiColor = BeamColor::Blue;  // of the last collision in a growth tick, single or not
    Heading MultiDirection = Heading::Leftwards;
    std::int16_t MultiTicks = 0;  // since it appeared

    std::int16_t SweepY = 0;  // lower edge of the grey band at a game's end
};

struct VMain : MainElements, GameNumbers {
    explicit VMain(Platform& machine)
        : platform(machine),
          field(machine, machine),
          audio{machine, machine, settings},
          dialogs{machine, window, audio} {}

    Platform& platform;
    Window window;
    Field field;
    Settings settings;
    Audio audio;
    DialogHost dialogs;
    GameLog* log = &noGameLog;

    std::optional<std::uint64_t> ArcadeSeed;  // of the last Arcade game that began with one
    bool EntersTable = true;                  // the score of the game in progress may enter the table
    bool IsPlayedOn = false;                  // it was taken over from a recording: nothing of it is kept

    // Shows the game behind a row of the score table; returns whether it is kept. Empty where no games are kept.
    std::function<bool(const ScoreRow& row)> watchScore;

    // --- The dialogs, each built on first use.
    std::unique_ptr<Window> VHighScore2;
    std::unique_ptr<Window> VPuzzleResult;
    std::unique_ptr<Window> VAbout;
    std::unique_ptr<Window> VOptions;
    std::unique_ptr<Window> VExtras;
};

}  // namespace prismfall
