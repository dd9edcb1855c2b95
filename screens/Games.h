// The dialog VGames: the kept games, to watch, share or delete. Game time is frozen while it is open.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screens/Dialogs.h"

namespace prismfall {

// What the dialog says about a game. Each part may be empty.
struct GameLine {
    std::string when = {};
    std::string game = {};
    std::string level = {};
    std::string points = {};
    std::string length = {};
};

// What can be done with the games, numbered from 0 in the order of `list`. The functions that return a text do what
// their names say, and report the outcome in a short line.
struct KeptGames {
    std::function<std::vector<GameLine>()> list;
    std::function<std::string(std::size_t game)> copyLink;
    std::function<std::string(std::size_t game)> save;
    std::function<std::string(std::size_t game)> remove;  // called when the player has confirmed it
};

// Shows the dialog with a line of advice; returns when it has closed, and which game the player wants to watch, if any.
std::optional<std::size_t> ShowGames(const DialogHost& host, const KeptGames& games, std::string advice);

}  // namespace prismfall
