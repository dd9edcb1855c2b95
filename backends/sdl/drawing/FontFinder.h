// Finds the system's font for a family's name. One source file for each way of asking a system.
#pragma once

#include <memory>

#include "platform/Element.h"

struct SDL_RWops;

namespace prismfall {

struct FontFile {
    SDL_RWops* stream = nullptr;  // belongs to the caller, not to outlive the finder; nullptr: there is no font at all
    long face = 0;                // which one in a file of several
    bool bold = false;
    bool italic = false;
};

class FontFinder {
  public:
    FontFinder();
    FontFinder(const FontFinder&) = delete;
    FontFinder& operator=(const FontFinder&) = delete;
    ~FontFinder();

    // The font that comes closest; bold and italic tell what it is, not what was asked for.
    FontFile Find(const Font& font);

  private:
    struct System;
    std::unique_ptr<System> system;
};

}  // namespace prismfall
