// Draws the elements of a window: where each is on the display, and what each kind looks like.
#pragma once

#include "backends/sdl/drawing/Canvas.h"
#include "backends/sdl/drawing/PictureStore.h"
#include "backends/sdl/drawing/TextPainter.h"
#include "platform/Element.h"

namespace prismfall {

// What is needed to draw for one display. `scale` is how many display pixels a game pixel has.
struct Display {
    explicit Display(PictureStore store) : pictures(std::move(store)) {}

    // Set again before each window's picture, since windows may differ.
    void SetScale(float newScale);
    // Converts a length or a coordinate from game pixels to display pixels, rounding half to even.
    int Pixels(float gamePixels) const;

    float scale = 1;
    PictureStore pictures;
    TextPainter text;
};

// The element's box on the display, and the part of it that is visible within its panel.
PixelBox WholeBox(const Element& element, const Display& display);
PixelBox VisibleBox(const Element& element, const Display& display);

// Draws the part of the element that is in `area`.
void DrawElement(Canvas& canvas, const Element& element, const PixelBox& area, Display& display);

}  // namespace prismfall
