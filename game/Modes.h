// The modes of the game, one row each. Code asks for the property it means, as in RowOf(main.GameMode).isScored, and
// for a mode by name only where no property distinguishes it.
#pragma once

#include <cstdint>

#include "game/VMain.h"

namespace prismfall {

enum class Track { None, Intro, Puzzle, Level };  // the music that starts when music is switched on

struct ModeRow {
    Mode mode = Mode::MainMenu;
    FieldRules rules = {};
    std::int16_t collisionLineY = 0;  // of the field
    bool isGame = false;              // beams are in play; otherwise it is a menu
    bool isPuzzle = false;            // a puzzle, which is over when its last beam is gone
    bool takesPresses = false;        // the player's presses reach beams
    bool spawnsBeams = false;         // new beams keep coming
    bool isScored = false;            // has points, levels, a place in the score table
    bool marksSolved = false;         // a cleared puzzle counts as solved
    Mode exitTo = Mode::MainMenu;     // where Exit and Esc lead; from the main menu they end the program
    Track track = Track::None;
    int clears = 1;  // of the surface on entering the screen; one would do, but the exact number is kept
};

const ModeRow& RowOf(Mode mode);

// Changes the mode and the field's rules, but nothing visible.
void EnterMode(VMain& main, Mode mode);

// Changes the mode and what the main window shows: the mode's elements, on a cleared surface. Leaves beams, music and
// the game's timers alone; starts the logo's flicker in the main menu and stops it elsewhere.
void EnterScreen(VMain& main, Mode mode);

// Tells the player in the main menu that an Arcade game would be slower than usual, and not enter the table.
void ShowPaceNote(VMain& main);

// Plays the music that belongs to the mode, if it has any.
void PlayMusicOfMode(const VMain& main);

// Switches all music on or off. Switching it on starts the track that belongs to the mode.
void SetMusic(VMain& main, bool value);

}  // namespace prismfall
