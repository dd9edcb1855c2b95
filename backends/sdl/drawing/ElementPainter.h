// Draws the elements of a window: where each is on the display, and what each kind looks like.
#pragma once

#include "backends/sdl/drawing/Canvas.h"
#include "backends/sdl/drawing/PictureStore.h"
#include "backends/sdl/drawing/TextPainter.h"
#include "platform/Element.h"

namespace prismfall {

// What drawing for one display needs. `scale` is how many pixels of the display a game pixel has.
struct Display {
    explicit Display(PictureStore store) : pictures(std::move(store)) {}

    // Set anew before each window's picture, since windows may differ.
    void SetScale(float newScale);
    // A length or a place in game pixels as pixels of the display, rounded half to even.
    int Pixels(float gamePixels) const;

    float scale = 1;
    PictureStore pictures;
    TextPainter text;
};

// The element's box on the display, and the part of it that its panel lets be seen.
PixelBox WholeBox(const Element& element, const Display& display);
PixelBox VisibleBox(const Element& element, const Display& display);

// Draws the element as far as it lies in `area`.
void DrawElement(Canvas& canvas, const Element& element, const PixelBox& area, Display& display);

}  // namespace prismfall
