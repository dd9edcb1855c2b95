// Shows a window's Aside on the black margin beside its picture, if that is broad enough.
#pragma once

#include "backends/sdl/drawing/ElementPainter.h"
#include "backends/sdl/drawing/PictureFit.h"
#include "platform/Window.h"

namespace prismfall {

class MarginNote {
  public:
    // Finds out whether there is room for it in a window of that size. Returns the box on the margin that has changed
    // since the last call, or whole if `isLost`; empty for none.
    PixelBox Update(Window& window, Extent size, const PictureFit& fit, Display& display, bool isLost);
    // Draws the note; outside of its box the canvas stays as it is.
    void Draw(Canvas& canvas, Display& display) const;

  private:
    PixelBox box;  // of the note and its padding; empty while there is none
    PixelBox bar;  // its filled part
    int barRight = 0;
    std::string text;
};

}  // namespace prismfall
