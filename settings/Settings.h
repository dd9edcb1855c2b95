// What is saved between runs: options, the score table, which puzzles have been solved.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/KeyMap.h"
#include "settings/ScoreTable.h"

namespace prismfall {

constexpr std::int16_t kPuzzleCount = 45;  // must match game/PuzzleTables.h

// What this run knows about the store. Other runs write to the same store, so a save must distinguish what this run has
// changed from what it merely read (see SettingsStore.h).
struct StoreMemory {
    std::map<std::pair<std::string, std::string>, std::string> texts;  // by section and key, as last read or saved
    // Since the score table was last read or saved:
    bool scoresCleared = false;
    std::vector<ScoreRow> gamesEntered;  // after the scores were cleared, if they were
};

// What the player may change about how the game looks, sounds and runs. Stored in a separate section, and only if not
// the default. Switches are 0 or 1.
struct Extras {
    std::int16_t Palette = 0;        // colours that colour-blind players can tell apart
    std::int16_t Patterns = 0;       // along the beams, a different one for each colour
    std::int16_t Rings = 0;          // around the head that a press would reach
    std::int16_t Lively = 0;         // sparks, glows, and a line to the next level
    std::int16_t Pace = 100;         // percent: 100, 80, 60 or 40
    std::int16_t SameBeams = 0;      // the next Arcade game repeats the last one's random numbers; not stored
    std::int16_t PauseAway = 0;      // pause when another window gets the focus
    std::int16_t MusicVolume = 100;  // percent: 100, 75, 50 or 25
    std::int16_t EffectsVolume = 100;
    std::int16_t Mute = 0;
    KeyMap Keys;
};

struct Settings {
    bool PlayFirstTime = false;   // the program has never run before
    std::int16_t StartLevel = 1;  // of an Arcade game
    bool Music = false;
    bool SoundEffects = false;
    ScoreTable Scores;
    std::array<bool, kPuzzleCount> SolvedPuzzles = {};  // puzzle n is entry n - 1
    Extras extras;
    StoreMemory Stored;
};

// Enters a finished game in the score table, below older equal ones, if its score is high enough. The last row is
// dropped. A score of 0 never enters.
void EnterGame(Settings& settings, const ScoreRow& game);

// Empties the score table.
void ForgetScores(Settings& settings);

}  // namespace prismfall
