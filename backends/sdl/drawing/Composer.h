// Composes one window's picture: background, painted layer, elements in their stacking order. It finds out itself which
// elements have changed since the last time.
#pragma once

#include <vector>

#include "backends/sdl/drawing/Damage.h"
#include "backends/sdl/drawing/ElementPainter.h"
#include "platform/Looks.h"
#include "platform/Window.h"

namespace prismfall {

class Composer {
  public:
    // `shownLayer` is the painted layer as it is shown, if the window has one. All of them must outlive the composer.
    Composer(const Window& composed, Looks* shownLayer, Display& target);

    // Marks everything as changed until it is composed again.
    void ForgetAll() { everything = true; }
    // The boxes on the display, for a picture of the given size, that have changed since the last call.
    const std::vector<PixelBox>& TakeChanges(int width, int height);
    // Draws the window's picture inside a box.
    void Compose(Canvas& canvas, const PixelBox& box);

  private:
    struct Seen {
        Element element;
        bool shown = false;
        PixelBox box;
    };

    void CompareElements();
    void AddLayerChanges();
    // The frame around the element that is chosen by keys.
    void CompareChoice();
    PixelBox ChoiceBox() const;
    // What can be seen of the chosen element: its box, or the opaque part of its picture.
    PixelBox ChosenBox() const;
    void DrawBackground(Canvas& canvas, const PixelBox& box);
    void DrawLayer(Canvas& canvas, const PixelBox& box) const;

    const Window& window;
    Looks* layer;
    Display& display;
    bool everything = true;
    std::vector<Seen> seen;
    PixelBox seenChoice;
    std::vector<PixelBox> layerBoxes;
    Damage changes;
};

}  // namespace prismfall
