// Reads the settings from the platform's store at start-up and writes them when the program ends; in between they are
// only in memory. Several runs may share a store: what one of them saves is never undone by another that has not
// changed it.
#pragma once

#include "platform/SettingsKeeper.h"
#include "settings/Settings.h"

namespace prismfall {

// Reads all settings. Whatever is missing or malformed gets its default.
void ReadSettings(Settings& settings, SettingsKeeper& store);

// Writes to the store what this run has changed, and what the store lacks, so that all 79 values are in it. Of the
// extras, only those that this run has changed are written: a store without them has their defaults. If the store's
// score table is not the one that this run knows, the games of this run enter that table (an empty one, if this run has
// cleared it), and it becomes this run's too. If saving fails, the changes are kept for the next call. May be called
// any number of times.
void SaveSettings(Settings& settings, SettingsKeeper& store);

}  // namespace prismfall
