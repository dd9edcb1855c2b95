// How a game begins, as the head of its recording tells it: the kind of game, and every number that the program has
// from before and that the game can meet.
#pragma once

#include <string>

#include "game/GameLog.h"
#include "game/VMain.h"
#include "recording/Recording.h"

namespace prismfall {

// The line of the kind and its numbers, then one for each timer that is on or has an interval of its own, each with its
// end. Numbers that a program has when it starts are left out.
std::string StartLines(VMain& main, GameKind kind);

// Brings a program in its main menu to the state that the recording begins with, and begins the game. Returns why that
// cannot be, or nothing.
std::string StartRecordedGame(VMain& main, const Recording& recording);

}  // namespace prismfall
