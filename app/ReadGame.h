// Reads a recorded game that the player has chosen: a file, or a link to the page.
#pragma once

#include <string>

#include "recording/Recording.h"

namespace prismfall {

// `fileOrLink` is UTF-8; it is a link only if there is no file of that name. Both may come from anywhere. Returns why
// there is no game in it, in one line for the player, or nothing.
std::string ReadGame(const std::string& fileOrLink, Recording& recording);

}  // namespace prismfall
