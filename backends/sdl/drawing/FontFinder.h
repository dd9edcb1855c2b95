// Finds the system's font for a family name. There is one source file per font system.
#pragma once

#include <memory>

#include "platform/Element.h"

struct SDL_RWops;

namespace prismfall {

struct FontFile {
    SDL_RWops* stream = nullptr;  // owned by the caller, must not outlive the finder; null if there is no font at all
    long face = 0;                // index in a file with several faces
    bool bold = false;
    bool italic = false;
};

class FontFinder {
  public:
    FontFinder();
    FontFinder(const FontFinder&) = delete;
    FontFinder& operator=(const FontFinder&) = delete;
    ~FontFinder();

    // The closest font; bold and italic say what it is, not what was requested.
    FontFile Find(const Font& font);

  private:
    struct System;
    std::unique_ptr<System> system;
};

}  // namespace prismfall
