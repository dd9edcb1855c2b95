// Reads a recorded game that the player has chosen: a file, or a link to the page.
#pragma once

#include <string>

#include "recording/Recording.h"

namespace prismfall {

// `fileOrLink` is UTF-8; it counts as a link only if there is no file of that name. Both may come from anywhere.
// Returns nothing, or, in one line for the player, why there is no game in it.
std::string ReadGame(const std::string& fileOrLink, Recording& recording);

}  // namespace prismfall
