// Composing. Where a game pixel is a whole number of display pixels, the layer's pixels are drawn over the background
// one by one, which is fast and sharp; otherwise they are smoothed.
#include "backends/sdl/drawing/Composer.h"

#include <algorithm>
#include <cmath>

namespace prismfall {

namespace {

// The frame around an element that is chosen by keys, in game pixels.
constexpr float kChoiceOut = 3;
constexpr float kChoiceWidth = 2;
constexpr Colour kChoiceColour = 0xFFFFFF;

bool IsWhole(float scale) { return scale == std::floor(scale); }

void DrawSharpLayer(Canvas& canvas, const Looks& layer, const PixelBox& box, int factor) {
    const PixelBox area = Overlap(box, {0, 0, Surface::kWidth * factor, Surface::kHeight * factor});
    for (int y = area.top; y < area.bottom; ++y) {
        const std::uint32_t* from = layer.Row(y / factor);
        std::uint32_t* to = canvas.Row(y);
        for (int x = area.left; x < area.right; ++x) {
            const std::uint32_t pixel = from[factor == 1 ? x : x / factor];
            if (pixel != Surface::kUnpainted) to[x] = pixel;
        }
    }
}

void DrawSmoothLayer(Canvas& canvas, const Looks& layer, const PixelBox& box, float scale) {
    for (int y = box.top; y < box.bottom; ++y) {
        const Neighbours row = NeighboursAt(y, scale, Surface::kHeight);
        const std::uint32_t* upper = layer.Row(row.first);
        const std::uint32_t* lower = layer.Row(row.second);
        std::uint32_t* to = canvas.Row(y);
        for (int x = box.left; x < box.right; ++x) {
            const Neighbours column = NeighboursAt(x, scale, Surface::kWidth);
            to[x] = Blend(MixFour(upper, lower, column, row.share), to[x]);
        }
    }
}

}  // namespace

Composer::Composer(const Window& composed, Looks* shownLayer, Display& target)
    : window(composed), layer(shownLayer), display(target) {}

void Composer::CompareElements() {
    const std::size_t count = window.elements.size();
    if (count != seen.size()) {
        seen.resize(count);
        everything = true;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const Element& element = *window.elements[i];
        Seen& last = seen[i];
        const bool shown = IsShown(element);
        if (!shown && !last.shown) continue;
        const PixelBox box = VisibleBox(element, display);
        if (shown == last.shown && box == last.box && element == last.element) continue;
        if (last.shown) changes.Add(last.box);
        if (shown) changes.Add(box);
        last = {element, shown, box};
    }
}

void Composer::AddLayerChanges() {
    layer->TakeDamage(layerBoxes);
    // A smoothed pixel extends into its neighbours.
    const int reach = IsWhole(display.scale) ? 0 : 1;
    for (const PixelBox& box : layerBoxes) {
        const auto down = [&](int place) {
            return static_cast<int>(std::floor(static_cast<float>(place - reach) * display.scale));
        };
        const auto up = [&](int place) {
            return static_cast<int>(std::ceil(static_cast<float>(place + reach) * display.scale));
        };
        changes.Add({down(box.left), down(box.top), up(box.right), up(box.bottom)});
    }
}

PixelBox Composer::ChosenBox() const {
    const KeyChoice& choice = window.choice;
    const PixelBox whole{display.Pixels(choice.left), display.Pixels(choice.top),
                         display.Pixels(choice.left + choice.width), display.Pixels(choice.top + choice.height)};
    const auto chosen = std::ranges::find(window.elements, choice.what);
    if (chosen == window.elements.end() || (*chosen)->picture.empty()) return whole;
    const Image* picture = display.pictures.Find((*chosen)->picture);
    if (picture == nullptr) return whole;
    const PixelBox drawn = OpaquePart(*picture);
    return Overlap(
        whole, {whole.left + drawn.left, whole.top + drawn.top, whole.left + drawn.right, whole.top + drawn.bottom});
}

PixelBox Composer::ChoiceBox() const {
    const KeyChoice& choice = window.choice;
    if (!choice.isShown || choice.isOnSurface || choice.what == nullptr) return {};
    const PixelBox box = ChosenBox();
    const int out = display.Pixels(kChoiceOut);
    return {box.left - out, box.top - out, box.right + out, box.bottom + out};
}

void Composer::CompareChoice() {
    const PixelBox box = ChoiceBox();
    if (box == seenChoice) return;
    changes.Add(seenChoice);
    changes.Add(box);
    seenChoice = box;
}

const std::vector<PixelBox>& Composer::TakeChanges(int width, int height) {
    const PixelBox whole{0, 0, width, height};
    changes.Clear();
    CompareElements();
    CompareChoice();
    if (layer != nullptr) AddLayerChanges();
    if (everything) {
        changes.Clear();
        changes.Add(whole);
    }
    everything = false;
    changes.CutTo(whole);
    return changes.Boxes();
}

void Composer::Compose(Canvas& canvas, const PixelBox& box) {
    canvas.SetClip(box);
    DrawBackground(canvas, box);
    if (layer != nullptr) DrawLayer(canvas, box);
    for (const Element* element : window.elements)
        if (IsShown(*element)) DrawElement(canvas, *element, box, display);
    canvas.SetClip(box);
    const int width = std::max(1, display.Pixels(kChoiceWidth));
    if (!seenChoice.IsEmpty()) canvas.Frame(seenChoice, PixelOf(kChoiceColour), width);
}

void Composer::DrawBackground(Canvas& canvas, const PixelBox& box) {
    const Image* image = window.background.empty() ? nullptr : display.pictures.Find(window.background);
    const bool covers = image != nullptr && image->opaque && box.right <= image->width && box.bottom <= image->height;
    if (!covers) canvas.Fill(box, PixelOf(kBlack));
    if (image != nullptr) canvas.Draw(*image, 0, 0);
}

void Composer::DrawLayer(Canvas& canvas, const PixelBox& box) const {
    if (IsWhole(display.scale)) {
        DrawSharpLayer(canvas, *layer, box, static_cast<int>(display.scale));
    } else {
        DrawSmoothLayer(canvas, *layer, box, display.scale);
    }
}

}  // namespace prismfall
