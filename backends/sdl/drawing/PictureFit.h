// How a window's picture fits into the window that the desktop provides, which may have another size than requested:
// complete, at one scale, as large as possible, and centred.
#pragma once

#include "platform/PixelBox.h"
#include "platform/WindowHost.h"

namespace prismfall {

struct PictureFit {
    float scale = 1;  // display pixels per game pixel
    PixelBox box;     // the picture's position, in display pixels; everything outside it stays black

    bool operator==(const PictureFit&) const = default;
};

// `inner` is the picture's size in game pixels, `given` the window's in display pixels, both at least 1. The wanted
// scale is kept if the window's size differs from it by no more than a rounded pixel.
PictureFit FitPicture(Extent inner, Extent given, float wantedScale);

}  // namespace prismfall
