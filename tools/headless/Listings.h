// Prints what the windows and the settings contain, for scripts and people to read.
#pragma once

#include <ostream>

#include "backends/headless/HeadlessPlatform.h"
#include "game/VMain.h"

namespace prismfall {

// The visible elements of the main window, sorted by name.
void PrintElements(std::ostream& out, const VMain& main);
// The settings in memory and the score table, with the clock's time.
void PrintSettings(std::ostream& out, const VMain& main, std::int64_t time);
void PrintStore(std::ostream& out, const HeadlessPlatform& platform);

}  // namespace prismfall
