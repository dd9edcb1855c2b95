// What a file takes from the system to which several runs of a program write. There is one source file for each kind
// of system.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace prismfall {

// Where the game keeps the user's settings, by the system's customs; empty if the user has no folder for such things.
std::filesystem::path UsersSettingsFolder();

// The text of a file, empty if there is none or it cannot be read.
std::string ReadWholeFile(const std::filesystem::path& file);

// Puts in the place of a file's text what `change` makes of it, in one step: whatever happens meanwhile, the old text
// or the new one is found afterwards, and other runs that call this wait until it is done. Folders that are missing are
// made, readable by the user alone. A link stays, and what it points to is replaced. A text that `change` leaves as it
// is is not written. Empty if it went well, else the reason why the file is the old one, in the system's words;
// `change` may or may not have been called then.
std::string ChangeFile(const std::filesystem::path& file, const std::function<std::string(std::string)>& change);

}  // namespace prismfall
