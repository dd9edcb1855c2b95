// How a game begins, as described by the head of its recording: the kind of game, and every number left from before
// that can affect the game.
#pragma once

#include <string>

#include "game/GameLog.h"
#include "game/VMain.h"
#include "recording/Recording.h"

namespace prismfall {

// The line with the kind and its numbers, then one for each timer that is on or has a changed interval, each ending in
// a newline. Numbers that have their start-up values are left out.
std::string StartLines(VMain& main, GameKind kind);

// Brings a program in its main menu to the state that the recording begins with, and begins the game. Returns why that
// is impossible, or nothing.
std::string StartRecordedGame(VMain& main, const Recording& recording);

}  // namespace prismfall
