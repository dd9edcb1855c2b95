// The system calls behind a settings file that several running copies share. There is one source file per kind of
// system.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace prismfall {

// The folder for the user's settings, by the system's conventions; empty if the user has none.
std::filesystem::path UsersSettingsFolder();
// The same for what the user has made, such as recordings.
std::filesystem::path UsersDataFolder();
// The folder where users look for their documents; empty if the user has none.
std::filesystem::path UsersDocumentsFolder();

// The text of a file, empty if there is none or it cannot be read.
std::string ReadWholeFile(const std::filesystem::path& file);

// Atomically replaces a file's text with what `change` returns for it: whatever happens, the file afterwards has either
// the old or the new text, and other runs that call this wait until it is done. Missing folders are created, readable
// only by the user. A link is followed: its target is replaced. If `change` does not alter the text, nothing is
// written. Returns an empty string, or on failure the reason why the file is unchanged, in the system's words; in that
// case `change` may or may not have been called.
std::string ChangeFile(const std::filesystem::path& file, const std::function<std::string(std::string)>& change);

}  // namespace prismfall
