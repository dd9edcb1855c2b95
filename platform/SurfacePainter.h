// Paints on the surface of the main window, which lies over its background. What is painted stays until it is painted
// over.
// Places and widths are game pixels.
#pragma once

#include "platform/Element.h"
#include "platform/Facet.h"

namespace prismfall {

class SurfacePainter : public Facet {
  public:
    // Paints an opaque line: every pixel whose center lies within half of `width` of the segment, ends round. Places
    // outside the surface are cut off.
    virtual void SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) = 0;
    // Paints the outline of the rectangle between two corners.
    virtual void SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) = 0;
    // Brings the background back from (x1, y1) to (x2, y2), the second corner excluded.
    virtual void SurfaceRestore(int x1, int y1, int x2, int y2) = 0;
    // Brings the whole background back.
    virtual void SurfaceClear() = 0;
};

}  // namespace prismfall
