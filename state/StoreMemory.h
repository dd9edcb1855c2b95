// What this run knows of the settings store. Other runs write to the same one, so a save must tell what this run has
// changed from what it merely found (see screens/SettingsStore.h).
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "state/Numbers.h"
#include "state/ScoreTable.h"

namespace prismfall {

struct StoreMemory {
    std::map<std::pair<std::string, std::string>, std::string> texts;  // by section and key, as last read or saved
    // Since the score table was last read or saved:
    Boolean scoresCleared;
    std::vector<ScoreRow> gamesEntered;  // after the clearing, if there was one
};

}  // namespace prismfall
