// What the modes of the game are like: one row for each. Code asks for the property that it means, as in
// RowOf(main.GameMode).isScored, and for a mode by its name only where nothing else tells it apart.
#pragma once

#include <cstdint>

#include "game/VMain.h"

namespace prismfall {

enum class Track { None, Intro, Puzzle, Level };  // the music that starts when it is switched on

struct ModeRow {
    Mode mode = Mode::MainMenu;
    FieldRules rules = {};
    std::int16_t collisionLineY = 0;  // of a field that is played
    bool isGame = false;              // beams are in play; otherwise it is a menu
    bool isPuzzle = false;            // a laid-out puzzle, which is over when its last beam has gone
    bool takesPresses = false;        // the player's presses reach beams
    bool spawnsBeams = false;         // beams come by themselves
    bool isScored = false;            // points, levels, a place in the score table
    bool marksSolved = false;         // a puzzle that is cleared counts as solved
    Mode exitTo = Mode::MainMenu;     // where Exit and Esc lead; from the main menu they end the program
    Track track = Track::None;
    int clears = 1;  // of the surface, when the screen is entered; one would do, but each is part of what the game does
};

const ModeRow& RowOf(Mode mode);

// Changes the mode and the field's rules, and nothing that can be seen.
void EnterMode(VMain& main, Mode mode);

// Changes the mode and what the main window shows: the elements that belong to the mode, on a cleared surface. Beams,
// music and the game's timers are left as they are; the logo flickers in the main menu.
void EnterScreen(VMain& main, Mode mode);

// Says in the main menu that an Arcade game would be slower than usual, and enter no table.
void ShowPaceNote(VMain& main);

// Plays the music that belongs to the mode, if it has any.
void PlayMusicOfMode(const VMain& main);

// Switches the music as a whole. Switched on, it starts the track that belongs to the mode.
void SetMusic(VMain& main, bool value);

}  // namespace prismfall
