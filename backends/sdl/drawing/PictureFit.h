// How a window's picture lies in the window that the desktop has given, which need not have the size that was asked
// for: whole, in one scale, as large as fits, and centred.
#pragma once

#include "platform/PixelBox.h"
#include "platform/WindowHost.h"

namespace prismfall {

struct PictureFit {
    float scale = 1;  // how many pixels of the display a game pixel has
    PixelBox box;     // where the picture lies, in pixels of the display; what is outside it stays black

    bool operator==(const PictureFit&) const = default;
};

// `inner` is the picture's size in game pixels, `given` the window's in pixels of the display, both at least 1. The
// wanted scale is kept if the window differs from its size by no more than a rounded pixel.
PictureFit FitPicture(Extent inner, Extent given, float wantedScale);

}  // namespace prismfall
