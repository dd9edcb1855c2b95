// Paints on the surface of the main window, above its background. What is painted stays until it is painted over.
// Positions and widths are in game pixels.
#pragma once

#include "platform/Element.h"
#include "platform/Facet.h"

namespace prismfall {

class SurfacePainter : public Facet {
  public:
    // Paints an opaque line with round ends: every pixel whose center is at most half of `width` away from the segment.
    // What is outside the surface is cut off.
    virtual void SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) = 0;
    // Paints the outline of the rectangle between two corners.
    virtual void SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) = 0;
    // Restores the background from (x1, y1) to (x2, y2), the second corner excluded.
    virtual void SurfaceRestore(int x1, int y1, int x2, int y2) = 0;
    // Restores the whole background.
    virtual void SurfaceClear() = 0;
};

}  // namespace prismfall
