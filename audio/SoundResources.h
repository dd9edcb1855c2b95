// The wave files embedded in the program, by their ids 102 to 108. The build generates the definition from
// assets/sounds with cmake/EmbedSounds.cmake.
#pragma once

#include <cstddef>
#include <span>

namespace prismfall {

// A complete RIFF WAVE file, or nothing for an id without a file.
std::span<const std::byte> LoadSoundResource(int id);

}  // namespace prismfall
